#pragma once

#include <string>

namespace verandis {

/// The settings file's values as text.
struct Settings {
    std::string SystemPath;       // root of the program's data
    std::string LocalPath;        // the user's own working root; kept, read by nothing else
    std::string AccuracyLevelTL;  // "2" new coefficients each time step, "4" each iteration
    std::string Language;         // 1 Swedish, 2 English
    std::string Regional;         // decimal sign that the settings dialog shows
};

inline constexpr int kLongestSettingsValue = 63;  // characters; the rest is cut off at reading
inline constexpr int kLongestSystemPath = 48;     // so that a climate file's path stays within 70

/// Reads the settings file and sets the session's paths, language and decimal mode. False when it
/// names no `SystemPath`: the user has to supply it.
bool ReadSystemSettings();

/// The values as they stand in the file, with their defaults.
Settings StoredSettings();

/// Writes all five keys and takes the paths into the session. False when the file cannot be
/// written; it is then as it was before.
bool WriteSystemSettings(const Settings& settings);

/// Sets `SystemFolder` and the folders derived from it; a relative path is taken from the current
/// folder as it is now.
void UseSystemPath(const std::string& value);

/// The path as `UseSystemPath` takes it: the machine's separators, and seen from the root.
std::string FullSystemPath(const std::string& value);

/// Number of the catalogue text that tells why this folder cannot hold the data (empty, a blank, a
/// sign outside ASCII, too long), 0 when it can.
int RefusalOfSystemPath(const std::string& path);

/// The same refusal as an English sentence, for the time before a catalogue is there.
std::string SystemPathComplaint(const std::string& path);

}  // namespace verandis
