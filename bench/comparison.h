#pragma once

#include <functional>
#include <string>

namespace verandis::bench {

/// Work of the product beside the bare work that it cannot do without.
struct Comparison {
    std::string name;
    int calls = 1;     // of both in one round, so that a short call can be timed
    double limit = 0;  // of product time to bare time; 0 for none
    std::function<void()> product;
    std::function<void()> bare;
    std::function<void()> prepareBare = [] {};  // before each round, not timed
};

/// Registers a benchmark in which product and bare work take turns, round by round, so that what
/// disturbs the machine falls on both.
void Register(const Comparison& comparison);

/// Prints for each benchmark that has run the medians, their ratio and the limit. True when every
/// ratio keeps its limit.
bool PrintRatios();

}  // namespace verandis::bench
