#include "app/system_settings.h"

#include <cstdlib>
#include <filesystem>

#include "app/program_text.h"
#include "app/session.h"
#include "support/session_test.h"

namespace verandis {
namespace {

namespace fs = std::filesystem;
using testing_support::Bytes;
using testing_support::OnDisk;
using testing_support::PutBytes;

/// A first start with a home of its own and no catalogue.
class SettingsDialog : public testing_support::SessionTest {
protected:
    SettingsDialog() : home_(std::getenv("HOME") ? std::getenv("HOME") : "") {
        fs::create_directories(Path("home"));
        ::setenv("HOME", Path("home").c_str(), 1);
    }
    ~SettingsDialog() override { ::setenv("HOME", home_.c_str(), 1); }

    Settings With(const std::string& root, const std::string& local) const {
        return {root, local, "4", "1", ","};
    }

    std::string SettingsFile() const { return Path("config/Verandis.INI"); }

private:
    std::string home_;
};

TEST_F(SettingsDialog, ProposesAFolderInTheHomeUntilOneIsStored) {
    session.Decimals = DecimalMode::Comma;
    const Settings first = ProposedSettings();
    EXPECT_EQ(first.SystemPath, Path("home/verandis"));
    EXPECT_EQ(first.LocalPath, Path("home"));
    EXPECT_EQ(first.Regional, ",");
    PutBytes(SettingsFile(), "[Verandis]\nSystemPath=/x\nRegional=.\n");
    EXPECT_EQ(ProposedSettings().LocalPath, "") << "left empty on purpose";
    EXPECT_EQ(ProposedSettings().Regional, ".");
    EXPECT_EQ(AccuracyRows()[1], "High\u00A0-New coeff. each iteration");
}

// Each row cannot work: what is told first, and where the user has to look.
TEST_F(SettingsDialog, RefusesWhatCannotWorkAndStoresNothing) {
    PutBytes(Path("file"), "in the way");
    PutBytes(Path("busy/PROJECT/PROJECTS.LIB"), "");
    fs::create_directories(Path("busy/PROJECT/verandis.tmp"));
    constexpr auto kRoot = SettingsField::SystemPath;
    constexpr auto kOwn = SettingsField::LocalPath;
    struct Row {
        std::string root, local, told;
        SettingsField fault;
    };
    const std::string home = Path("home");
    const Row rows[] = {
        {"/tmp/a b", home, "The folder name holds a blank\n\n/tmp/a b", kRoot},
        {Path("file/r"), home, "The folder cannot be made\n\n" + Path("file/r/PROJECT"), kRoot},
        {Path("busy"), home, "The folder cannot be written\n\n" + Path("busy/PROJECT"), kRoot},
        {Path("r"), Path("none"), "The working folder does not exist\n\n" + Path("none"), kOwn},
        {Path("r"), std::string(64, 'x'),
         "The name of the working folder is longer than 63 characters", kOwn},
    };
    for (const Row& row : rows) {
        prompts.shown.clear();
        prompts.answers = {true};
        const SettingsOutcome outcome = AcceptSettings(With(row.root, row.local));
        EXPECT_FALSE(outcome.stored) << row.told;
        EXPECT_EQ(outcome.fault, row.fault) << row.told;
        EXPECT_TRUE(prompts.Texts().back().starts_with(row.told)) << prompts.Texts().back();
    }
    prompts.shown.clear();
    prompts.answers = {false};
    EXPECT_FALSE(AcceptSettings(With(Path("r"), home)).stored);
    EXPECT_EQ(prompts.Texts(),
              std::vector<std::string>{"The folder does not exist. Create it?\n\n" + Path("r")});
    EXPECT_FALSE(OnDisk(Path("r")));
    EXPECT_FALSE(OnDisk(SettingsFile()));
    EXPECT_EQ(session.SystemFolder, "");
}

TEST_F(SettingsDialog, MakesTheDataRootWithProgressAndStartsThere) {
    prompts.answers = {true};
    int steps = 0;
    int all = 0;
    const SettingsOutcome outcome = AcceptSettings(With(" ~/r ", "~"), [&](int done, int count) {
        EXPECT_EQ(done, ++steps);
        all = count;
    });
    EXPECT_TRUE(outcome.stored && outcome.restarted);
    EXPECT_GT(steps, 20);
    EXPECT_EQ(steps, all);
    const std::string root = Path("home/r");
    EXPECT_EQ(Bytes(SettingsFile()), "[Verandis]\r\nSystemPath=" + root +
                                         "\r\nLocalPath=" + Path("home") +
                                         "\r\nAccuracyLevelTL=4\r\nLanguage=1\r\nRegional=,\r\n");
    EXPECT_EQ(session.CaseName, "vshape1");
    EXPECT_EQ(session.AccuracyLevelTL, "4");
    EXPECT_EQ(Text(14), "Fall") << "the first start speaks the chosen language at once";

    Settings next = ProposedSettings();
    next.Language = "2";
    next.AccuracyLevelTL = "2";
    const SettingsOutcome same = AcceptSettings(next);
    EXPECT_TRUE(same.stored && !same.restarted);
    EXPECT_EQ(session.AccuracyLevelTL, "2");
    next.SystemPath = Path("Other");
    fs::create_directories(Path("Other"));
    prompts.answers = {true};
    prompts.shown.clear();
    EXPECT_TRUE(AcceptSettings(next).restarted);
    EXPECT_TRUE(prompts.Texts().at(0).starts_with("Mappen innehåller inga data ännu."));
    EXPECT_EQ(session.ProjectRootAtStart, Path("Other/PROJECT"));
    EXPECT_EQ(session.Language, 1) << "of a running program";
    EXPECT_EQ(StoredSettings().Language, "2");
}

TEST_F(SettingsDialog, TellsWhenTheSettingsCannotBeSaved) {
    PutBytes(Path("r/PROJECT/PROJECTS.LIB"), "");
    PutBytes(Path("config"), "a file where a folder should be");
    EXPECT_FALSE(AcceptSettings(With(Path("r"), "")).stored);
    EXPECT_EQ(prompts.Texts(), std::vector{"The settings cannot be saved\n\n" + Path("config")});
    EXPECT_EQ(session.SystemFolder, "");
}

}  // namespace
}  // namespace verandis
