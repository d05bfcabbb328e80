#pragma once

#include "cli/case_commands.h"

namespace verandis {

/// The comparison report as text, also written to the project folder; with a PDF file wanted, the
/// slots are calculated and the report of the run is written there instead.
int ReportCommand(const CommandCall& call);

}  // namespace verandis
