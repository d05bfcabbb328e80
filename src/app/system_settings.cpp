#include "app/system_settings.h"

#include <optional>

#include "app/program_text.h"
#include "app/session.h"
#include "app/start_up.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/profile.h"
#include "platform/prompts.h"
#include "text/characters.h"

namespace verandis {
namespace {

/// Catalogue texts with what stands for them before there is a catalogue.
struct Wording {
    int text;
    const char* builtIn;
};
constexpr Wording kTitle = {245, "System settings"};
constexpr Wording kPoint = {439, "Point"};
constexpr Wording kComma = {440, "Comma"};
constexpr Wording kCreateQuestion = {441, "The folder does not exist. Create it?"};
constexpr Wording kReadOnly = {451, "The folder cannot be written"};
constexpr Wording kNormal = {660, "Normal\u00A0"};
constexpr Wording kHigh = {661, "High\u00A0"};
constexpr Wording kLocalTooLong = {662,
                                   "The name of the working folder is longer than 63 characters"};
constexpr Wording kFillQuestion = {663,
                                   "The folder holds no data yet. Put the program's data there?"};
constexpr Wording kNoLocal = {664, "The working folder does not exist"};
constexpr Wording kNotSaved = {665, "The settings cannot be saved"};

constexpr const char* kDefaultRoot = "verandis";
constexpr const char* kProbe = "verandis.tmp";

std::string Worded(const Wording& wording) {
    return TextOr(wording.text, wording.builtIn);
}

std::string WithPath(const std::string& text, const std::string& path) {
    return path.empty() ? text : text + "\n\n" + path;
}

SettingsOutcome Refuse(SettingsField field, const std::string& text, const std::string& path) {
    ShowMessage(WithPath(text, path), Worded(kTitle), Icon::Exclamation);
    return {false, false, field};
}

/// Without outer blanks, and with the home folder in place of a leading "~".
std::string TidyPath(const std::string& typed) {
    const std::string path(TrimBlanks(typed));
    if (path == "~" || path.starts_with("~/")) return HomeFolder() + path.substr(1);
    return path;
}

bool CanWriteIn(const std::string& folder) {
    const std::string probe = JoinPath(folder, kProbe);
    return WriteBytes(probe, "") && DeleteFile(probe);
}

std::optional<SettingsOutcome> RefusedLocalPath(const std::string& path) {
    if (path.empty()) return std::nullopt;
    if (Length(path) > kLongestSettingsValue)
        return Refuse(SettingsField::LocalPath, Worded(kLocalTooLong), path);
    if (!FolderExists(path)) return Refuse(SettingsField::LocalPath, Worded(kNoLocal), path);
    return std::nullopt;
}

/// Makes sure that the folder is a data root that can be written.
std::optional<SettingsOutcome> RefusedRoot(const std::string& path, const CopyProgress& progress) {
    constexpr auto kField = SettingsField::SystemPath;
    if (const int text = RefusalOfSystemPath(path))
        return Refuse(kField, TextOr(text, SystemPathComplaint(path).c_str()), path);
    if (!IsDataRoot(path)) {
        const Wording& question = FolderExists(path) ? kFillQuestion : kCreateQuestion;
        if (!CurrentPrompts().AskYesNo(WithPath(Worded(question), path), Worded(kTitle)))
            return SettingsOutcome{false, false, kField};
        if (const auto fault = BuildDataRoot(path, progress))
            return Refuse(kField, TextOr(fault->text, fault->english.c_str()), fault->path);
    }
    const std::string projects = JoinPath(path, "PROJECT");
    if (!CanWriteIn(projects)) return Refuse(kField, Worded(kReadOnly), projects);
    return std::nullopt;
}

}  // namespace

std::string TextOr(int number, const char* builtIn) {
    const std::string text = Text(number);
    return text.empty() ? builtIn : text;
}

bool IsFirstStart() {
    return StoredSettings().SystemPath.empty();
}

Settings ProposedSettings() {
    Settings settings = StoredSettings();
    if (settings.SystemPath.empty()) {
        settings.SystemPath = JoinPath(HomeFolder(), kDefaultRoot);
        if (settings.LocalPath.empty()) settings.LocalPath = HomeFolder();
    }
    if (settings.Regional.empty())
        settings.Regional = kDecimalSigns[session.Decimals == DecimalMode::Comma ? 1 : 0];
    return settings;
}

std::vector<std::string> AccuracyRows() {
    return {Worded(kNormal) + "-New coeff. each timestep",
            Worded(kHigh) + "-New coeff. each iteration"};
}

std::vector<std::string> DecimalRows() {
    return {Worded(kPoint) + " (.)", Worded(kComma) + " (,)"};
}

int RowOf(const std::array<const char*, 2>& values, const std::string& value) {
    return TrimBlanks(value) == values[1] ? 1 : 0;
}

std::vector<std::string> BrowsePlaces() {
    std::vector<std::string> places = {HomeFolder(), "/"};
    for (const char* mounts : {"/media", "/mnt", "/run/media"}) {
        for (const std::string& name : FoldersIn(mounts)) places.push_back(JoinPath(mounts, name));
    }
    std::erase(places, "");
    return places;
}

std::vector<std::string> FoldersIn(const std::string& folder) {
    std::vector<std::string> names;
    for (const std::string& name : ListFolder(folder)) {
        if (!name.starts_with('.') && FolderExists(JoinPath(folder, name))) names.push_back(name);
    }
    return names;
}

std::string NearestFolder(const std::string& path) {
    std::string folder = CanonicalPath(FullSystemPath(TidyPath(path)));
    while (!folder.empty() && !FolderExists(folder)) folder = FolderOf(folder);
    return folder.empty() ? "/" : folder;
}

SettingsOutcome AcceptSettings(const Settings& typed, const CopyProgress& progress) {
    Settings settings = typed;
    const std::string root = TidyPath(typed.SystemPath);
    settings.SystemPath = root.empty() ? root : FullSystemPath(root);
    settings.LocalPath = TidyPath(typed.LocalPath);
    if (const auto refused = RefusedLocalPath(settings.LocalPath)) return *refused;
    if (const auto refused = RefusedRoot(settings.SystemPath, progress)) return *refused;

    const std::string before = session.SystemFolder;
    if (!WriteSystemSettings(settings))
        return Refuse(SettingsField::None, Worded(kNotSaved), ConfigFolder());
    session.AccuracyLevelTL = settings.AccuracyLevelTL;
    if (session.SystemFolder == before) return {true, false, SettingsField::None};

    const int language = session.Language;
    ReadSystemSettings();
    if (!before.empty()) session.Language = language;
    StartProject();
    return {true, true, SettingsField::None};
}

}  // namespace verandis
