#pragma once

#include <string>
#include <string_view>

namespace verandis {

/// A text as one field of comma-separated values: quoted where it holds a comma, a quote or a line
/// end.
std::string CsvText(std::string_view text);

}  // namespace verandis
