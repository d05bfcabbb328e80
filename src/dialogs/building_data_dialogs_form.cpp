#include "dialogs/building_data_dialogs_form.h"

#include <array>

#include "case/shapes.h"
#include "dialogs/geometry_form.h"
#include "dialogs/glazing_form.h"
#include "dialogs/hvac_form.h"
#include "dialogs/opaque_form.h"
#include "dialogs/shade_site_form.h"

namespace verandis {
namespace {

template <class Dialog>
QDialog* Make(QWidget* parent) {
    return new Dialog(parent);
}

using FactoriesOfShapes = std::array<DialogFactory, kShapeCount>;  // U, O, V, I

const std::array<FactoriesOfShapes, kCaseDataCount>& Factories() {
    static const std::array<FactoriesOfShapes, kCaseDataCount> factories = {{
        // Site
        {Make<ShadeSite>, Make<ShadeSite>, Make<ShadeSite>, Make<ShadeSite>},
        // Dimensions
        {Make<GeoUShape>, Make<GeoOShape>, Make<GeoVShape>, Make<GeoIShape>},
        // Walls
        {Make<OpaqueConstrUShape>, Make<OPaqueConstrOShape>, Make<OpaqueConstrVShape>,
         Make<OpaqueConstrIShape>},
        // Glazing
        {Make<GlazingUShape>, Make<GlazingOShape>, Make<GlazingVShape>, Make<GlazingIShape>},
        // Hvac
        {Make<HVACForm>, Make<HVACForm>, Make<HVACForm>, Make<HVACForm>},
        // Demands
        {},
    }};
    return factories;
}

}  // namespace

const DialogFactory& CaseDialogFactory(CaseData data, int shape) {
    static const DialogFactory none;
    if (!IsShape(shape)) return none;
    return Factories()[static_cast<std::size_t>(data)][static_cast<std::size_t>(shape - 1)];
}

}  // namespace verandis
