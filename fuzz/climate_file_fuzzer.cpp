#include <cmath>

#include "app/session.h"
#include "calc/climate_file.h"
#include "fuzzing.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace verandis;
    using namespace verandis::fuzzing;
    climateTables = {};
    Try([&] { ReadClimateBytes(TextOf(data, size), "fuzzS.dat"); });
    for (const auto& month : climateTables.ClimateMonths) {
        for (const float value : month) Require(!std::isnan(value), "a month holds numbers");
    }
    for (int tilt = -1; tilt <= kTilts; ++tilt) {
        Try([&] { Require(!std::isnan(SolarRadiation(2, 6, 10, tilt, "XU201-S")), "a number"); });
    }
    return 0;
}
