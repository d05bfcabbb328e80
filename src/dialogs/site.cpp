#include "dialogs/site.h"

#include <algorithm>
#include <cmath>

#include "app/case_changes.h"
#include "app/program_text.h"
#include "app/session.h"
#include "calc/climate_file.h"
#include "calc/geometry.h"
#include "calc/properties.h"
#include "calc/solar_gain.h"
#include "case/property_file.h"
#include "case/site_file.h"
#include "dialogs/case_title.h"
#include "platform/encoding.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "text/characters.h"
#include "text/numbers.h"
#include "text/separators.h"

namespace verandis {
namespace {

enum : int {
    kSiteText = 219,
    kNotTurnedText = 808,
    kClockwiseText,
    kAntiClockwiseText,
    kStopText,
    kNearestText
};

constexpr double kRadiansPerDegree = 3.14159265358979 / 180;

/// The place that the header of a climate's hourly file names.
std::string PlaceOf(const std::string& folder, const std::string& baseName) {
    const auto bytes = ReadView(JoinPath(folder, baseName + "D.cli"));
    if (!bytes) return "";
    std::string_view rest = *bytes;
    while (!rest.empty()) {
        const std::string_view line = TakeLine(rest);
        if (StartsWithNoCase(line, "Place:")) {
            return FromWindows1252(TrimBlanks(RightOfSeparator(line, ":")));
        }
        if (StartsWithNoCase(line, "Data:")) break;
    }
    return "";
}

std::vector<Climate> ClimatesIn(const std::string& folder) {
    std::vector<Climate> climates;
    for (const std::string& file : ListFiles(folder, "*.Dat")) {
        const std::string baseName(LeftOfSeparator(file, "S."));
        climates.push_back({baseName, PlaceOf(folder, baseName)});
    }
    return climates;
}

bool StopsAt(const FacingElement& element, double storedAngle) {
    const int index = DirectionIndex(TurnedDirection(element.orientation + storedAngle));
    return index < 0 || index >= kDirections;
}

const FacingElement* FirstStop(const std::vector<FacingElement>& elements, double storedAngle) {
    for (const FacingElement& element : elements) {
        if (StopsAt(element, storedAngle)) return &element;
    }
    return nullptr;
}

std::optional<int> NearestWithoutStop(const std::vector<FacingElement>& elements, int shown) {
    for (int off = 1; off <= kMostShownAngle; ++off) {
        for (const int angle : {shown - off, shown + off}) {
            const bool shownByBar = angle >= 0 && angle <= kMostShownAngle;
            if (shownByBar && !FirstStop(elements, kUnturnedAngle - angle)) return angle;
        }
    }
    return std::nullopt;
}

PlanPoint Turned(const PlanPoint& corner, double sine, double cosine) {
    return {corner.x * cosine - corner.y * sine, corner.x * sine + corner.y * cosine};
}

}  // namespace

SiteChoice FillSite() {
    SiteChoice choice;
    if (const auto folder = ClimateFolderOfCase(session.CaseFolder)) {
        choice.climates = ClimatesIn(*folder);
    }
    const std::string stored = PropertyText("CLIMATE", "FILE");
    if (stored != kNotSet && !TrimBlanks(stored).empty()) {
        std::vector<std::string> rows;
        for (const Climate& climate : choice.climates) rows.push_back(climate.baseName);
        choice.wanted = TrimBlanks(stored);
        choice.selected = FindListRow(rows, choice.wanted);
    }
    choice.angle =
        NumberOnScreen(kUnturnedAngle - PropertyNumber("ROTATION", "ANGLE").value_or(0.0));
    return choice;
}

bool StoreSite(std::string_view climate, std::string_view shownAngle) {
    const std::string path = PropertyFilePath();
    const std::string angle = NumberText(StoredAngle(shownAngle));
    const bool stored = SetCaseProperty("CLIMATE", "FILE", UpperCase(climate)) &&
                        SetCaseProperty("ROTATION", "ANGLE", angle);
    TellCaseChanged(false);  // also when only the climate could be written
    return stored || !FileExists(path);
}

std::string SiteTitle() {
    return CountedCaseTitle(kSiteText);
}

double StoredAngle(std::string_view shownAngle) {
    return kUnturnedAngle - ToNumber(shownAngle);
}

std::string TurnText(std::string_view shownAngle) {
    const double stored = StoredAngle(shownAngle);
    if (stored == 0) return Text(kNotTurnedText);
    return WithValue(Text(stored < 0 ? kClockwiseText : kAntiClockwiseText), "%1",
                     NumberOnScreen(std::abs(stored)));
}

SitePlan TurnedPlan(int shape, const PlanDimensions& figures, double shownAngle) {
    ShapeDrawing plan = PlanOf(shape, figures);
    if (!plan.valid()) plan = PlanOf(shape, DefaultDimensions(shape));
    const double sine = std::sin(shownAngle * kRadiansPerDegree);
    const double cosine = std::cos(shownAngle * kRadiansPerDegree);
    SitePlan turned;
    turned.radius = std::hypot(plan.extent.x, plan.extent.y) / 2;
    for (const PlanPart& part : plan.parts) {
        SiteFace face{part.material == PlanMaterial::Glass, {}};
        for (std::size_t at = 0; at < face.corners.size(); ++at) {
            // The plan to be turned has north down, so that half a turn puts it up.
            const PlanPoint northDown = {plan.extent.x / 2 - part.corners[at].x,
                                         part.corners[at].y - plan.extent.y / 2};
            face.corners[at] = Turned(northDown, sine, cosine);
        }
        turned.faces.push_back(face);
    }
    return turned;
}

std::vector<FacingElement> ReadFacings(int shape) {
    std::vector<FacingElement> elements;
    if (!IsShape(shape) || !FileExists(PropertyFilePath())) return elements;
    const bool flatRoof = PropertyNumber("DIMENSION", "TILT") == 0.0;
    for (const GlazedElement& element : SpaceElementsOf(shape).glazed) {
        if (flatRoof && !element.vertical) continue;
        if (const auto orientation = PropertyNumber(element.id, "ORIENTATION")) {
            elements.push_back({std::string(element.id), *orientation});
        }
    }
    return elements;
}

std::optional<FacingStop> FindFacingStop(const std::vector<FacingElement>& elements,
                                         std::string_view shownAngle) {
    const double stored = StoredAngle(shownAngle);
    const FacingElement* element = FirstStop(elements, stored);
    if (!element) return std::nullopt;
    return FacingStop{element->id, TurnedDirection(element->orientation + stored),
                      NearestWithoutStop(elements, WholeNumber(ToNumber(shownAngle)))};
}

std::string FacingHint(const std::vector<FacingElement>& elements, std::string_view shownAngle) {
    const auto stop = FindFacingStop(elements, shownAngle);
    if (!stop) return "";
    std::string hint = WithValue(Text(kStopText), "%1", stop->id);
    hint = WithValue(hint, "%2", NumberOnScreen(stop->direction));
    if (stop->nearest) {
        hint += " " + WithValue(Text(kNearestText), "%1", std::to_string(*stop->nearest));
    }
    return hint;
}

}  // namespace verandis
