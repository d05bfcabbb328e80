#include "app/settings.h"

#include "app/session.h"
#include "support/session_test.h"

namespace verandis {
namespace {

using SettingsFile = testing_support::SessionTest;
using testing_support::Bytes;
using testing_support::PutBytes;

TEST_F(SettingsFile, GivesDefaultsForWhatIsMissingOrEmpty) {
    EXPECT_FALSE(ReadSystemSettings()) << "no file, so the user has to name the folder";
    EXPECT_EQ(session.AccuracyLevelTL, "2");
    PutBytes(Path("config/verandis.ini"), "[VERANDIS]\nLanguage=\nSystemPath=\n");
    EXPECT_FALSE(ReadSystemSettings());
    EXPECT_EQ(session.Language, 2);
    PutBytes(Path("config/verandis.ini"), "[VERANDIS]\nLanguage=1\nsystempath=/tmp/x/\n");
    EXPECT_TRUE(ReadSystemSettings());
    EXPECT_EQ(session.Language, 1);
    EXPECT_EQ(session.SystemFolder, "/tmp/x/");
    EXPECT_EQ(session.SimulatorFolder, "/tmp/x//MWTHARM");
    EXPECT_EQ(session.StageFolder, "/tmp/x//WTHARM");
    EXPECT_EQ(session.ProjectRoot, "/tmp/x//PROJECT");
    EXPECT_EQ(session.ProjectRootAtStart, session.ProjectRoot);
}

TEST_F(SettingsFile, UsesSixtyThreeCharactersOfAValue) {
    std::string name;
    for (int at = 0; at < 40; ++at) name += "aå";
    PutBytes(Path("config/Verandis.INI"), "[Verandis]\nLocalPath=" + name + "\n");
    EXPECT_EQ(StoredSettings().LocalPath, name.substr(0, 31 * 3 + 1));
}

TEST_F(SettingsFile, HoldsFiveKeysInTheirOrder) {
    ASSERT_TRUE(WriteSystemSettings({"/tmp/r", "/home", "4", "1", ","}));
    EXPECT_EQ(Bytes(Path("config/Verandis.INI")),
              "[Verandis]\r\nSystemPath=/tmp/r\r\nLocalPath=/home\r\nAccuracyLevelTL=4\r\n"
              "Language=1\r\nRegional=,\r\n");
    EXPECT_EQ(session.ProjectRoot, "/tmp/r/PROJECT");
    EXPECT_EQ(session.ProjectRootAtStart, "") << "that of the last start stays";
}

TEST_F(SettingsFile, RefusesFoldersThatAModelFileCannotName) {
    const std::pair<std::string, int> rows[] = {
        {"", 450},     {"  ", 450}, {"/tmp/a b", 446},         {"/tmp/å", 447},
        {"/tmp/x", 0}, {"/#&/", 0}, {std::string(48, 'x'), 0}, {std::string(49, 'x'), 448}};
    for (const auto& [path, text] : rows) {
        EXPECT_EQ(RefusalOfSystemPath(path), text) << path;
        EXPECT_EQ(SystemPathComplaint(path).empty(), text == 0) << path;
    }
}

TEST_F(SettingsFile, MarksAreCountedAnewFromTheBoxesOnly) {
    session.ChkCase[1][1] = session.ChkCase[4][4] = session.ChkCase[2][3] = true;
    session.MarkedCount = 9;
    session.CaseMarks[3][3] = 1;
    SetActiveRuns();
    EXPECT_EQ(session.MarkedCount, 3);
    EXPECT_EQ(session.CaseMarks[3][3], 0);
    EXPECT_EQ(session.CaseMarks[4][4], 1);
}

}  // namespace
}  // namespace verandis
