#include <iostream>
#include <string>
#include <vector>

#include "climate/climate_command.h"

int main(int argc, char** argv) {
    const std::vector<std::string> args(argv + (argc > 0 ? 1 : 0), argv + argc);
    return verandis::RunClimateCommand(args, std::cout, std::cerr);
}
