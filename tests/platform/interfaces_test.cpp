#include <cstdlib>

#include "platform/profile.h"
#include "platform/progress.h"
#include "platform/prompts.h"
#include "support/session_test.h"

namespace verandis {
namespace {

using Profile = testing_support::SessionTest;
using ProgressBar = testing_support::SessionTest;
using testing_support::Bytes;
using testing_support::PutBytes;

TEST_F(Profile, FindsAKeyHoweverItIsWritten) {
    PutBytes(Path("config/Tharm.ini"),
             "; SystemPath=/comment\r\nSystemPath=/outside\n[Other]\nSystemPath=/other\n\n"
             "[ tharm ]\n SYSTEMPATH =  \"/a b/ö\" \nEmpty=\nEquals=a=b;c\nQuote=\"\nPlain='x'\n"
             "SystemPath=/second\n[Tharm]\nLate=1");
    const std::pair<const char*, std::optional<std::string>> rows[] = {
        {"systempath", "/a b/ö"}, {"Empty", ""}, {"Equals", "a=b;c"}, {"Quote", "\""},
        {"Plain", "x"},           {"None", {}},  {"Late", {}}};
    for (const auto& [key, value] : rows) EXPECT_EQ(ReadProfile("Tharm.INI", "THARM", key), value);
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
    ::setenv("VERANDIS_CONFIG_DIR", path.c_str(), 1);  // a file where the folder should be
    EXPECT_FALSE(WriteProfile("Verandis.INI", "Verandis", "Language", "1"));
}

TEST_F(Profile, StandsInTheFirstFolderThatTheEnvironmentNames) {
    ::setenv("XDG_CONFIG_HOME", "/shared", 1);
    EXPECT_EQ(ConfigFolder(), Path("config"));
    ::unsetenv("VERANDIS_CONFIG_DIR");
    EXPECT_EQ(ConfigFolder(), "/shared/verandis");
    ::unsetenv("XDG_CONFIG_HOME");
    EXPECT_EQ(ConfigFolder(), HomeFolder() + "/.config/verandis");
}

TEST_F(ProgressBar, NeverLandsOnItsLastStep) {
    progress.SetMaximum(3);
    for (int step = 0; step < 3; ++step) IncreaseProgress(1);
    EXPECT_EQ(progress.value(), 2);
    IncreaseProgress(5);
    EXPECT_EQ(progress.value(), 2);
}

TEST(Prompts, ShowOneLineFeedForEveryKindOfBreak) {
    EXPECT_EQ(WithLineFeeds("a\rb\r\nc\n\r\rd"), "a\nb\nc\n\n\nd");
}

}  // namespace
}  // namespace verandis
