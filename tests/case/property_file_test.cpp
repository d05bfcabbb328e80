#include "case/property_file.h"

#include <filesystem>

#include "app/session.h"
#include "support/session_test.h"

namespace verandis {
namespace {

using testing_support::Bytes;
using testing_support::Dos;
using testing_support::OnDisk;
using testing_support::PutBytes;

class PropertyFile : public testing_support::SessionTest {
protected:
    PropertyFile() { session.CaseFolder = Path("project/ushape1"); }

    /// Lines ended by LF here, by CR LF on disk.
    void Holds(const std::string& lines) { PutBytes(file, Dos(lines)); }

    static std::string Get(const char* section, const char* key) {
        std::string value = "untouched";
        GetCaseProperty(section, key, value);
        return value;
    }

    const std::string file = Path("project/UShape1/SimpPropertiesOfCase.dat");
};

TEST_F(PropertyFile, AReadTakesTheFirstLineThatHoldsBothWordsAnywhere) {
    Holds(
        "DIMENSION_WIDTHB\t 24\nDIMENSION_WIDTH\t 99\nHVACG_INFO\thow HVACB_INF came about\n"
        "HVACB_INF\t 0.7\n   CLIMATE_FILE\t\nXU204-W_GLAZEDID\tLowE-3, 2  \n"
        "V\xC4GG_FILTER\t\tF\xE4lt\t2\nNOTAB of a line\nCASE_NOTE\tall but TILT");
    struct Row {
        const char *section, *key, *value, *fault;
    };
    const Row rows[] = {
        {"DIMENSION", "WIDTHB", " 24", "the blank of a number belongs to the value"},
        {"DIMENSION", "WIDTH", " 24", "a key that is part of another takes the earlier line"},
        {"hvacb", "inf", "how HVACB_INF came about", "words match inside a value, without case"},
        {"GLAZEDID", "XU204", "LowE-3, 2", "a short id finds the long one; blanks at the end go"},
        {"XU204-E", "GLAZEDID", "-999999", "a long id does not find another side"},
        {"CLIMATE", "FILE", "", "a TAB with nothing behind it is an empty value"},
        {"vägg", "filter", "\tFält\t2", "letters of the code page; only the first TAB parts"},
        {"NOTAB", "line", "", "a line without a TAB has no value"},
        {"CASE", "TILT", "all but TILT", "the last line needs no end"},
        {"HVACB", "24", "-999999", "words on two lines are no match"}};
    for (const Row& row : rows) EXPECT_EQ(Get(row.section, row.key), row.value) << row.fault;
    EXPECT_TRUE(prompts.shown.empty());
}

TEST_F(PropertyFile, OnlyAReadOfAMissingFileIsTold) {
    EXPECT_EQ(Get("CASE", "NOTE"), "untouched");
    EXPECT_EQ(Get("CASE", "NOTE"), "untouched");
    EXPECT_FALSE(SetCaseProperty("CASE", "NOTE", "x"));
    EXPECT_FALSE(OnDisk(Path("project")));
    Holds("");
    EXPECT_EQ(Get("CASE", "NOTE"), "-999999");
    EXPECT_EQ(prompts.Texts(), std::vector<std::string>(2, "No File exist")) << "at each read";
}

TEST_F(PropertyFile, AWriteChangesOneValueAndNothingElse) {
    Holds(
        "xu204-W_GlazedID\told\n  B_ROW\t 1  \nA_ROW\t\n\tC_ROW\t3\nNO_TAB\n"
        "XU204-W_GLAZEDID\tsecond\n");
    EXPECT_TRUE(SetCaseProperty("XU204", "GLAZEDID", "Klarglas å"));
    EXPECT_TRUE(SetCaseProperty("A", "ROW", ""));
    EXPECT_TRUE(SetCaseProperty("NO", "TAB", " 5 "));
    EXPECT_TRUE(SetCaseProperty("XU205", "GLAZEDID", "short"));
    EXPECT_EQ(Bytes(file), Dos("xu204-W_GlazedID\tKlarglas \xE5\nB_ROW\t 1\nA_ROW\t\n\tC_ROW\t3\n"
                               "NO_TAB\t 5\nXU204-W_GLAZEDID\tsecond\nXU205_GLAZEDID\tshort\n"));
    EXPECT_EQ(Get("XU205-E", "GLAZEDID"), "-999999") << "what a short id appended stays short";
}

TEST_F(PropertyFile, TheKindGoesBehindTheValueWhileItIsMarked) {
    Holds("XV206-S_GLAZEDID\tplain\n");
    const std::pair<std::int16_t, std::string> rows[] = {
        {1, "Name, 1"}, {2, "Name, 2"}, {0, "Name"}, {-1, "Name"}};
    for (const auto& [mark, stored] : rows) {
        session.ElementKindMark = mark;
        ASSERT_TRUE(SetCaseProperty("XV206", "GLAZEDID", "Name"));
        EXPECT_EQ(Bytes(file), "XV206-S_GLAZEDID\t" + stored + "\r\n");
    }
    const std::pair<const char*, std::pair<const char*, int>> parts[] = {{" A b ,1", {" A b ", 1}},
                                                                         {"Name", {"Name", 0}},
                                                                         {"Name,", {"Name", 0}},
                                                                         {"a, b, 2", {"a", 0}}};
    for (const auto& [value, expected] : parts) {
        EXPECT_EQ(SplitKind(value).name, expected.first);
        EXPECT_EQ(SplitKind(value).kind, expected.second) << value;
    }
    EXPECT_TRUE(SplitKind("Name,").hasKind && !SplitKind("Name").hasKind);
}

TEST_F(PropertyFile, StagedRowsHideTheFileAndAreMatchedExactly) {
    Holds("XU101-W_WALLTYPE\tfile\n");
    StageCaseProperty("XU101-W", "WALLTYPE", "one");
    StageCaseProperty("XU101-W", "PCNTW", " 10");
    StageCaseProperty("XU101-W", "WALLTYPE", "two");
    EXPECT_EQ(session.CasePropertyTable.size(), 2u);
    EXPECT_EQ(Get("XU101-W", "WALLTYPE"), "two");
    EXPECT_EQ(Get("xu101-w", "WALLTYPE"), "file");
    EXPECT_EQ(Get("XU101", "WALLTYPE"), "file") << "no part of a name";
    session.CasePropertyTable.push_back({"XU101-W", "WALLTYPE", "last"});
    EXPECT_EQ(Get("XU101-W", "WALLTYPE"), "last");
    FlushStagedProperties();
    EXPECT_TRUE(session.CasePropertyTable.empty());
    EXPECT_EQ(Bytes(file), "XU101-W_WALLTYPE\tlast\r\nXU101-W_PCNTW\t 10\r\n");
}

TEST_F(PropertyFile, AFileThatCannotBeWrittenIsTold) {
    std::filesystem::create_directories(Path("project/UShape1"));
    std::filesystem::create_symlink("/proc/version", file);  // can be read, by nobody written
    EXPECT_FALSE(SetCaseProperty("CASE", "NOTE", "lost"));
    ASSERT_EQ(prompts.shown.size(), 1u);
    EXPECT_NE(prompts.shown[0].text.find(PropertyFilePath()), std::string::npos);
}

}  // namespace
}  // namespace verandis
