#include "cli/commands.h"

#include <gtest/gtest.h>

#include <cmath>
#include <sstream>

#include "platform/run_and_wait.h"
#include "support/session_test.h"
#include "text/numbers.h"

// The whole program behind its arguments, on a data root made from the delivered data.

namespace verandis {
namespace {

using testing_support::Bytes;
using testing_support::OnDisk;
using testing_support::PutBytes;
using testing_support::TreeOf;
using Words = std::vector<std::string>;

/// The numbers of each line of a text, wherever they stand in it.
std::vector<std::vector<double>> NumberLines(const std::string& text) {
    std::vector<std::vector<double>> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        auto& numbers = lines.emplace_back();
        for (std::string_view rest = line; !rest.empty();) {
            const std::size_t before = rest.size();
            if (rest.find_first_of("-0123456789") == 0) numbers.push_back(TakeNumber(rest));
            if (rest.size() == before) rest.remove_prefix(1);
        }
    }
    return lines;
}

class Cli : public testing_support::DeliveredRootTest {
protected:
    /// Exit code; what is written goes to `out` and `err`.
    int Run(const Words& words) {
        std::ostringstream outStream;
        std::ostringstream errStream;
        const int code = RunCli(words, outStream, errStream);
        out = outStream.str();
        err = errStream.str();
        EXPECT_EQ(&CurrentPrompts(), &prompts) << "messages still go to streams that are gone";
        EXPECT_EQ(&CurrentProgress(), &progress);
        return code;
    }

