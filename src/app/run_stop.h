#pragma once

#include <string>
#include <string_view>

namespace verandis {

/// Stops the run: throws RunError with a sentence that names the open case, the element (when there
/// is one) and what is wrong.
[[noreturn]] void StopRun(std::string_view what, std::string_view element = {});

}  // namespace verandis
