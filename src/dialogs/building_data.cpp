#include "dialogs/building_data.h"

#include <algorithm>
#include <vector>

#include "app/program_text.h"
#include "app/session.h"
#include "calc/properties.h"
#include "case/plan.h"
#include "case/property_file.h"
#include "case/shapes.h"
#include "dialogs/site.h"
#include "platform/files.h"
#include "text/characters.h"

namespace verandis {
namespace {

enum : int {
    kAngleText = 56,
    kWindowTypesText = 128,
    kWallTypesText = 169,
    kGlazedSpaceText = 203,
    kSiteText = 219,
    kDimensionsText = 220,
    kHeatingText = 655,
    kCoolingText = 656,
    kHeightText = 729,
    kSiteTip = 815,
    kDimensionsTip,
    kWallsTip,
    kGlazingTip,
    kHvacTip,
    kDemandsTip,
    kHvacText,
    kDemandsText,
    kUnheatedText = 824
};

constexpr CaseDataRow kRows[kCaseDataCount] = {
    {CaseData::Site, "Option1", "LSite", kSiteText, kSiteTip},
    {CaseData::Dimensions, "Option2", "LDimensions", kDimensionsText, kDimensionsTip},
    {CaseData::Walls, "Option3", "LWalls", kWallTypesText, kWallsTip},
    {CaseData::Glazing, "Option4", "LGlazing", kWindowTypesText, kGlazingTip},
    {CaseData::Hvac, "Option5", "LHVAC", kHvacText, kHvacTip},
    {CaseData::Demands, "Option6", "", kDemandsText, kDemandsTip},
};

std::string Joined(const std::vector<std::string>& parts) {
    std::string text;
    for (const std::string& part : parts) text += (text.empty() ? "" : ", ") + part;
    return text;
}

std::string SiteState() {
    const SiteChoice site = FillSite();
    std::vector<std::string> parts;
    if (site.selected >= 0) {
        const Climate& climate = site.climates[static_cast<std::size_t>(site.selected)];
        parts.push_back(climate.place.empty() ? climate.baseName : climate.place);
    }
    parts.push_back(LowerCase(Text(kAngleText)) + " " + site.angle);
    return Joined(parts);
}

std::string DimensionsState() {
    const PlanDimensions figures = ReadPlanDimensions(session.ActiveShape, session.CaseFolder);
    return NumberOnScreen(figures.widthB) + " x " + NumberOnScreen(figures.depthB) + " m, " +
           Text(kHeightText) + " " + NumberOnScreen(figures.heightB) + " m";
}

/// The different names that elements carry under a key, in the order of the elements.
std::string NamesState(std::span<const Series> series, std::string_view key) {
    std::vector<std::string> names;
    for (const Series each : series) {
        for (const std::string_view id : ElementsOf(session.ActiveShape, each)) {
            const std::string name = SplitKind(PropertyText(id, key)).name;
            const bool known = std::find(names.begin(), names.end(), name) != names.end();
            if (name != kNotSet && !known) names.push_back(name);
        }
    }
    return Joined(names);
}

std::string HvacState() {
    std::vector<std::string> parts;
    const auto add = [&](int text, std::string_view key) {
        if (const auto degrees = PropertyNumber("HVACG", key)) {
            parts.push_back(Text(text) + " " + NumberOnScreen(*degrees) + " °C");
        }
    };
    add(kHeatingText, "HEATING");
    add(kCoolingText, "COOLING");
    if (parts.empty()) return Text(kUnheatedText);
    return Text(kGlazedSpaceText) + ": " + Joined(parts);
}

}  // namespace

std::span<const CaseDataRow> CaseDataRows() {
    return kRows;
}

std::string StoredState(CaseData data) {
    static constexpr Series kWalls[] = {Series::Envelope, Series::Partition};
    static constexpr Series kGlazing[] = {Series::Glazing};
    if (!IsShape(session.ActiveShape) || !FileExists(PropertyFilePath())) return "";
    switch (data) {
        case CaseData::Site: return SiteState();
        case CaseData::Dimensions: return DimensionsState();
        case CaseData::Walls: return NamesState(kWalls, "WALLTYPE");
        case CaseData::Glazing: return NamesState(kGlazing, "GLAZEDID");
        case CaseData::Hvac: return HvacState();
        case CaseData::Demands: break;
    }
    return "";
}

}  // namespace verandis
