#include "app/session.h"
#include "case/site_file.h"
#include "case/slot_files.h"
#include "fuzzing.h"
#include "libraries/case_usage.h"
#include "projects/case_list.h"
#include "text/characters.h"

// An input is a line that begins with the letter of a shape and goes on with a file name, then the
// collected model files. The same bytes stand for a site file, a status file and a saved case.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace verandis;
    using namespace verandis::fuzzing;
    std::string_view rest = TextOf(data, size);
    const std::string line = TakeDecodedLine(rest);
    session = {};
    session.ProjectFolder = Scratch();
    const std::string source = WriteScratch("all.dat", rest);
    const std::string target = WriteScratch("part.inp", "");
    SplitDynamicFile(source, target, line.empty() ? 'U' : line.front(), Mid(line, 2));

    WriteScratch("SITE.inp", rest);
    if (const auto climate = SiteClimate(Scratch())) {
        Require(TrimBlanks(*climate) == *climate, "the blanks around the path are off");
    }
    WriteScratch("THERMAL.INP", rest);
    MarkStagesToRun(Scratch(), kAllStages);
    WriteScratch("one.Cas", rest);
    FindCaseUsing(line);
    return 0;
}
