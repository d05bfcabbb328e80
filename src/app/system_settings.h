#pragma once

#include <array>
#include <string>
#include <vector>

#include "app/data_root.h"
#include "app/settings.h"

// What the settings dialog proposes, checks and does; it works before any catalogue is there.

namespace verandis {

/// Values behind the rows of the dialog's lists.
inline constexpr std::array<const char*, 2> kAccuracyLevels = {"2", "4"};
inline constexpr std::array<const char*, 2> kDecimalSigns = {".", ","};

/// The catalogue text, or the built-in one while there is none.
std::string TextOr(int number, const char* builtIn);

/// True while no settings file names the folder of the data.
bool IsFirstStart();

/// What the dialog opens with: the stored values; at a first start the folder "verandis" in the
/// user's home, and the home as his working folder.
Settings ProposedSettings();

/// Rows of the accuracy, in the order of `kAccuracyLevels`.
std::vector<std::string> AccuracyRows();

/// Rows of the decimal sign, in the order of `kDecimalSigns`.
std::vector<std::string> DecimalRows();

/// Row of a stored value in such a list; the first one when it is unknown.
int RowOf(const std::array<const char*, 2>& values, const std::string& value);

/// Where browsing can begin: the user's home, the root of the machine, what is mounted.
std::vector<std::string> BrowsePlaces();

/// Names of the folders in a folder, without hidden ones.
std::vector<std::string> FoldersIn(const std::string& folder);

/// The folder itself or the nearest one above it that exists.
std::string NearestFolder(const std::string& path);

enum class SettingsField { None, SystemPath, LocalPath };

/// What became of the dialog's values.
struct SettingsOutcome {
    bool stored = false;
    bool restarted = false;                     // the start was done again in another folder
    SettingsField fault = SettingsField::None;  // where the user has to look when not stored
};

/// The dialog's OK: refuses folders that cannot work with a message, offers to make a data root
/// where there is none, stores all values, and when the folder of the data has changed, reads the
/// settings anew and does the start's steps there. The language holds from the next start, unless
/// this is the first one. When it is refused or something fails, the settings file is as it was.
SettingsOutcome AcceptSettings(const Settings& typed, const CopyProgress& progress = {});

}  // namespace verandis
