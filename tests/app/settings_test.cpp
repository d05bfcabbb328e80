#include "app/settings.h"

#include "app/session.h"
#include "support/session_test.h"

namespace verandis {
namespace {

using SettingsFile = testing_support::SessionTest;
using testing_support::Bytes;
using testing_support::PutBytes;

TEST_F(SettingsFile, GivesDefaultsForWhatIsMissingOrEmpty) {
    EXPECT_FALSE(ReadSystemSettings()) << "no file: the user has to name the folder";
    EXPECT_EQ(session.AccuracyLevelTL, "2");
    PutBytes(Path("config/verandis.ini"), "[VERANDIS]\nLanguage=\nsystempath=/tmp/x/\n");
    EXPECT_TRUE(ReadSystemSettings());
    EXPECT_EQ(session.Language, 2);
    EXPECT_EQ(session.SystemFolder, "/tmp/x/");
    EXPECT_EQ(session.SimulatorFolder, "/tmp/x//MWTHARM");
    EXPECT_EQ(session.StageFolder, "/tmp/x//WTHARM");
    EXPECT_EQ(session.ProjectRootAtStart, "/tmp/x//PROJECT");
    PutBytes(Path("config/verandis.ini"), "[Verandis]\nLocalPath=å" + std::string(70, 'x'));
    EXPECT_EQ(StoredSettings().LocalPath, "å" + std::string(62, 'x')) << "63 characters";
}

TEST_F(SettingsFile, HoldsFiveKeysInTheirOrder) {
    ASSERT_TRUE(WriteSystemSettings({"/tmp/r", "/home", "4", "1", ","}));
    EXPECT_EQ(Bytes(Path("config/Verandis.INI")),
              "[Verandis]\r\nSystemPath=/tmp/r\r\nLocalPath=/home\r\nAccuracyLevelTL=4\r\n"
              "Language=1\r\nRegional=,\r\n");
    EXPECT_EQ(session.ProjectRoot, "/tmp/r/PROJECT");
}

TEST_F(SettingsFile, RefusesFoldersThatAModelFileCannotName) {
    const std::pair<std::string, int> rows[] = {{"", 450},
                                                {"  ", 450},
                                                {"/tmp/a b", 446},
                                                {"/tmp/å", 447},
                                                {"/#&/", 0},
                                                {std::string(48, 'x'), 0},
                                                {std::string(49, 'x'), 448}};
    for (const auto& [path, text] : rows) {
        EXPECT_EQ(RefusalOfSystemPath(path), text) << path;
        EXPECT_EQ(SystemPathComplaint(path).empty(), text == 0) << path;
    }
}

}  // namespace
}  // namespace verandis
