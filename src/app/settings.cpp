#include "app/settings.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include "app/session.h"
#include "platform/encoding.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/profile.h"
#include "platform/regional.h"
#include "platform/spelling.h"
#include "text/characters.h"
#include "text/numbers.h"

namespace verandis {
namespace {

constexpr const char* kFile = "Verandis.INI";
constexpr const char* kSection = "Verandis";
constexpr int kDefaultLanguage = 2;
constexpr const char* kDefaultAccuracy = "2";

struct SettingsKey {
    const char* name;
    std::string Settings::*value;
    const char* fallback;
};

/// In the order of writing.
constexpr std::array<SettingsKey, 5> kKeys = {{
    {"SystemPath", &Settings::SystemPath, ""},
    {"LocalPath", &Settings::LocalPath, ""},
    {"AccuracyLevelTL", &Settings::AccuracyLevelTL, kDefaultAccuracy},
    {"Language", &Settings::Language, "2"},
    {"Regional", &Settings::Regional, ""},
}};

struct Refusal {
    int text;
    const char* english;
};
constexpr Refusal kNoFolder = {450, "No folder is named"};
constexpr Refusal kHoldsBlank = {446, "The folder name holds a blank"};
constexpr Refusal kNotAscii = {
    447, "The folder name may hold only the letters a to z, digits and common signs"};
constexpr Refusal kTooLong = {448, "The folder name is longer than 48 characters"};

std::optional<Refusal> Refused(const std::string& path) {
    if (TrimBlanks(path).empty()) return kNoFolder;
    if (path.find_first_of(" \t\r\n") != std::string::npos) return kHoldsBlank;
    if (!IsAscii(path)) return kNotAscii;
    if (Length(path) > kLongestSystemPath) return kTooLong;
    return std::nullopt;
}

int LanguageOf(const std::string& value) {
    if (TrimBlanks(value).empty()) return kDefaultLanguage;
    const int language = WholeNumber(ToNumber(value));
    const bool fits = language >= INT16_MIN && language <= INT16_MAX;
    return fits ? language : kDefaultLanguage;
}

}  // namespace

Settings StoredSettings() {
    Settings settings;
    for (const SettingsKey& key : kKeys) {
        const auto value = ReadProfile(kFile, kSection, key.name);
        settings.*key.value =
            value && !value->empty() ? Left(*value, kLongestSettingsValue) : key.fallback;
    }
    return settings;
}

std::string FullSystemPath(const std::string& value) {
    // The current folder changes with the project, so a path relative to it would wander.
    const std::string given = WithMachineSeparators(value);
    return WithoutDrive(given).starts_with('/') ? given : AbsolutePath(given);
}

void UseSystemPath(const std::string& value) {
    const std::string path = FullSystemPath(value);
    session.SystemFolder = path;
    session.SimulatorFolder = JoinPath(path, "MWTHARM");
    session.StageFolder = JoinPath(path, "WTHARM");
    session.ProjectRoot = JoinPath(path, "PROJECT");
    SetRootSpelling(path);
}

bool ReadSystemSettings() {
    const Settings settings = StoredSettings();
    const bool found = !settings.SystemPath.empty();
    session.AccuracyLevelTL = found ? settings.AccuracyLevelTL : kDefaultAccuracy;
    session.Language = LanguageOf(settings.Language);
    session.Decimals = MachineWritesDecimalComma() ? DecimalMode::Comma : DecimalMode::Point;
    if (!found) return false;
    UseSystemPath(settings.SystemPath);
    session.ProjectRootAtStart = session.ProjectRoot;
    return true;
}

bool WriteSystemSettings(const Settings& settings) {
    const std::string file = JoinPath(ConfigFolder(), kFile);
    const auto before = ReadBytes(file);
    for (const SettingsKey& key : kKeys) {
        if (WriteProfile(kFile, kSection, key.name, settings.*key.value)) continue;
        before ? WriteBytes(file, *before) : DeleteFile(file);
        return false;
    }
    UseSystemPath(settings.SystemPath);
    return true;
}

int RefusalOfSystemPath(const std::string& path) {
    const auto refusal = Refused(path);
    return refusal ? refusal->text : 0;
}

std::string SystemPathComplaint(const std::string& path) {
    const auto refusal = Refused(path);
    return refusal ? refusal->english : "";
}

}  // namespace verandis
