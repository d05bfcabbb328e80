#include <unistd.h>

#include <iostream>

#include "cli/commands.h"

int main(int count, char** arguments) {
    return verandis::RunCli({arguments + 1, arguments + count}, std::cout, std::cerr,
                            ::isatty(STDERR_FILENO) != 0);
}
