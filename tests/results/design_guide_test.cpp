#include "results/design_guide.h"

#include <map>
#include <optional>

#include "app/data_root.h"
#include "app/program_text.h"
#include "calc/results.h"
#include "support/session_test.h"

namespace verandis {
namespace {

/// Answers from a script ("y" yes, "n" no) and keeps what was asked and shown.
class ScriptedDesk : public GuideDesk {
public:
    explicit ScriptedDesk(std::string answers) : answers_(std::move(answers)) {}

    void Show(const GuideState& state) override { shown = state; }

    bool Accepts(const std::string& question) override {
        const std::size_t end = question.find("\r\n\r\nCan this be accepted?");
        asked += question.substr(0, end) + "? ";
        if (answers_.empty()) throw std::runtime_error("one question too many");
        const bool yes = answers_.front() == 'y';
        answers_.erase(0, 1);
        return yes;
    }

    /// Results as the table of roads has them.
    std::string Results() const {
        std::string all;
        for (const FigureState& each : shown.figures) {
            EXPECT_EQ(each.judgedLabel, each.judgedResult);
            if (each.result.empty()) continue;
            const std::string symbol = each.result.substr(0, each.result.find(' '));
            const char sign = each.result[symbol.size() + 1];
            EXPECT_EQ(each.result, symbol + " " + sign + " " + symbol + ".dem");
            all += (each.judgedLabel ? "*" : "") + symbol + sign + " ";
        }
        return all;
    }

    bool used() const { return answers_.empty(); }

    GuideState shown;
    std::string asked;

private:
    std::string answers_;
};

class Guide : public testing_support::SessionTest {
protected:
    Guide() {
        session.SimulatorFolder = DeliveredFolder() + "/MWTHARM";
        LoadProgramText();
        runResults.CaseResultCount[kShapeO][2] = 1;
        runResults.CaseResultCount[kShapeI][4] = 1;
        for (std::size_t month = 1; month <= kMonths; ++month) {
            Year()[month] = {15, 15, 100, 1000, 2000, 0, 0};
        }
        // Only the ends of the year are bad, so that a run that leaves one out is seen.
        Year()[12] = {-3.25f, 8, 900, 5000, 7000, 0, 0};
        Year()[1].Tmin = -3;
    }

    static RunResults::Year& Year() { return runResults.MonthResults[2]; }
    static CaseResult& Case() { return runResults.CaseResults[2]; }
};

struct Demands {
    float tmin, tmean, ph, eh, ec;
    const char* verdict = "U";  // before the walk
    std::optional<float> own = std::nullopt;

