#pragma once

#include "cli/case_commands.h"

namespace verandis {

/// The comparison report as text, also written to the project folder.
int ReportCommand(const CommandCall& call);

}  // namespace verandis
