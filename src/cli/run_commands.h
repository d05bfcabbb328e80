#pragma once

#include "cli/case_commands.h"

namespace verandis {

int RunCommand(const CommandCall& call);
int ExplainCommand(const CommandCall& call);

}  // namespace verandis
