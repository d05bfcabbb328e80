#include "app/system_details.h"

#include "app/help_pages.h"
#include "app/program_text.h"
#include "app/session.h"
#include "platform/files.h"
#include "platform/profile.h"

namespace verandis {
namespace {

enum : int {
    kCaseText = 196,
    kDataText = 431,
    kLanguageText = 433,
    kSwedishText = 434,
    kEnglishText = 435,
    kSignText = 438,
    kPointText = 439,
    kCommaText = 440,
    kVersionText = 567,
    kSystemText = 955,
    kWindowsText = 956,
    kSettingsText = 957,
    kProjectText = 962,
    kHelpText = 13
};

constexpr int kSwedish = 1;

}  // namespace

std::vector<SystemDetail> SystemDetails(const Surroundings& surroundings) {
    const bool comma = session.Decimals == DecimalMode::Comma;
    return {
        {Text(kVersionText), surroundings.version},
        {Text(kSystemText), surroundings.operatingSystem},
        {Text(kWindowsText), surroundings.windowSystem},
        {Text(kLanguageText), Text(session.Language == kSwedish ? kSwedishText : kEnglishText)},
        {Text(kSignText), Text(comma ? kCommaText : kPointText)},
        {Text(kDataText), session.SystemFolder},
        {Text(kSettingsText), ConfigFolder()},
        {Text(kHelpText), HelpFolder()},
        {Text(kProjectText), TrueSpelling(session.ProjectFolder)},
        {Text(kCaseText), session.CaseName},
    };
}

std::string SystemDetailsText(const std::vector<SystemDetail>& details) {
    std::string text;
    for (const SystemDetail& detail : details) text += detail.label + ": " + detail.value + "\n";
    return text;
}

}  // namespace verandis
