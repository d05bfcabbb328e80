#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "case/plan.h"

// Climate and orientation of the open case. Shown and stored angle differ: the dialog shows 180
// less the stored one, so that 180 is the building as drawn.

namespace verandis {

inline constexpr int kMostShownAngle = 360;
inline constexpr int kUnturnedAngle = 180;

/// A climate file of the climate folder.
struct Climate {
    std::string baseName;  // of its files, in front of "S."
    std::string place;     // as its hourly file names it; empty when that is not there
};

/// What the dialog shows when it opens.
struct SiteChoice {
    std::vector<Climate> climates;
    int selected = -1;   // the first that contains the case's climate; -1 when there is none
    std::string wanted;  // the case's climate as stored; empty when it has none
    std::string angle;   // in degrees, in the session's decimal form
};

/// The climates of the case's climate folder, and what the open case has stored.
SiteChoice FillSite();

/// Stores climate (in upper case) and shown angle in the open case, unchecked. False when the file
/// cannot be written, after its message; a case without a file takes them without a word.
bool StoreSite(std::string_view climate, std::string_view shownAngle);

/// Caption of the dialog for the active case.
std::string SiteTitle();

/// The angle that is stored for a shown text; a text that is no number counts as 0.
double StoredAngle(std::string_view shownAngle);

/// How the building is turned from the drawn orientation, in words.
std::string TurnText(std::string_view shownAngle);

/// A face of the plan in m around the plan's centre, x to the right and y downwards, north up.
struct SiteFace {
    bool glazed;
    std::array<PlanPoint, 4> corners;
};

/// The turned plan. `radius` is that of the circle in which it turns, m.
struct SitePlan {
    std::vector<SiteFace> faces;
    double radius = 0;
};

/// The plan of the figures at a shown angle; figures that give no plan are replaced by the shape's
/// defaults.
SitePlan TurnedPlan(int shape, const PlanDimensions& figures, double shownAngle);

/// A glazed element whose direction the steady-state calculation looks up.
struct FacingElement {
    std::string id;
    double orientation;  // degrees at rotation 0
};

/// Those of the open case that have a direction; none without a file. Shows no message.
std::vector<FacingElement> ReadFacings(int shape);

/// What stops the steady-state calculation at an angle.
struct FacingStop {
    std::string id;
    double direction;            // degrees, outside the radiation table
    std::optional<int> nearest;  // shown angle without a stop
};
std::optional<FacingStop> FindFacingStop(const std::vector<FacingElement>& elements,
                                         std::string_view shownAngle);

/// The hint beside the angle; empty when nothing stops.
std::string FacingHint(const std::vector<FacingElement>& elements, std::string_view shownAngle);

}  // namespace verandis
