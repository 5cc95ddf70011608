#include "making/ravelin_ordering.h"

#include <gtest/gtest.h>

namespace dorvan {
namespace {

FloatTable FewDistances() {
    RandomSource random(2);
    FloatTable distances(8, 8);
    for (std::int32_t i = 1; i <= 8; ++i)
        for (std::int32_t j = 1; j < i; ++j) distances(i, j) = distances(j, i) = 50 * random.Draw();
    return distances;
}

// How often a run complains when what its window shows as the base is changed at one yield.
template <class Change> int Complaints(std::int64_t atYield, char decimalSeparator, const Change& change) {
    OrderingOptions options;
    options.CriticalMutationNumber = 6;
    options.CriticalGenerationNumber = 1;
    RandomSource random(1);
    int complaints = 0;
    std::int64_t yields = 0;
    RavelinHooks hooks;
    hooks.decimalSeparator = decimalSeparator;
    hooks.invalidMinimum = [&] { ++complaints; };
    hooks.yield = [&](RavelinProgress& progress) {
        if (++yields == atYield) change(progress);
        return 1;
    };
    RavelinOrder(FewDistances(), options, random, hooks);
    return complaints;
}

TEST(DescentOfTheBase, IsNotComplainedAboutInARun) {
    EXPECT_EQ(Complaints(0, '.', [](RavelinProgress&) {}), 0);
}

TEST(DescentOfTheBase, LowerNumberInTheWindowIsComplainedAboutAndTheRunGoesOn) {
    EXPECT_EQ(Complaints(4, '.', [](RavelinProgress& progress) { *progress.Base -= 0.001; }), 1);
}

TEST(DescentOfTheBase, EmptyFieldReadsAsZero) {
    EXPECT_EQ(Complaints(4, '.', [](RavelinProgress& progress) { progress.Base.reset(); }), 1);
}

TEST(DescentOfTheBase, GreaterNumberIsNot) {
    EXPECT_EQ(Complaints(4, '.', [](RavelinProgress& progress) { *progress.Base += 1; }), 0);
}

TEST(DescentOfTheBase, DifferenceThatTheFiveDecimalsDoNotShowIsNot) {
    EXPECT_EQ(Complaints(2, '.', [](RavelinProgress& progress) { *progress.Base -= 1e-12; }), 0);
}

// The number at the start of a text ends at a comma.
TEST(DescentOfTheBase, UnderACommaLocaleOnlyWholeNumbersAreCompared) {
    EXPECT_EQ(Complaints(4, ',', [](RavelinProgress& progress) { *progress.Base -= 1e-5; }), 0);
    EXPECT_EQ(Complaints(4, ',', [](RavelinProgress& progress) { *progress.Base = -1; }), 1);
}

} // namespace
} // namespace dorvan
