#pragma once

#include <stdexcept>
#include <string>

namespace verandis {

/// Stops a calculation: a division by zero, a subscript out of its table, a folder that cannot be
/// written. The text is one sentence that names the case, the element and the value. It is caught
/// only by the handler that started the run and by `main` of a command line program; no other
/// exception crosses a module border.
class RunError : public std::runtime_error {
public:
    explicit RunError(const std::string& sentence) : std::runtime_error(sentence) {}
};

}  // namespace verandis
