#include "results/design_guide.h"

#include <algorithm>

#include "app/program_text.h"
#include "calc/results.h"
#include "platform/prompts.h"
#include "text/numbers.h"

namespace verandis {
namespace {

/// Catalogue texts of the guide.
enum : int {
    kCaseWord = 196,
    kChangeSoThat = 243,
    kCanBeAccepted = 248,
    kRedesignText = 250,
    kTooWarmText = 251,
    kAcceptedText = 256,
    kToBeCooledText = 257,
    kJanuary = 401,
    kNoDemandText = 652,
    kHeatingWord = 655,
    kCoolingWord = 656
};

constexpr float kNoDemand = -1;
constexpr float kNoSetPoint = -100;

/// What tells the figures apart.
struct Figure {
    const char* symbol;
    int label;       // catalogue text; both energies share one
    int remark;      // catalogue text that tells power and energies apart, 0 for none
    bool leastWins;  // the demand is the least that is allowed, else the largest
    float MonthResult::*value;
    float CaseResult::*demand;
    const char* remedy;  // behind the message's text; the two wordings differ on purpose
    const char* unit;
    float perUnit;  // of the tables in one shown unit
    int decimals;
};

// In the order of GuideFigure.
constexpr std::array<Figure, kGuideFigureCount> kFigures = {{
    {"Tmin", 260, 0, true, &MonthResult::Tmin, &CaseResult::SetPointG, "", "°C", 1, 1},
    {"Tmean", 261, 0, true, &MonthResult::Tmean, &CaseResult::TdgMean, "", "°C", 1, 1},
    {"Ph", 263, kHeatingWord, false, &MonthResult::Ph, &CaseResult::PowerDemandMax,
     " Ph <= Ph.demand", "W", 1, 0},
    {"Eh", 262, kHeatingWord, false, &MonthResult::Eh, &CaseResult::HeatEnergyMax,
     " Eh =< Eh.demand", "kWh", 1000, 0},
    {"Ec", 262, kCoolingWord, false, &MonthResult::Ec, &CaseResult::CoolEnergyMax,
     " Ec =< Ec.demand", "kWh", 1000, 0},
}};

const Figure& FactsOf(GuideFigure figure) {
    return kFigures[static_cast<std::size_t>(figure)];
}

/// One calculated case: its months, demands and verdict.
class Judge {
public:
    explicit Judge(std::size_t row)
        : year_(runResults.MonthResults[row + 1]), case_(runResults.CaseResults[row + 1]) {}

    float Demand(GuideFigure figure) const {
        if (figure == GuideFigure::Tmin && case_.TdgMin) return *case_.TdgMin;
        return case_.*FactsOf(figure).demand;
    }

    bool HasDemand(GuideFigure figure) const {
        return Demand(figure) != (figure == GuideFigure::Tmin ? kNoSetPoint : kNoDemand);
    }

    /// A month exactly at the demand passes.
    bool Passes(GuideFigure figure) const {
        if (!HasDemand(figure)) return true;
        const float worst = Value(figure, WorstMonth(figure));
        return FactsOf(figure).leastWins ? worst >= Demand(figure) : worst <= Demand(figure);
    }

    /// The first of the months that are furthest on the bad side.
    std::size_t WorstMonth(GuideFigure figure) const {
        std::size_t worst = 1;
        for (std::size_t month = 2; month <= kMonths; ++month) {
            const float step = Value(figure, month) - Value(figure, worst);
            if (FactsOf(figure).leastWins ? step < 0 : step > 0) worst = month;
        }
        return worst;
    }

    float Value(GuideFigure figure, std::size_t month) const {
        return year_[month].*FactsOf(figure).value;
    }

    void SetVerdict(const char* verdict) { case_.Verdict = verdict; }

private:
    const RunResults::Year& year_;
    CaseResult& case_;
};

/// One walk of the guide.
class Walk {
public:
    Walk(const GuideRow& row, Judge judge, GuideDesk& desk) : judge_(judge), desk_(desk) {
        const Slot& slot = row.slot;
        state_.Identification = Text(kCaseWord) + " / " + std::string(WordsOf(slot.shape).folder) +
                                " " + std::to_string(slot.caseNo);
        desk_.Show(state_);
    }

    void Run() {
        if (MinimumCallsForRedesign()) return;
        Blue(GuideFigure::Tmean);
        if (Compare(GuideFigure::Tmean)) {
            JudgeSummer();
        } else if (AcceptsFailed(GuideFigure::Tmean)) {
            JudgeEnergy(GuideFigure::Eh);
        } else {
            Conclude(Conclusion::Redesign);
        }
    }

private:
    bool MinimumCallsForRedesign() {
        Blue(GuideFigure::Tmin);
        if (Compare(GuideFigure::Tmin)) return false;
        if (!AcceptsFailed(GuideFigure::Tmin)) {
            Conclude(Conclusion::Redesign);
            return true;
        }
        Blue(GuideFigure::Ph);
        if (Compare(GuideFigure::Ph)) return false;
        DemandRedesign(GuideFigure::Ph);
        return true;
    }

