#include "platform/regional.h"

#include <locale>
#include <stdexcept>

namespace verandis {

bool MachineWritesDecimalComma() {
    try {
        const std::locale machine("");
        return std::use_facet<std::numpunct<char>>(machine).decimal_point() == ',';
    } catch (const std::runtime_error&) {
        return false;  // the machine names a locale that is not installed
    }
}

}  // namespace verandis
