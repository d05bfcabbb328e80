#pragma once

#include <string>
#include <string_view>

namespace verandis {

/// Label of the first case that uses a type of this name: the slots in the order U, O, V, I, then
/// the saved cases of the project folder. Empty when none does. The name is looked for as a part of
/// each value, with letter case, so a type whose name is part of a longer used name counts as used.
/// A slot without a property file is skipped.
std::string FindCaseUsing(std::string_view name);

}  // namespace verandis
