#include "making/order_scorer.h"
#include "plain_orderings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <string>
#include <vector>

namespace dorvan {
namespace {

// Denominators of which the quotients come near to half a unit of the sum, or to just there, in every way.
enum class Denominators {
    Whole,        // small integers: many ties
    PowersOfTwo,  // every quotient exact
    Halves,       // 1.5, 2.5, ...: ties among inexact reciprocals
    Mixed,        // simple fractions beside numbers of 24 bits
    Awkward,      // 49, 98, 103, ...: n * (1 / n) is not 1
    LargeInteger, // beyond 256: not all ties can be told from what lies near
    BesideTies,   // one unit in the last place off a number that makes ties
    Spread,       // from 2^-24 to 1e30
    Lopsided,     // (i, j) is not (j, i)
};

float DenominatorOf(Denominators kind, RandomSource& random) {
    const float draw = random.Draw();
    const auto whole = static_cast<int>(draw * 256);
    switch (kind) {
    case Denominators::Whole: return float(1 + whole % 9);
    case Denominators::PowersOfTwo: return std::ldexp(1.0F, whole % 12);
    case Denominators::Halves: return float(whole % 20) + 1.5F;
    case Denominators::Mixed: return whole % 2 == 0 ? 1 + float(whole % 3) * 0.5F : 1 + draw;
    case Denominators::Awkward: {
        constexpr float Numbers[] = {49, 98, 103, 107, 161, 187, 196, 197};
        return Numbers[whole % 8];
    }
    case Denominators::LargeInteger: return float(1 + static_cast<int>(draw * 60000));
    case Denominators::BesideTies: {
        const float tie = std::ldexp(1.0F, whole % 8);
        return whole % 3 == 0 ? tie : std::nextafter(tie, whole % 3 == 1 ? 0.0F : 1000.0F);
    }
    case Denominators::Spread: return std::ldexp(1 + draw, -24 + whole % 124);
    default: return 1 + 10 * draw;
    }
}

FloatTable MakeDenominators(Denominators kind, std::int32_t n, std::uint64_t seed) {
    RandomSource random(seed);
    FloatTable table(n, n, 1.0F);
    for (std::int32_t i = 1; i <= n; ++i)
        for (std::int32_t j = 1; j < i; ++j) {
            table(i, j) = DenominatorOf(kind, random);
            table(j, i) = kind == Denominators::Lopsided ? DenominatorOf(kind, random) : table(i, j);
        }
    return table;
}

Array2<std::int16_t> ShuffledOrders(std::int32_t count, std::int32_t n, std::uint64_t seed) {
    RandomSource random(seed);
    Array2<std::int16_t> orders(count, n);
    for (std::int32_t v = 1; v <= count; ++v) {
        for (std::int32_t p = 1; p <= n; ++p) orders(v, p) = static_cast<std::int16_t>(p);
        for (std::int32_t p = n; p > 1; --p) std::swap(orders(v, p), orders(v, RandomInRange(random, 1, p)));
    }
    return orders;
}

float PlainScore(const FloatTable& denominators, const Array2<std::int16_t>& orders, std::int32_t v) {
    const std::int32_t n = denominators.Rows();
    float sum = 0;
    for (std::int32_t i = 1; i < n; ++i)
        for (std::int32_t j = i + 1; j <= n; ++j) {
            const double quotient =
                double(j - i) * double(j - i) / double(denominators(orders(v, i), orders(v, j)));
            sum = static_cast<float>(double(sum) + quotient);
        }
    return static_cast<float>(double(sum) / (double(n) * double(n) / 2.0));
}

void ExpectSameBits(Denominators kind, std::int32_t n, std::int32_t count, std::uint64_t seed) {
    const FloatTable denominators = MakeDenominators(kind, n, seed);
    const auto orders = ShuffledOrders(count, n, seed + 1);
    std::vector<float> scores(static_cast<std::size_t>(count));
    OrderScorer(denominators).Score(orders.Cells(), scores);
    for (std::int32_t v = 1; v <= count; ++v)
        ASSERT_EQ(std::bit_cast<std::uint32_t>(scores[std::size_t(v - 1)]),
                  std::bit_cast<std::uint32_t>(PlainScore(denominators, orders, v)))
            << "order " << v << " of " << n << " records, seed " << seed;
}

class OrderScorerBits : public ::testing::TestWithParam<Denominators> {};

TEST_P(OrderScorerBits, AreThoseOfTheSumAsItIsWrittenDown) {
    for (const std::int32_t n : {2, 3, 4, 5, 8, 9, 10, 17, 49, 50, 51, 57, 58, 64, 100, 150, 250})
        for (std::uint64_t seed = 0; seed < 3; ++seed) ExpectSameBits(GetParam(), n, 5, 100 * seed + 7);
}

TEST_P(OrderScorerBits, DoNotDependOnHowManyOrdersAreScoredAtOnce) {
    for (std::int32_t count = 1; count <= 13; ++count) ExpectSameBits(GetParam(), 30, count, 3);
}

INSTANTIATE_TEST_SUITE_P(Kinds, OrderScorerBits,
                         ::testing::Values(Denominators::Whole, Denominators::PowersOfTwo,
                                           Denominators::Halves, Denominators::Mixed, Denominators::Awkward,
                                           Denominators::LargeInteger, Denominators::BesideTies,
                                           Denominators::Spread, Denominators::Lopsided));

TEST(OrderScorer, MoreRecordsThanTheShortcutForWholeDenominatorsHoldsFor) {
    ExpectSameBits(Denominators::Whole, 600, 4, 1);
}

TEST(OrderScorer, NegativeDenominatorsLetTheSumFall) {
    FloatTable denominators = MakeDenominators(Denominators::Mixed, 40, 1);
    for (std::int32_t i = 1; i <= 40; i += 3) denominators(i, 41 - i) = denominators(41 - i, i) = -0.75F;
    const auto orders = ShuffledOrders(6, 40, 2);
    std::vector<float> scores(6);
    OrderScorer(denominators).Score(orders.Cells(), scores);
    for (std::int32_t v = 1; v <= 6; ++v)
        EXPECT_EQ(scores[std::size_t(v - 1)], PlainScore(denominators, orders, v));
}

TEST(OrderScorer, ZeroThatCountsIsADivisionByZeroOnTheDiagonalItDoesNot) {
    FloatTable denominators(3, 3, 1.0F);
    for (std::int32_t i = 1; i <= 3; ++i) denominators(i, i) = 0;
    const std::vector<std::int16_t> order = {2, 1, 3};
    float score = 0;
    OrderScorer(denominators).Score(order, {&score, 1});
    EXPECT_EQ(score, static_cast<float>(6.0 / 4.5));
    denominators(1, 2) = 0; // with 2 in front of 1 it is not asked for
    OrderScorer(denominators).Score(order, {&score, 1});
    EXPECT_EQ(score, static_cast<float>(6.0 / 4.5));
    denominators(2, 1) = 0;
    try {
        OrderScorer(denominators).Score(order, {&score, 1});
        FAIL();
    } catch (const RuntimeFailure& failure) {
        EXPECT_EQ(failure.Kind(), Failure::DivisionByZero);
    }
}

} // namespace
} // namespace dorvan