    CaseResult Record() const { return {tmin, tmean, ph, eh, ec, verdict, 20, own}; }
};

/// What is asked, a letter each in `Road::asked`.
const std::map<char, std::string> kQuestions = {
    {'m', "Tmin < Tmin.demand"},
    {'a', "Tmean < Tmean.demand"},
    {'w', "The glazed space may be too warm in summer."},
    {'c', "Then the glazed space is to be cooled."}};

constexpr auto kRed = Conclusion::Redesign;
constexpr auto kGreen = Conclusion::Accepted;

struct Road {
    const char* fault;
    Demands demands;
    const char* asked;    // letters of the questions
    const char* answers;  // "y" and "n"
    const char* results;  // "*Tmin>": "Tmin > Tmin.dem" on blue
    const char* remedy;   // that is told at the end
    Conclusion conclusion;
    const char* verdict;
};

// The year: Tmin -3.25, Tmean 8, Ph 900, Eh 5000 and Ec 7000 in its worst month. Demands in the
// order Tmin, Tmean, Ph, Eh, Ec.
// clang-format off
const Road kRoads[] = {
    {"all temperatures hold and a warm summer is accepted", {-3.25f, 8, 0, 0, 0},
     "w", "y", "*Tmin> *Tmean> ", "", kGreen, "F"},
    {"no set point: the minimum always passes", {-100, 8, 0, 0, 0},
     "w", "y", "*Tmin> *Tmean> ", "", kGreen, "F"},
    {"the designer's demand goes before the set point", {-100, 8, 0, 0, 0, "U", 5.0f},
     "m", "n", "*Tmin< ", "", kRed, "T"},
    {"the designer's demand may be the milder one", {20, 8, 0, 0, 0, "U", -4.0f},
     "w", "y", "*Tmin> *Tmean> ", "", kGreen, "F"},
    {"too cold and refused: no question on the mean", {5, 9, -1, -1, -1},
     "m", "n", "*Tmin< ", "", kRed, "T"},
    {"too cold, accepted, but too much power", {5, 8, 899, -1, -1},
     "m", "y", "*Tmin< *Ph> ", "Ph <= Ph.demand", kRed, "T"},
    {"too cold, accepted, power exactly at its demand", {5, 8, 900, -1, -1},
     "mw", "yy", "*Tmin< *Tmean> *Ph< ", "", kGreen, "F"},
    {"too cold, accepted, no demand on power: the mean is judged", {5, 9, -1, -1, -1},
     "ma", "yn", "*Tmin< *Tmean< *Ph< ", "", kRed, "T"},
    {"mean too low, accepted, energy at its demand", {-4, 9, 0, 5000, 0},
     "a", "y", "*Tmin> *Tmean< *Eh< ", "", kGreen, "F"},
    {"mean too low, accepted, too much energy", {-4, 9, 0, 4999, 0},
     "a", "y", "*Tmin> *Tmean< Eh> ", "Eh =< Eh.demand", kRed, "T"},
    {"too warm and no cooling: red, but no verdict", {-4, 8, 0, 0, 0},
     "wc", "nn", "*Tmin> *Tmean> ", "", kRed, "U"},
    {"the same leaves an earlier verdict", {-4, 8, 0, 0, 0, "F"},
     "wc", "nn", "*Tmin> *Tmean> ", "", kRed, "F"},
    {"cooling within its demand", {-4, 8, 0, 0, 7000},
     "wc", "ny", "*Tmin> *Tmean> *Ec< ", "", kGreen, "F"},
    {"too much cooling", {-4, 8, 0, 0, 6999, "F"},
     "wc", "ny", "*Tmin> *Tmean> Ec> ", "Ec =< Ec.demand", kRed, "T"},
};
// clang-format on

TEST_F(Guide, WalksEveryRoadToItsVerdict) {
    for (const Road& road : kRoads) {
        SCOPED_TRACE(road.fault);
        Case() = road.demands.Record();
        prompts.shown.clear();
        ScriptedDesk desk(road.answers);
        ASSERT_TRUE(RunGuide(1, desk));
        EXPECT_TRUE(desk.used());
        std::string asked;
        for (const char letter : std::string(road.asked)) asked += kQuestions.at(letter) + "? ";
        EXPECT_EQ(desk.asked, asked);
        EXPECT_EQ(desk.Results(), road.results);
        std::vector<std::string> told;
        if (*road.remedy) told = {std::string("Change the design so that ") + road.remedy};
        EXPECT_EQ(prompts.Texts(), told);
        EXPECT_EQ(desk.shown.conclusion, road.conclusion);
        EXPECT_EQ(desk.shown.Redesign,
                  road.conclusion == kRed ? "Redesign" : "The design is accepted");
        EXPECT_EQ(Case().Verdict, road.verdict);
    }
}

TEST_F(Guide, ListsTheCalculatedCasesInTheOrderOfTheRun) {
    ASSERT_EQ(GuideRows().size(), 2u);
    EXPECT_EQ(GuideRows()[0].caption, "OShape / Case 2");
    EXPECT_EQ(GuideRows()[1].slot, (Slot{kShapeI, 4}));
    ScriptedDesk desk("");
    EXPECT_FALSE(RunGuide(2, desk));
    Case() = Demands{-100, -1, 0, 0, 0}.Record();
    ScriptedDesk answering("y");
    RunGuide(1, answering);
    EXPECT_EQ(answering.shown.Identification, "Case / IShape 4");
    runResults.CaseResultCount = {};
    EXPECT_FALSE(RunGuide(0, desk)) << "cleared while the window stands";
}

TEST_F(Guide, TellsDemandAndWorstMonthWithUnits) {
    session.Decimals = DecimalMode::Comma;
    Case() = Demands{-100, 8, 40000, 2500000, -1, "U", 5.5f}.Record();
    Year()[7].Eh = 61000;
    struct Row {
        GuideFigure figure;
        const char* symbol;
        const char* demand;
        const char* worst;
    };
    const Row rows[] = {{GuideFigure::Tmin, "Tmin", "5,5 °C", "-3,2 °C (Dec)"},
                        {GuideFigure::Ph, "Ph, heating", "40000 W", "900 W (Dec)"},
                        {GuideFigure::Eh, "Eh, heating", "2500 kWh", "61 kWh (Jul)"},
                        {GuideFigure::Ec, "Ec, cooling", "no demand", "7 kWh (Dec)"}};
    for (const Row& row : rows) {
        const FigureWords words = WordsOfFigure(row.figure, 1);
        EXPECT_EQ(words.symbol, row.symbol);
        EXPECT_EQ(words.demand, row.demand) << row.symbol;
        EXPECT_EQ(words.worst, row.worst) << row.symbol;
    }
    EXPECT_EQ(WordsOfFigure(GuideFigure::Tmin, 2).worst, "");
}

}  // namespace
}  // namespace verandis
