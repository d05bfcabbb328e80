#include "comparison.h"

#include <benchmark/benchmark.h>
#include <time.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

namespace verandis::bench {
namespace {

constexpr int kRounds = 60;

/// What a round took, in seconds: by the clock, and of the processor, which a busy machine spoils
/// less.
struct Times {
    std::vector<double> clock;
    std::vector<double> processor;
};

double ProcessorTime() {
    timespec time{};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

void AddRound(const std::function<void()>& work, int calls, Times& times) {
    const double processor = ProcessorTime();
    const auto start = std::chrono::steady_clock::now();
    for (int call = 0; call < calls; ++call) work();
    const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - start;
    times.clock.push_back(passed.count());
    times.processor.push_back(ProcessorTime() - processor);
}

double Median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// Medians of all rounds.
struct Ratio {
    std::string name;
    double product = 0;  // microseconds a call
    double bare = 0;
    double ofProcessor = 0;
    double limit = 0;

    double Value() const { return product / bare; }
    bool Kept() const { return limit == 0 || Value() <= limit; }
};

std::vector<Ratio>& Ratios() {
    static std::vector<Ratio> ratios;
    return ratios;
}

void Compare(benchmark::State& state, const Comparison& comparison) {
    Times product;
    Times bare;
    comparison.product();  // fills the caches of the machine
    for (auto round : state) {
        static_cast<void>(round);
        comparison.prepareBare();
        AddRound(comparison.bare, comparison.calls, bare);
        AddRound(comparison.product, comparison.calls, product);
        state.SetIterationTime(product.clock.back());
    }
    const double scale = 1e6 / comparison.calls;
    const Ratio ratio{comparison.name, Median(product.clock) * scale, Median(bare.clock) * scale,
                      Median(product.processor) / Median(bare.processor), comparison.limit};
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
    std::printf("%-24s %10s %10s %8s %14s  %s\n", "", "product", "bare", "ratio", "processor only",
                "limit");
    bool kept = true;
    for (const Ratio& each : Ratios()) {
        std::printf("%-24s %10.2f %10.2f %8.2f %14.2f  ", each.name.c_str(), each.product,
                    each.bare, each.Value(), each.ofProcessor);
        if (each.limit > 0) std::printf("%.1f %s", each.limit, each.Kept() ? "kept" : "EXCEEDED");
        std::printf("\n");
        kept = kept && each.Kept();
    }
    return kept;
}

}  // namespace verandis::bench
