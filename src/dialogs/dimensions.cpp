#include "dialogs/dimensions.h"

#include <algorithm>
#include <cmath>

#include "app/case_changes.h"
#include "app/program_text.h"
#include "app/run_stop.h"
#include "case/property_file.h"
#include "platform/files.h"
#include "text/characters.h"
#include "text/numbers.h"

namespace verandis {
namespace {

enum : int {
    kMustBeText = 161,
    kNoNumberText = 222,
    kOutsideText = 223,
    kBuildingWidth = 800,
    kSpaceWidth,
    kBuildingDepth,
    kSpaceDepth,
    kBuildingHeight,
    kRoofTilt
};
static_assert(kRoofTilt == DimensionField::kRoofTiltText);

constexpr double kDegreesPerRadian = 180 / 3.14159265358979;

constexpr DimensionRule Above(double bound, const char* suffix) {
    return {.least = bound, .leastAllowed = false, .suffix = suffix};
}
constexpr DimensionRule kAnyNumber = {};
constexpr DimensionRule kNotBelow0 = {.least = 0};
constexpr DimensionRule kFrom0To60 = {.least = 0, .most = 60};
// Users know the messages by their endings, the parenthesis that never closes included.
constexpr DimensionRule kAbove0 = Above(0, " : (>0)");
constexpr DimensionRule kAbove1 = Above(1, " : (>1");
constexpr DimensionRule kAbove2 = Above(2, " : (>2");
constexpr DimensionRule kAbove2V = Above(2, " : (>02");

// Text5 holds tilt and height in one order in U, in the other in O.
constexpr DimensionField kFieldsU[] = {
    {'a', "Text1", "WIDTHB", "20", kAbove0, kBuildingWidth},
    {'c', "Text2", "WIDTHG", "10", kAbove0, kSpaceWidth},
    {'b', "Text3", "DEPTHB", "21", kAbove0, kBuildingDepth},
    {'d', "Text4", "DEPTHG", "10", kAbove1, kSpaceDepth},
    {'e', "Text5_1", "HIGTHB", "9", kAbove0, kBuildingHeight},
    {'f', "Text5_0", "TILT", "30", kFrom0To60, kRoofTilt},
};
constexpr DimensionField kFieldsO[] = {
    {'a', "Text1", "WIDTHB", "20", kAbove0, kBuildingWidth},
    {'c', "Text2", "WIDTHG", "10", kAbove0, kSpaceWidth},
    {'b', "Text3", "DEPTHB", "21", kAbove0, kBuildingDepth},
    {'d', "Text4", "DEPTHG", "10", kAbove0, kSpaceDepth},
    {'e', "Text5_0", "HIGTHB", "9", kAbove0, kBuildingHeight},
    {'f', "Text5_1", "TILT", "30", kFrom0To60, kRoofTilt},
};
constexpr DimensionField kFieldsV[] = {
    {'a', "Text1", "WIDTHB", "20", kAbove2V, kBuildingWidth},
    // An offset out of bounds sends the focus to a, on purpose.
    {'c', "Text2", "OFFD", "5", kAbove1, kSpaceDepth, 'a'},
    {'b', "Text3", "DEPTHB", "21", kAnyNumber, kBuildingDepth},
    {'d', "Text4", "HIGTHB", "10", kAbove0, kBuildingHeight},
    {'e', "Text5_1", "TILT", "30", kNotBelow0, kRoofTilt},
};
constexpr DimensionField kFieldsI[] = {
    {'a', "Text1", "WIDTHB", "20", kAbove0, kBuildingWidth},
    {'c', "Text2", "WIDTHG", "10", kAbove0, kSpaceWidth},
    {'b', "Text3", "DEPTHB", "21", kAbove2, kBuildingDepth},
    {'d', "Text5_1", "HIGTHB", "10", kAbove0, kBuildingHeight},
    {'e', "Text5_0", "TILT", "30", kFrom0To60, kRoofTilt},
};

constexpr StoredDimension kStoredUO[] = {{"WIDTHB", 'a'}, {"DEPTHB", 'b'}, {"HIGTHB", 'e'},
                                         {"WIDTHG", 'c'}, {"DEPTHG", 'd'}, {"TILT", 'f'}};
constexpr StoredDimension kStoredV[] = {
    {"WIDTHB", 'a'}, {"DEPTHB", 'b'}, {"HIGTHB", 'd'}, {"OFFD", 'c'}, {"TILT", 'e'}};
// The glazed street is as deep as the building.
constexpr StoredDimension kStoredI[] = {{"WIDTHB", 'a'}, {"DEPTHB", 'b'}, {"HIGTHB", 'd'},
                                        {"DEPTHG", 'b'}, {"WIDTHG", 'c'}, {"TILT", 'e'}};

constexpr DimensionComparison kComparisonsUO[] = {
    {'a', 'c', 'a'}, {'b', 'd', 'b'}, {'e', '0', 'e'}};
constexpr DimensionComparison kComparisonsV[] = {{'b', 'c', 'a'}};
constexpr DimensionComparison kComparisonsI[] = {{'a', 'c', 'a'}};

constexpr DimensionDialog kDialogs[kShapeCount] = {
    {kShapeU, 12133, kFieldsU, kStoredUO, kComparisonsUO, false},
    {kShapeO, 12134, kFieldsO, kStoredUO, kComparisonsUO, false},
    {kShapeV, 12135, kFieldsV, kStoredV, kComparisonsV, true},
    {kShapeI, 12160, kFieldsI, kStoredI, kComparisonsI, false},
};

/// The number in the field of a letter; "0" stands for 0.
double NumberOf(const DimensionDialog& dialog, const DimensionTexts& texts, char letter) {
    return letter == '0' ? 0.0 : ToNumber(texts[dialog.IndexOf(letter)]);
}

double NumberOfKey(const DimensionDialog& dialog, const DimensionTexts& texts,
                   std::string_view key) {
    const auto field = std::find_if(dialog.fields.begin(), dialog.fields.end(),
                                    [&](const DimensionField& each) { return each.key == key; });
    return ToNumber(texts[static_cast<std::size_t>(field - dialog.fields.begin())]);
}

std::string Line(char letter, int text, const char* suffix = "") {
    return std::string(1, letter) + " - " + LowerCase(Text(text)) + suffix + "\r";
}

DimensionComplaints CheckFields(const DimensionDialog& dialog, const DimensionTexts& texts) {
    DimensionComplaints found;
    for (std::size_t at = 0; at < dialog.fields.size(); ++at) {
        const DimensionField& field = dialog.fields[at];
        if (!IsNumberText(texts[at], session.Decimals)) {
            found.text += Line(field.letter, kNoNumberText);
            found.focus = field.letter;
        } else if (!field.rule.Holds(ToNumber(texts[at]))) {
            found.text += Line(field.letter, kOutsideText, field.rule.suffix);
            found.focus = field.focusOutside ? field.focusOutside : field.letter;
        } else {
            continue;
        }
        found.selected += field.letter;
    }
    return found;
}

DimensionComplaints CompareFields(const DimensionDialog& dialog, const DimensionTexts& texts) {
    DimensionComplaints found;
    for (const DimensionComparison& each : dialog.comparisons) {
        if (NumberOf(dialog, texts, each.left) > NumberOf(dialog, texts, each.right)) continue;
        found.text += std::string(1, each.left) + " " + Text(kMustBeText) + " > " +
                      std::string(1, each.right) + "\r";
        found.focus = each.focus;
    }
    const auto limit = TiltLimit(dialog, texts);
    // The line says that the tilt is no number, and moves no focus; it has always done so.
    if (limit && NumberOfKey(dialog, texts, "TILT") > *limit) {
        found.text += Line(dialog.fields.back().letter, kNoNumberText);
    }
    return found;
}

}  // namespace

bool DimensionRule::Holds(double value) const {
    return (leastAllowed ? value >= least : value > least) && value <= most;
}

std::size_t DimensionDialog::IndexOf(char letter) const {
    const auto field = std::find_if(fields.begin(), fields.end(), [&](const DimensionField& each) {
        return each.letter == letter;
    });
    return static_cast<std::size_t>(field - fields.begin());
}

const DimensionDialog& DimensionDialogOf(int shape) {
    if (!IsShape(shape)) StopRun("there is no shape number " + std::to_string(shape));
    return kDialogs[shape - 1];
}

DimensionTexts LoadDimensions(const DimensionDialog& dialog) {
    DimensionTexts texts;
    for (const DimensionField& field : dialog.fields) {
        std::string stored(kNotSet);  // stays when the case has no file
        GetCaseProperty("DIMENSION", field.key, stored);
        texts.push_back(stored == kNotSet ? field.fallback : NumberOnScreen(ToNumber(stored)));
    }
    return texts;
}

DimensionComplaints CheckDimensions(const DimensionDialog& dialog, const DimensionTexts& texts) {
    DimensionComplaints found = CheckFields(dialog, texts);
    return found.empty() ? CompareFields(dialog, texts) : found;
}

std::optional<double> TiltLimit(const DimensionDialog& dialog, const DimensionTexts& texts) {
    if (!dialog.tiltLimited) return std::nullopt;
    const double height = NumberOfKey(dialog, texts, "HIGTHB");
    const double offset = NumberOfKey(dialog, texts, "OFFD");
    if (offset <= 0) return std::nullopt;
    return height <= 1 ? 0.0 : std::atan((height - 1) / offset) * kDegreesPerRadian;
}

bool StoreDimensions(const DimensionDialog& dialog, const DimensionTexts& texts) {
    const bool all =
        std::all_of(dialog.stored.begin(), dialog.stored.end(), [&](const StoredDimension& each) {
            const std::string value = NumberText(NumberOf(dialog, texts, each.letter));
            return SetCaseProperty("DIMENSION", each.key, value) || !FileExists(PropertyFilePath());
        });
    TellCaseChanged(true);  // also when only some rows could be written
    return all;
}

PlanDimensions FiguresOf(const DimensionDialog& dialog, const DimensionTexts& texts) {
    PlanDimensions figures = DefaultDimensions(dialog.shape);
    for (std::size_t at = 0; at < dialog.fields.size(); ++at) {
        SetDimension(figures, dialog.fields[at].key, ToNumber(texts[at]));
    }
    return figures;
}

}  // namespace verandis
