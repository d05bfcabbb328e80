#include "calc/division.h"

#include "app/session.h"
#include "platform/errors.h"

namespace verandis {

void StopRun(std::string_view what, std::string_view element) {
    std::string sentence = "Case " + session.CaseName;
    if (!element.empty()) sentence += ", element " + std::string(element);
    throw RunError(sentence + ": " + std::string(what));
}

double Divide(double a, double b, std::string_view what, std::string_view element) {
    if (b == 0) StopRun("division by zero, " + std::string(what) + " is 0", element);
    return a / b;
}

}  // namespace verandis
