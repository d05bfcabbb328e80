#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace verandis {

/// A small generator that gives the same numbers on every machine: whole number arithmetic, and
/// only sums and products of doubles behind it.
class Noise {
public:
    /// The seed is made of the text; equal texts give equal sequences.
    explicit Noise(std::string_view seed) {
        for (const char c : seed) {  // FNV-1a
            state_ = (state_ ^ static_cast<unsigned char>(c)) * 1099511628211u;
        }
    }

    /// Even within 0 to 1 (SplitMix64, Steele, Lea and Flood 2014).
    double Even() {
        state_ += 0x9E3779B97F4A7C15u;
        std::uint64_t mixed = state_;
        mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9u;
        mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBu;
        mixed ^= mixed >> 31;
        return static_cast<double>(mixed >> 11) / 9007199254740992.0;
    }

    /// Nearly normal with mean 0 and deviation 1: the sum of twelve even numbers.
    double Normal() {
        double sum = -6;
        for (int each = 0; each < 12; ++each) sum += Even();
        return sum;
    }

    /// A series of deviation 1 in which each value keeps the share `memory` of the one before.
    std::vector<double> Series(int count, double memory, double freshness) {
        std::vector<double> values;
        double value = Normal();
        for (int each = 0; each < count; ++each) {
            values.push_back(value);
            value = memory * value + freshness * Normal();
        }
        return values;
    }

private:
    std::uint64_t state_ = 14695981039346656037u;
};

}  // namespace verandis
