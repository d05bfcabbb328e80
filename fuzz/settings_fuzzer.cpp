#include <cstdlib>

#include "app/session.h"
#include "app/settings.h"
#include "fuzzing.h"
#include "platform/files.h"
#include "platform/profile.h"
#include "text/characters.h"
#include "text/separators.h"

// An input is a line with a value, then the settings file.

namespace verandis::fuzzing {
namespace {

constexpr const char* kFile = "Verandis.INI";
constexpr const char* kSection = "Verandis";

bool IsPlain(std::string_view value) {
    const bool quoted = value.starts_with('"') || value.starts_with('\'');
    return !quoted && TrimBlanks(value) == value;
}

void CheckFile(std::string_view file, const std::string& value) {
    const std::string path = WriteScratch(kFile, file);
    ReadSystemSettings();
    RefusalOfSystemPath(StoredSettings().SystemPath);
    const std::size_t lines = LinesOf(file).size();
    const auto other = ReadProfile(kFile, kSection, "Language");
    Require(WriteProfile(kFile, kSection, "SystemPath", value), "a value is stored");
    const auto stored = ReadProfile(kFile, "VERANDIS", "systempath");
    Require(stored.has_value(), "a stored value is found");
    if (IsPlain(value)) Require(*stored == value, "a value reads as it was stored");
    Require(ReadProfile(kFile, kSection, "Language") == other, "the other values stay");
    const std::size_t now = ReadUtf8Lines(path)->size();
    Require(now >= lines && now <= lines + 2, "a section and a key are all that is added");
}

}  // namespace
}  // namespace verandis::fuzzing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace verandis::fuzzing;
    std::string_view rest = TextOf(data, size);
    const std::string value(verandis::TakeLine(rest));
    ::setenv("VERANDIS_CONFIG_DIR", Scratch().c_str(), 1);
    verandis::session = {};
    CheckFile(rest, value);
    return 0;
}