    std::string out;
    std::string err;
};

TEST_F(Cli, WrongUseIsOneAndWhatCannotBeDoneIsTwo) {
    PutBytes(Path("file"), "x");
    ASSERT_EQ(Run({"start"}), 0);
    const std::tuple<Words, int, const char*> rows[] = {
        {{}, 1, "a command is missing"},
        {{"frob"}, 1, "there is no command frob"},
        {{"slots", "--frob"}, 1, "there is no option --frob"},
        {{"slots", "--lang", "3"}, 1, "--lang"},
        {{"slots", "--system"}, 1, "--system"},
        {{"set", "U1", "A", "B", "C", "--kind", "-1"}, 1, "--kind"},
        {{"get", "U1", "CASE"}, 1, "get SLOT SECTION KEY"},
        {{"run", "yearly", "U1"}, 1, "yearly"},
        {{"run", "steady", "U1", "U2", "U3", "U4", "O1"}, 1, "[Calculation] At most four cases"},
        {{"run", "dynamic", "U1"}, 2, "[Calculation] The dynamic calculation is not installed"},
        {{"run", "steady", "U1", "--csv", Path("file/below.csv")},
         2,
         "below.csv cannot be written"},
        {{"set", "U1", "CASE", "NOTE", "a\nb"}, 1, "no line may end"},
        {{"init", root}, 2, "holds the data already"},
        {{"slots", "--system", Path("none")}, 2, "There is no data root in"}};
    for (const auto& [words, code, told] : rows) {
        EXPECT_EQ(Run(words), code) << told;
        EXPECT_NE(err.find(told), std::string::npos) << err;
    }
    for (const char* later :
         {"generate", "prepare", "chain", "export"}) {
        EXPECT_EQ(Run({later, "U1"}), 2);
        EXPECT_EQ(err, "[Verandis] The command " + std::string(later) + " is not there yet\n");
    }
    for (const char* label : {"X1", "U5", "U", ""}) EXPECT_EQ(Run({"explain", label}), 1) << label;
    ::setenv("VERANDIS_CONFIG_DIR", Path("nowhere").c_str(), 1);
    EXPECT_EQ(Run({"slots"}), 2) << "no settings and no --system";
}

TEST_F(Cli, InitMakesARootThatStartsTheSameTwice) {
    ::setenv("VERANDIS_CONFIG_DIR", Path("fresh").c_str(), 1);
    ASSERT_EQ(Run({"init", Path("New"), "--lang", "1"}), 0);
    ASSERT_EQ(Run({"start"}), 0) << "the first root must be the one of the settings";
    const auto once = TreeOf(Path("New"));
    ASSERT_EQ(Run({"run", "steady", "V2", "o3"}), 0);
    ASSERT_EQ(Run({"--system", Path("New"), "start"}), 0);
    EXPECT_TRUE(TreeOf(Path("New")) == once);
    ASSERT_EQ(Run({"slots", "--lang=1"}), 0);
    EXPECT_EQ(NumberLines(out).size(), 16u);
    EXPECT_NE(out.find("\nO1\tO-form\toshape1\t"), std::string::npos) << out;
}

TEST_F(Cli, SetStoresWhatGetReadsWithOptionsAnywhere) {
    ASSERT_EQ(Run({"start"}), 0);
    EXPECT_EQ(Run({"set", "v1", "HVACG", "HEATING", "-5", "--system", root}), 0) << err;
    EXPECT_EQ(Run({"get", "--system", root, "V1", "hvacg", "heating"}), 0);
    EXPECT_EQ(out, "-5\n");
    EXPECT_EQ(Run({"set", "V1", "CASE", "NOTE", "--", "--5 å"}), 0) << err;
    EXPECT_NE(Bytes(project + "/VShape1/SimpPropertiesOfCase.Dat").find("CASE_NOTE\t--5 \xE5\r\n"),
              std::string::npos);
    EXPECT_EQ(Run({"set", "V1", "XV206", "GLAZEDID", "Any", "--kind", "2"}), 0);
    Run({"get", "V1", "XV206-S", "GLAZEDID"});
    EXPECT_EQ(out, "Any, 2\n");
    EXPECT_EQ(Run({"set", "V1", "XV206", "GLAZEDID", "Any"}), 0);
    Run({"get", "V1", "XV206-S", "GLAZEDID"});
    EXPECT_EQ(out, "Any\n") << "the kind of the command before stayed";
    Run({"get", "V1", "NO", "SUCH"});
    EXPECT_EQ(out, "-999999\n");
}

// The result file, the table, both data files and the explanation must tell the same months.
TEST_F(Cli, AllFormsOfAResultAgree) {
    ASSERT_EQ(Run({"start"}), 0);
    ASSERT_EQ(Run({"run", "steady", "I3", "U3", "--json", Path("r.json"), "--csv", Path("r.csv")}),
              0);
    const auto table = NumberLines(out);
    const auto csv = NumberLines(Bytes(Path("r.csv")));    // a heading, then U3 and I3
    const auto json = NumberLines(Bytes(Path("r.json")));  // braces and a heading around each case
    const auto file = NumberLines(Bytes(project + "/IShape3/SimpResults.Dat"));
    ASSERT_EQ(Run({"explain", "I3"}), 0);
    const auto terms = NumberLines(out);
    ASSERT_EQ(csv.size(), 25u);
    ASSERT_EQ(json.size(), 30u);
    ASSERT_EQ(file.size(), 90u);
    ASSERT_EQ(terms.size(), 22u);
    for (const char* name :
         {"UAGlazing", "\nUAWalls", "\nVolumeG", "\nVolumeB", "\nAirChangeG", "\nAirChangeB",
          "\nGroundResistance", "\nSetPointG", "\nTempB", "\nSunPanelFactor"}) {
        EXPECT_NE(out.find(name + std::string("\t")), std::string::npos) << name;
    }
    for (std::size_t month = 1; month <= 12; ++month) {
        ASSERT_EQ(table.at(1 + month).size(), 6u);
        ASSERT_EQ(terms[9 + month].size(), 5u);
        EXPECT_EQ(json[15 + month][0], double(month));
        const std::size_t lines[] = {4 + 7 * month, 7 * month - 2, 7 * month};
        const double rounding[] = {0.05001, 0.05001, 0.5001};
        for (std::size_t at = 0; at < 3; ++at) {
            const double figure = file[lines[at]].at(0);
            EXPECT_EQ(csv[12 + month].at(csv[12 + month].size() - 3 + at), figure);
            EXPECT_EQ(json[15 + month].at(1 + at), figure);
            EXPECT_NEAR(terms[9 + month][1 + at], figure, 1e-6 * std::abs(figure));
            EXPECT_NEAR(table[1 + month][3 + at], figure, rounding[at]);
        }
    }
}

TEST_F(Cli, RunErrorIsTwoAndNamesTheCase) {
    ASSERT_EQ(Run({"start"}), 0);
    Run({"set", "O2", "CLIMATE", "FILE", "NOWHERE"});
    for (const Words& words : {Words{"run", "steady", "U1", "O2"}, Words{"explain", "O2"}}) {
        EXPECT_EQ(Run(words), 2);
        EXPECT_TRUE(err.starts_with("[Verandis] Run-time error: Case oshape2: ")) << err;
        EXPECT_EQ(out, "");
    }
    Run({"set", "U2", "XU201", "GLAZEDID", "Unheard"});
    EXPECT_EQ(Run({"explain", "U2"}), 0) << "an unknown name is told and the run goes on";
    EXPECT_TRUE(err.starts_with("[Verandis]  Glazing not found,default used Unheard\n")) << err;
}

TEST_F(Cli, SavedSetsComeBackOnlyAfterAYes) {
    ASSERT_EQ(Run({"start"}), 0);
    ASSERT_EQ(Run({"set", "U2", "DIMENSION", "WIDTHB", " 31"}), 0);
    EXPECT_EQ(Run({"save", "two words", "U2"}), 1);
    EXPECT_EQ(Run({"save", "Plan", "u2", "V1"}), 0);
    EXPECT_EQ(Run({"sets"}), 0);
    EXPECT_EQ(out, "Plan!U2.CAS\tPlan\tU2\nPlan!V1.CAS\tPlan\tV1\n");
    ASSERT_EQ(Run({"start"}), 0);
    EXPECT_EQ(Run({"load", "Plan!U2.CAS"}), 2);
    EXPECT_EQ(Run({"load", "../Plan!U2.CAS", "--yes"}), 2);
    EXPECT_EQ(Run({"get", "U2", "DIMENSION", "WIDTHB"}), 0);
    EXPECT_NE(out, " 31\n");
    EXPECT_EQ(Run({"load", "Plan!U2.CAS", "--yes"}), 0);
    EXPECT_EQ(Run({"get", "U2", "DIMENSION", "WIDTHB"}), 0);
    EXPECT_EQ(out, " 31\n");
}

TEST_F(Cli, AReportEndsWithWhatDiffersWhenAsked) {
    ASSERT_EQ(Run({"start"}), 0);
    ASSERT_EQ(Run({"report", "U1", "U2", "--differs"}), 0);
    EXPECT_NE(out.find("Input\tU1\tU2\n"), std::string::npos);
    EXPECT_EQ(Bytes(root + "/PROJECT/verandis/Slask.Res").substr(0, 14), "Utskrift gjord");
    EXPECT_EQ(Run({"report", "U1", "U2", "U3", "U4", "O1"}), 1);
}

TEST_F(Cli, APdfReportIsDrawnByTheProgramWithTheWindows) {
    if (CompanionProgram("verandis") == "verandis") GTEST_SKIP() << "built without windows";
    ASSERT_EQ(Run({"start"}), 0);
    ASSERT_EQ(Run({"report", "--pdf", Path("out.pdf"), "U1", "o3"}), 0) << err;
    EXPECT_TRUE(Bytes(Path("out.pdf")).starts_with("%PDF"));
    EXPECT_EQ(Run({"report", "--pdf", Path("nowhere/out.pdf"), "U1"}), 2);
}

}  // namespace
}  // namespace verandis
