#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace verandis {

/// Folder of the settings files: $VERANDIS_CONFIG_DIR, else $XDG_CONFIG_HOME/verandis, else
/// ~/.config/verandis. It need not exist.
std::string ConfigFolder();

/// The user's home folder, "" when the system does not tell.
std::string HomeFolder();

/// One value of a settings file in `ConfigFolder`: UTF-8 text with "[section]" and "key=value"
/// lines. File name, section and key are matched without regard to letter case; blanks around the
/// value and one pair of quotes are taken off. Nothing when the file, section or key is missing.
std::optional<std::string> ReadProfile(std::string_view file, std::string_view section,
                                       std::string_view key);

/// Sets one value; all other lines stay as they are. Makes file, section and key when missing.
/// False when the file cannot be written.
bool WriteProfile(const std::string& file, const std::string& section, const std::string& key,
                  const std::string& value);

}  // namespace verandis
