#include "platform/profile.h"

#include <cstdlib>

#include "platform/progress.h"
#include "platform/prompts.h"
#include "platform/regional.h"
#include "support/session_test.h"

namespace verandis {
namespace {

using Profile = testing_support::SessionTest;
using testing_support::Bytes;
using testing_support::PutBytes;

TEST_F(Profile, FindsAKeyHoweverItIsWritten) {
    PutBytes(Path("config/Tharm.ini"),
             "; SystemPath=/comment\r\nSystemPath=/outside\n[Other]\nSystemPath=/other\n\n"
             "[ tharm ]\n SYSTEMPATH =  \"/a b/ö\" \nEmpty=\nEquals=a=b;c\nQuote=\"\nPlain='x'\n"
             "SystemPath=/second\n[Tharm]\nLate=1");
    const std::pair<const char*, std::optional<std::string>> rows[] = {
        {"systempath", "/a b/ö"}, {"Empty", ""}, {"Equals", "a=b;c"}, {"Quote", "\""},
        {"Plain", "x"},           {"None", {}},  {"; SystemPath", {}}};
    for (const auto& [key, value] : rows) {
        EXPECT_EQ(ReadProfile("Tharm.INI", "THARM", key), value) << key;
    }
    EXPECT_EQ(ReadProfile("Tharm.INI", "None", "Empty"), std::nullopt);
    EXPECT_EQ(ReadProfile("None.INI", "THARM", "Empty"), std::nullopt);
}

TEST_F(Profile, WritingKeepsEveryOtherLine) {
    const std::string path = Path("config/Verandis.INI");
    ASSERT_TRUE(WriteProfile("Verandis.INI", "Verandis", "Language", "1"));
    EXPECT_EQ(Bytes(path), "[Verandis]\r\nLanguage=1\r\n");
    PutBytes(path, "; mine\n[verandis]\nlanguage = 2\n\n[Other]\nLanguage=9");
    ASSERT_TRUE(WriteProfile("VERANDIS.ini", "Verandis", "Language", "1"));
    ASSERT_TRUE(WriteProfile("Verandis.INI", "Verandis", "LocalPath", "/å"));
    ASSERT_TRUE(WriteProfile("Verandis.INI", "Third", "Key", "x"));
    EXPECT_EQ(Bytes(path),
              "; mine\r\n[verandis]\r\nLanguage=1\r\nLocalPath=/å\r\n\r\n[Other]\r\nLanguage=9\r\n"
              "[Third]\r\nKey=x\r\n");
}

TEST_F(Profile, TellsWhenItCannotBeWritten) {
    PutBytes(Path("config"), "a file where the folder should be");
    EXPECT_FALSE(WriteProfile("Verandis.INI", "Verandis", "Language", "1"));
    EXPECT_EQ(Bytes(Path("config")), "a file where the folder should be");
}

TEST_F(Profile, StandsInTheFirstFolderThatTheEnvironmentNames) {
    ::setenv("HOME", "/home/anna", 1);
    ::setenv("XDG_CONFIG_HOME", "/shared", 1);
    EXPECT_EQ(ConfigFolder(), Path("config"));
    ::unsetenv("VERANDIS_CONFIG_DIR");
    EXPECT_EQ(ConfigFolder(), "/shared/verandis");
    ::setenv("XDG_CONFIG_HOME", "", 1);
    EXPECT_EQ(ConfigFolder(), "/home/anna/.config/verandis");
    ::unsetenv("XDG_CONFIG_HOME");
}

TEST(Regional, AnUninstalledLocaleIsNoEndOfTheProgram) {
    ::setenv("LC_ALL", "xx_NO.where", 1);
    EXPECT_FALSE(MachineWritesDecimalComma());
    ::unsetenv("LC_ALL");
}

TEST_F(Profile, TheLastStepOfTheBarNeverLands) {
    progress.SetMaximum(3);
    progress.SetValue(0);
    IncreaseProgress(1);
    IncreaseProgress(1);
    IncreaseProgress(1);
    EXPECT_EQ(progress.value(), 2);
    IncreaseProgress(5);
    EXPECT_EQ(progress.value(), 2);
}

TEST(Prompts, ShowOneLineFeedForEveryKindOfBreak) {
    EXPECT_EQ(WithLineFeeds("a\rb\r\nc\n\r\rd"), "a\nb\nc\n\n\nd");
}

}  // namespace
}  // namespace verandis
