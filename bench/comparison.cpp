#include "comparison.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

namespace verandis::bench {
namespace {

constexpr int kRounds = 60;

/// Microseconds a call: the medians, and the least of all rounds, which a busy machine spoils less.
struct Ratio {
    std::string name;
    double product = 0;
    double bare = 0;
    double leastProduct = 0;
    double leastBare = 0;
    double limit = 0;

    double Value() const { return product / bare; }
    double OfLeast() const { return leastProduct / leastBare; }
    bool Kept() const { return limit == 0 || Value() <= limit; }
};

std::vector<Ratio>& Ratios() {
    static std::vector<Ratio> ratios;
    return ratios;
}

/// Seconds that so many calls of the work take.
double TimeOf(const std::function<void()>& work, int calls) {
    const auto start = std::chrono::steady_clock::now();
    for (int call = 0; call < calls; ++call) work();
    const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - start;
    return passed.count();
}

double Least(const std::vector<double>& values) {
    return *std::min_element(values.begin(), values.end());
}

double Median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

void Compare(benchmark::State& state, const Comparison& comparison) {
    std::vector<double> product;
    std::vector<double> bare;
    comparison.product();  // fills the caches of the machine
    for (auto round : state) {
        static_cast<void>(round);
        comparison.prepareBare();
        bare.push_back(TimeOf(comparison.bare, comparison.calls));
        product.push_back(TimeOf(comparison.product, comparison.calls));
        state.SetIterationTime(product.back());
    }
    const double scale = 1e6 / comparison.calls;
    const Ratio ratio{comparison.name,        Median(product) * scale, Median(bare) * scale,
                      Least(product) * scale, Least(bare) * scale,     comparison.limit};
    state.counters["product_us"] = ratio.product;
    state.counters["bare_us"] = ratio.bare;
    state.counters["ratio"] = ratio.Value();
    Ratios().push_back(ratio);
}

}  // namespace

void Register(const Comparison& comparison) {
    benchmark::RegisterBenchmark(
        comparison.name.c_str(),
        [comparison](benchmark::State& state) { Compare(state, comparison); })
        ->UseManualTime()
        ->Iterations(kRounds)
        ->Unit(benchmark::kMicrosecond);
}

bool PrintRatios() {
    std::printf("\nMedians of %d rounds, microseconds a call\n", kRounds);
    std::printf("%-24s %10s %10s %7s %10s  %s\n", "", "product", "bare", "ratio", "of least", "limit");
    bool kept = true;
    for (const Ratio& each : Ratios()) {
        std::printf("%-24s %10.2f %10.2f %7.2f %10.2f  ", each.name.c_str(), each.product, each.bare,
                    each.Value(), each.OfLeast());
        if (each.limit > 0) std::printf("%.1f %s", each.limit, each.Kept() ? "kept" : "EXCEEDED");
        std::printf("\n");
        kept = kept && each.Kept();
    }
    return kept;
}

}  // namespace verandis::bench
