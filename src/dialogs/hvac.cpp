#include "dialogs/hvac.h"

#include "app/case_changes.h"
#include "app/program_text.h"
#include "app/session.h"
#include "text/characters.h"
#include "text/numbers.h"

namespace verandis {
namespace {

enum : int {
    kMechanicalText = 7,
    kFlowText = 114,
    kBuildingText = 201,
    kGlazedSpaceText = 203,
    kInfiltrationText = 324,
    kForcedFlowText = 325,
    kNoNumberText = 326,
    kAboveCoolingText = 332,
    kLoadGText = 333,
    kLoadBText = 334,
    kNoForcedFlowText = 363
};
constexpr int kSwedish = 1;

// The boxes in the order of storing; the row of the list is stored in front of its flow.
constexpr ConditionField kBoxes[] = {
    {"HG", "HVACG", "HEATING"},  {"HB", "HVACB", "HEATING"},  {"CG", "HVACG", "COOLING"},
    {"CB", "HVACB", "COOLING"},  {"IG", "HVACG", "INF"},      {"IB", "HVACB", "INF"},
    {"ILG", "HVACG", "INTLOAD"}, {"ILB", "HVACB", "INTLOAD"},
};
constexpr ConditionField kForcedMode = {"CMBFV", "HVAC", "FVI"};
constexpr ConditionField kForcedFlow = {"FVV", "HVAC", "FVV"};

/// A set point, which may be left blank. Texts of the catalogue.
struct SetPoint {
    const char* control;
    double least;  // deg C
    int wrong;
    int outside;
};
constexpr SetPoint kSetPoints[] = {
    {"HG", -50, 326, 327}, {"HB", -50, 328, 329}, {"CG", -10, 330, 331}, {"CB", -10, 335, 336}};
constexpr double kHottest = 50;  // deg C

struct ZoneSetPoints {
    const char* heating;
    const char* cooling;
};
constexpr ZoneSetPoints kZones[] = {{"HG", "CG"}, {"HB", "CB"}};

/// An amount that must be there. Most send the user to another box when they are wrong; that is
/// kept on purpose.
struct Amount {
    const char* control;
    int head;
    const char* focus;
};
constexpr Amount kAmounts[] = {
    {"IG", kInfiltrationText, "IG"}, {"IB", kInfiltrationText, "IB"},
    {"FVV", kForcedFlowText, "CB"},  {"ILG", kLoadGText, "IB"},
    {"ILB", kLoadBText, "IB"},
};

bool IsBlank(const std::string& text) {
    return TrimBlanks(text).empty();
}

bool IsNumber(const std::string& text) {
    return IsNumberText(text, session.Decimals);
}

/// Where the tail begins: behind the name that the catalogue text carries for the heating box.
std::size_t TailStart(std::string_view control) {
    if (control == kForcedFlow.control) return 23;
    return session.Language == kSwedish ? 12 : 7;
}

void Note(ConditionComplaints& found, const std::string& line, const char* focus) {
    found.text += line + "\r";
    found.focus = focus;
}

bool SetPointPasses(const SetPoint& point, const std::string& text, ConditionComplaints& found) {
    if (IsBlank(text)) return true;
    const double value = ToNumber(text);
    const bool isNumber = IsNumber(text);
    if (isNumber && value >= point.least && value <= kHottest) return true;
    Note(found, Text(isNumber ? point.outside : point.wrong), point.control);
    return false;
}

void CheckSetPoints(const ConditionTexts& boxes, ConditionComplaints& found) {
    std::map<std::string, bool, std::less<>> comparable;
    for (const SetPoint& point : kSetPoints) {
        const std::string& text = boxes.at(point.control);
        comparable[point.control] = SetPointPasses(point, text, found) && !IsBlank(text);
    }
    for (const auto& [heating, cooling] : kZones) {
        if (!comparable[heating] || !comparable[cooling]) continue;
        if (ToNumber(boxes.at(heating)) > ToNumber(boxes.at(cooling))) {
            Note(found, Text(kAboveCoolingText), heating);
        }
    }
}

}  // namespace

HvacTexts LoadHvac() {
    session.ElementKindMark = 0;  // conditions are stored without a kind
    HvacTexts texts;
    for (const ConditionField& field : kBoxes) texts.boxes[field.control] = ShownCondition(field);
    texts.boxes[kForcedFlow.control] = ShownCondition(kForcedFlow);
    const int mode = WholeNumber(ToNumber(ShownCondition(kForcedMode)));
    ChooseForcedFlow(texts, mode == 1 || mode == 2 ? mode : 0);
    return texts;
}

std::vector<std::string> ForcedFlowRows() {
    const std::string from =
        (session.Language == kSwedish ? Left(Text(kMechanicalText), 3) : "") + Text(kFlowText);
    const auto row = [&](int source, int target) {
        return from + Text(source) + " -> " + Text(target);
    };
    return {Text(kNoForcedFlowText), row(kGlazedSpaceText, kBuildingText),
            row(kBuildingText, kGlazedSpaceText)};
}

bool ForcedFlowInUse(int row) {
    return row != 0;
}

void ChooseForcedFlow(HvacTexts& texts, int row) {
    texts.CMBFV = row;
    if (!ForcedFlowInUse(row)) texts.boxes[kForcedFlow.control].clear();
}

std::optional<std::string> AmountComplaint(int head, std::size_t tail, bool isNumber,
                                           double value) {
    const std::string name(TrimBlanks(Text(head)));
    if (!isNumber) return name + Mid(Text(kNoNumberText), tail);
    if (value < 0) return name + " < 0 ";
    return std::nullopt;
}

ConditionComplaints CheckHvac(const HvacTexts& texts) {
    ConditionComplaints found;
    CheckSetPoints(texts.boxes, found);
    for (const Amount& amount : kAmounts) {
        const bool isFlow = std::string_view(amount.control) == kForcedFlow.control;
        if (isFlow && !ForcedFlowInUse(texts.CMBFV)) continue;
        const std::string& text = texts.boxes.at(amount.control);
        const auto complaint = AmountComplaint(amount.head, TailStart(amount.control),
                                               !IsBlank(text) && IsNumber(text), ToNumber(text));
        if (complaint) Note(found, *complaint, amount.focus);
    }
    return found;
}

bool StoreHvac(const HvacTexts& texts) {
    const auto store = [](const ConditionField& field, const std::string& text) {
        return StoreCondition(field, std::string(TrimBlanks(text)));
    };
    for (const ConditionField& field : kBoxes) {
        if (!store(field, texts.boxes.at(field.control))) return false;
    }
    if (!store(kForcedMode, std::to_string(texts.CMBFV))) return false;
    if (!store(kForcedFlow, texts.boxes.at(kForcedFlow.control))) return false;
    TellCaseChanged(false);
    return true;
}

}  // namespace verandis
