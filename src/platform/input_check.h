#pragma once

#include <string>
#include <string_view>

namespace verandis {

/// Complaint about a reply that has to be a number within bounds (both heeded when least < most);
/// empty when it is one. Either decimal sign is taken.
std::string NumericReplyComplaint(std::string_view reply, double least, double most);

}  // namespace verandis
