#include "calc/division.h"

#include <string>

#include "app/run_stop.h"

namespace verandis {

double Divide(double a, double b, std::string_view what, std::string_view element) {
    if (b == 0) StopRun("division by zero, " + std::string(what) + " is 0", element);
    return a / b;
}

}  // namespace verandis
