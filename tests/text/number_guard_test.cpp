#include "text/number_guard.h"

#include <gtest/gtest.h>

namespace verandis {
namespace {

// Each row is a field's text, what the user made of it, and what it becomes.
TEST(NumberGuard, TurnsASecondDecimalSignBackAndRefusesWhatNoNumberHolds) {
    struct Row {
        const char* before;
        const char* after;
        const char* becomes;
    };
    const Row rows[] = {
        {"1.5", "1.5.", "1.5*"},
        {"1,5", "1,5.", "1,5*"},
        {"15.0", "1.5.0", "1*5.0"},
        {"1.5*", "1.5*3", "1.5*3"},
        {"1.5*", "1.5", "1.5"},
        {"", "1.2.3", "1.2*3"},
        {"", "-", "-"},
        {"", "+", "+"},
        {"", ".", "."},
        {"-", "-,", "-,"},
        {"12", "12x", "12"},
        {"12", "1 2", "12"},
        {"12", "12*", "12"},
        {"12", "12-", "12"},
        {"12", "-12", "-12"},
        {"-12", "3-12", "-12"},
        {"1", "1E", "1E"},
        {"1E", "1E-", "1E-"},
        {"1E5", "1E5e", "1E5"},
        {"", "1,234.5 kg", "1,234*5"},
        {"1.5", "7", "7"},
        {"none", "none5", "none5"},
        {"none", "7", "7"},
        {"å", "ä", ""},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(GuardedNumber(row.before, row.after), row.becomes)
            << row.before << " -> " << row.after;
    }
}

}  // namespace
}  // namespace verandis
