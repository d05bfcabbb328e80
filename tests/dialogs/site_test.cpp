#include "dialogs/site.h"

#include "app/session.h"
#include "case/property_file.h"
#include "dialogs/building_data.h"
#include "dialogs/case_title.h"
#include "support/session_test.h"

namespace verandis {
namespace {

using testing_support::Bytes;
using testing_support::Dos;
using testing_support::PutBytes;

class Site : public testing_support::SmallRootTest {
protected:
    void MakeClimates() {
        PutBytes(root + "/CLIM/GOTEBORG_1S.dat", "");
        PutBytes(root + "/CLIM/GOTEBORG_1D.cli", "Hourly\r\nPlace: G\xF6teborg\r\nData:\r\n");
        PutBytes(root + "/CLIM/OSLO_1S.DAT", "");
        PutBytes(root + "/CLIM/plain.dat", "");
        PutBytes(root + "/CLIM/OSLO_1D.cli", "Data:\r\nPlace: behind the header\r\n");
    }
};

TEST_F(Site, ListsEachClimateByTheNameInFrontOfItsEnding) {
    MakeClimates();
    MakeSlot({kShapeU, 1}, "CLIMATE_FILE\toslo\nROTATION_ANGLE\t 10.5\n");
    session.Decimals = DecimalMode::Comma;
    const SiteChoice choice = FillSite();
    ASSERT_EQ(choice.climates.size(), 3u);
    EXPECT_EQ(choice.climates[0].baseName, "GOTEBORG_1");
    EXPECT_EQ(choice.climates[0].place, "Göteborg");
    EXPECT_EQ(choice.climates[1].baseName, "OSLO_1");
    EXPECT_EQ(choice.climates[1].place, "");
    EXPECT_EQ(choice.climates[2].baseName, "plain.dat");
    EXPECT_EQ(choice.selected, 1);
    EXPECT_EQ(choice.angle, "169,5");
    MakeSlot({kShapeU, 2}, "");
    EXPECT_EQ(FillSite().selected, -1);
    EXPECT_EQ(FillSite().angle, "180");
}

TEST_F(Site, StoresTheAngleFromTheOtherEndAndTheNameInUpperCase) {
    struct Row {
        const char* climate;
        const char* shown;
        const char* stored;
    };
    const Row rows[] = {
        {"goteborg_1", "180", "CLIMATE_FILE\tGOTEBORG_1\nROTATION_ANGLE\t 0\n"},
        {"Åre_1", "200", "CLIMATE_FILE\t\xC5RE_1\nROTATION_ANGLE\t-20\n"},
        {"", "169,5", "CLIMATE_FILE\t\nROTATION_ANGLE\t 10.5\n"},
        {"", "", "CLIMATE_FILE\t\nROTATION_ANGLE\t 180\n"},
    };
    for (const Row& row : rows) {
        MakeSlot({kShapeU, 1}, "CLIMATE_FILE\tx\nROTATION_ANGLE\t 5\n");
        EXPECT_TRUE(StoreSite(row.climate, row.shown));
        EXPECT_EQ(Bytes(SlotFile({kShapeU, 1}, "SimpPropertiesOfCase.Dat")), Dos(row.stored));
    }
}

TEST_F(Site, TitleCountsTheIShapeByNumber) {
    session.ProgramText =
        Catalogue({"20219, Site", "20196, Case", "20051, I", "20022, V", "20220, Dimensions"});
    session.ActiveCaseNo = 3;
    session.ActiveShape = kShapeI;
    EXPECT_EQ(SiteTitle(), "Site (I/Case number 3)");
    EXPECT_EQ(CaseDialogTitle(220, kShapeI), "Dimensions(I/case index 3)");
    session.ActiveShape = kShapeV;
    EXPECT_EQ(SiteTitle(), "Site (V/Case index 3)");
}

/// Middle of the glass of the turned plan.
PlanPoint GlassOf(int shape, double shown) {
    PlanPoint middle;
    int corners = 0;
    for (const SiteFace& face : TurnedPlan(shape, DefaultDimensions(shape), shown).faces) {
        if (!face.glazed) continue;
        for (const PlanPoint& corner : face.corners) {
            middle.x += corner.x;
            middle.y += corner.y;
            ++corners;
        }
    }
    return {middle.x / corners, middle.y / corners};
}

TEST_F(Site, ThePlanTurnsClockwiseUnderNorthUp) {
    // The glass of the V shape lies along the south side: below the middle of the screen.
    const PlanPoint drawn = GlassOf(kShapeV, 180);
    EXPECT_NEAR(drawn.x, 0, 1e-9);
    EXPECT_GT(drawn.y, 5);
    const PlanPoint west = GlassOf(kShapeV, 270);
    EXPECT_LT(west.x, -5);
    EXPECT_NEAR(west.y, 0, 1e-9);
}

TEST_F(Site, HintsAtTheElementThatStopsTheSteadyRun) {
    const std::string facings =
        "XU201-S_ORIENTATION\t 0\nXU202-S_ORIENTATION\t 0\nXU203-N_ORIENTATION\t 180\n"
        "XU204-W_ORIENTATION\t 270\nXU205-E_ORIENTATION\t 90\n";
    struct Row {
        const char* shown;
        const char* id;  // empty: nothing stops
        double direction;
        int nearest;
    };
    // Stored is 180 less shown; places below 280 degrees are in the table.
    const Row rows[] = {
        {"180", "", 0, 0},
        {"171", "", 0, 0},                 // west at 279
        {"170", "XU204-W", 280, 171},      // west at 280
        {"181", "XU201-S", 359, 180},      // south at -1
        {"0", "", 0, 0},                   // half a turn: 180, 0, 90, 270
        {"150,5", "XU204-W", 299.5, 171},  // west at 299.5; back at 90, west is 0 and south 90
    };
    MakeSlot({kShapeU, 1}, facings + "DIMENSION_TILT\t 30\n");
    const auto elements = ReadFacings(kShapeU);
    for (const Row& row : rows) {
        const auto stop = FindFacingStop(elements, row.shown);
        EXPECT_EQ(stop ? stop->id : "", row.id) << row.shown;
        if (!stop) continue;
        EXPECT_DOUBLE_EQ(stop->direction, row.direction) << row.shown;
        EXPECT_EQ(stop->nearest, row.nearest) << row.shown;
    }
    // A flat roof has no direction; without west and east slopes 170 is no trouble.
    MakeSlot({kShapeU, 2}, facings + "DIMENSION_TILT\t 0\n");
    EXPECT_FALSE(FindFacingStop(ReadFacings(kShapeU), "170"));
}

TEST_F(Site, StatesTellWhatIsStoredAndStaySilentWithoutACase) {
    session.ProgramText = Catalogue({"20056, Angle", "20729, height", "20655, heating",
                                     "20203, Glazed space", "20824, unheated"});
    MakeClimates();
    MakeSlot({kShapeU, 1},
             "CLIMATE_FILE\tGOTEBORG_1\nROTATION_ANGLE\t-20\nDIMENSION_WIDTHB\t 24\n"
             "XU001-W_WALLTYPE\tBrick, 2\nXU101-W_WALLTYPE\tBrick\nXU104-F_WALLTYPE\tSlab\n"
             "XU201-S_GLAZEDID\tClear2\nHVACG_HEATING\t 5\nHVACG_COOLING\t-999999\n");
    session.ActiveShape = kShapeU;
    EXPECT_EQ(StoredState(CaseData::Site), "Göteborg, angle 200");
    EXPECT_EQ(StoredState(CaseData::Dimensions), "24 x 21 m, height 9 m");
    EXPECT_EQ(StoredState(CaseData::Walls), "Brick, Slab");
    EXPECT_EQ(StoredState(CaseData::Glazing), "Clear2");
    EXPECT_EQ(StoredState(CaseData::Hvac), "Glazed space: heating 5 °C");
    session.CaseFolder = Path("nowhere");
    for (const CaseDataRow& row : CaseDataRows()) EXPECT_EQ(StoredState(row.data), "");
    EXPECT_TRUE(prompts.shown.empty());
}

}  // namespace
}  // namespace verandis
