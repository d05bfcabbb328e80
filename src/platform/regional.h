#pragma once

namespace verandis {

/// True when the machine's regional format writes one and a half as "1,5".
bool MachineWritesDecimalComma();

}  // namespace verandis