    void JudgeSummer() {
        if (Accepts(Text(kTooWarmText))) return Conclude(Conclusion::Accepted);
        if (Accepts(Text(kToBeCooledText))) return JudgeEnergy(GuideFigure::Ec);
        ShowConclusion(Conclusion::Redesign);  // and the verdict stays as it was, on purpose
    }

    /// An energy above its demand is not marked blue, on purpose.
    void JudgeEnergy(GuideFigure figure) {
        if (!Compare(figure)) return DemandRedesign(figure);
        Blue(figure);
        Conclude(Conclusion::Accepted);
    }

    FigureState& StateOf(GuideFigure figure) {
        return state_.figures[static_cast<std::size_t>(figure)];
    }

    void Blue(GuideFigure figure) {
        StateOf(figure).judgedLabel = StateOf(figure).judgedResult = true;
    }

    bool Compare(GuideFigure figure) {
        const Figure& facts = FactsOf(figure);
        const bool passes = judge_.Passes(figure);
        const char* sign = passes == facts.leastWins ? " > " : " < ";
        StateOf(figure).result = std::string(facts.symbol) + sign + facts.symbol + ".dem";
        return passes;
    }

    bool AcceptsFailed(GuideFigure figure) {
        const std::string symbol = FactsOf(figure).symbol;
        return Accepts(symbol + " < " + symbol + ".demand");
    }

    bool Accepts(const std::string& what) {
        desk_.Show(state_);
        return desk_.Accepts(what + "\r\n\r\n" + Text(kCanBeAccepted));
    }

    void DemandRedesign(GuideFigure figure) {
        desk_.Show(state_);
        ShowMessage(Text(kChangeSoThat) + FactsOf(figure).remedy, kGuideCaption, Icon::Information);
        Conclude(Conclusion::Redesign);
    }

    void Conclude(Conclusion conclusion) {
        judge_.SetVerdict(conclusion == Conclusion::Redesign ? "T" : "F");
        ShowConclusion(conclusion);
    }

    void ShowConclusion(Conclusion conclusion) {
        state_.conclusion = conclusion;
        state_.Redesign =
            conclusion == Conclusion::Redesign ? Text(kRedesignText) : TextFor(kAcceptedText, 1);
        desk_.Show(state_);
    }

    GuideState state_;
    Judge judge_;
    GuideDesk& desk_;
};

std::string ShownNumber(float value, const Figure& facts) {
    const std::string number = FixedText(double(value / facts.perUnit), facts.decimals);
    return PointToDecimal(number, session.Decimals) + " " + facts.unit;
}

}  // namespace

std::vector<GuideRow> GuideRows() {
    std::vector<GuideRow> rows;
    for (const Slot& slot : AllSlots()) {
        const auto shape = static_cast<std::size_t>(slot.shape);
        if (runResults.CaseResultCount[shape][static_cast<std::size_t>(slot.caseNo)] <= 0) continue;
        if (rows.size() == kMostMarkedCases) break;
        rows.push_back({slot, std::string(WordsOf(slot.shape).folder) + " / " + Text(kCaseWord) +
                                  " " + std::to_string(slot.caseNo)});
    }
    return rows;
}

bool RunGuide(std::size_t row, GuideDesk& desk) {
    const auto rows = GuideRows();
    if (row >= rows.size()) return false;
    Walk(rows[row], Judge(row), desk).Run();
    return true;
}

FigureWords WordsOfFigure(GuideFigure figure, std::size_t row) {
    const Figure& facts = FactsOf(figure);
    FigureWords words;
    words.label = TextFor(facts.label, 1);
    words.symbol = facts.symbol;
    if (facts.remark != 0) words.symbol += ", " + Text(facts.remark);
    if (row >= GuideRows().size()) return words;
    const Judge judge(row);
    words.demand =
        judge.HasDemand(figure) ? ShownNumber(judge.Demand(figure), facts) : Text(kNoDemandText);
    const std::size_t month = judge.WorstMonth(figure);
    words.worst = ShownNumber(judge.Value(figure, month), facts) + " (" +
                  Text(kJanuary - 1 + static_cast<int>(month)) + ")";
    return words;
}

GuideSheet SheetOfRow(std::size_t row) {
    GuideSheet sheet;
    for (std::size_t figure = 0; figure < kGuideFigureCount; ++figure) {
        sheet.figures[figure] = WordsOfFigure(static_cast<GuideFigure>(figure), row);
    }
    const auto rows = GuideRows();
    if (row >= rows.size()) return sheet;
    const Slot& slot = rows[row].slot;
    sheet.climate = runResults.SlotClimateLabels[static_cast<std::size_t>(slot.shape)]
                                                [static_cast<std::size_t>(slot.caseNo)];
    return sheet;
}

}  // namespace verandis
