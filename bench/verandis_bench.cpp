#include <benchmark/benchmark.h>

#include <exception>
#include <iostream>
#include <memory>
#include <stdexcept>

#include "app/start_up.h"
#include "bench_root.h"
#include "calc/climate_file.h"
#include "case/property_file.h"
#include "comparison.h"
#include "recorded_opens.h"

namespace verandis::bench {
namespace {

constexpr double kRunLimit = 1.5;
constexpr double kRebuildLimit = 2.0;

/// Every file that one piece of work opens for reading, as often as it does.
std::vector<std::string> FilesReadBy(const std::function<void()>& work) {
    const RecordedOpens opens;
    work();
    if (opens.paths().empty()) throw std::runtime_error("no opening of a file was recorded");
    return opens.paths();
}

/// Work that reads files beside the bare reading of the same files.
Comparison AgainstBareReading(const std::string& name, const std::function<void()>& work) {
    work();
    const auto files = FilesReadBy(work);
    std::cout << name << ": " << files.size() << " openings, " << OpenReadClose(files)
              << " bytes\n";
    Comparison comparison;
    comparison.name = name;
    comparison.product = work;
    comparison.bare = [files] { benchmark::DoNotOptimize(OpenReadClose(files)); };
    return comparison;
}

Comparison SteadyRun() {
    Comparison comparison = AgainstBareReading("SteadyRunOfFourCases", RunMarkedCases);
    comparison.limit = kRunLimit;
    return comparison;
}

Comparison Rebuild(BenchRoot& root) {
    Comparison comparison;
    comparison.name = "RebuildOfSixteenSlots";
    comparison.limit = kRebuildLimit;
    comparison.product = [] {
        if (!RebuildSlots()) throw std::runtime_error("the slots cannot be rebuilt");
    };
    const auto target = std::make_shared<std::filesystem::path>();
    comparison.prepareBare = [&root, target] { *target = root.NewFolder(); };
    comparison.bare = [&root, target] { CopySlotTrees(root.Project(), *target); };
    return comparison;
}

Comparison OneProperty() {
    Comparison comparison = AgainstBareReading("GetCaseProperty", [] {
        std::string value;
        GetCaseProperty("XV206-S", "GLAZEDID", value);
        benchmark::DoNotOptimize(value);
    });
    comparison.calls = 1000;
    return comparison;
}

Comparison OneClimate() {
    Comparison comparison = AgainstBareReading("ReadClimateFile", ReadClimateFile);
    comparison.calls = 20;
    return comparison;
}

void RegisterAll(BenchRoot& root) {
    Register(SteadyRun());
    Register(Rebuild(root));
    Register(OneProperty());
    Register(OneClimate());
}

}  // namespace
}  // namespace verandis::bench

/// Exit code 0 when all limits are kept, 1 when one is exceeded, 2 when nothing could be measured.
int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
    try {
        verandis::bench::BenchRoot root;
        verandis::bench::RegisterAll(root);
        benchmark::RunSpecifiedBenchmarks();
    } catch (const std::exception& error) {
        std::cerr << "verandis_bench: " << error.what() << "\n";
        return 2;
    }
    return verandis::bench::PrintRatios() ? 0 : 1;
}
