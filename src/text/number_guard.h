#pragma once

#include <string>
#include <string_view>

namespace verandis {

/// What the text of a number field becomes when the user has changed it from `before` to `after` by
/// typing, pasting or deleting. Of what he put in, characters that no number holds are refused, and
/// so is a sign or an "E" at a wrong place. A second decimal sign is turned back: a "*" marks its
/// place, for the user to mend. What stood in the field before is never touched.
std::string GuardedNumber(std::string_view before, std::string_view after);

}  // namespace verandis
