#pragma once

#include <array>
#include <vector>

namespace verandis {

/// Kinds of planes in the climate file: 0 is the plane itself, 1 to 3 lie behind that many panes.
inline constexpr int kPlaneKinds = 4;

/// Solar transmittance of `panes` (0 to 3) parallel reference panes for beam light; the argument is
/// the cosine of the angle of incidence. 1 for no panes, 0 for grazing light on any pane.
double PaneTransmittance(int panes, double cosIncidence);

/// Angle of incidence in degrees at which beam light passes glass as the light of the even sky
/// does, for a plane of this tilt (degrees), and the same for the ground.
double EquivalentSkyAngle(double tilt);
double EquivalentGroundAngle(double tilt);

/// Transmittances of all kinds, looked up by the cosine of the angle of incidence.
class GlassTable {
public:
    GlassTable();

    /// Linear between steps of the cosine; `cosIncidence` lies within 0 to 1.
    std::array<double, kPlaneKinds> At(double cosIncidence) const {
        const double place = cosIncidence * kSteps;
        const auto step = static_cast<std::size_t>(place);
        const double part = place - static_cast<double>(step);
        const auto& low = rows_[step];
        const auto& high = rows_[step + 1];
        std::array<double, kPlaneKinds> result;
        for (std::size_t kind = 0; kind < kPlaneKinds; ++kind) {
            result[kind] = low[kind] + part * (high[kind] - low[kind]);
        }
        return result;
    }

private:
    static constexpr int kSteps = 1024;
    std::vector<std::array<double, kPlaneKinds>> rows_;
};

}  // namespace verandis
