#include "making/ravelin_operators.h"

#include "making/order_quality.h"
#include "making/order_scores.h"
#include "support/expect_failure.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <numeric>
#include <vector>

namespace dorvan {
namespace {

using Records = std::vector<std::int16_t>;

struct Draw {
    std::int32_t low;
    std::int32_t high;
    std::int32_t value; // Any for one that does not matter
};
constexpr std::int32_t Any = -1;

// A random source whose next draws are these; a far jump ahead in the stream until one is found.
RandomSource Drawing(const std::vector<Draw>& draws) {
    RandomSource start(1);
    for (;; start.Skip(7)) {
        RandomSource random = start;
        if (std::all_of(draws.begin(), draws.end(), [&random](const Draw& draw) {
                const std::int32_t value = RandomInRange(random, draw.low, draw.high);
                return draw.value == Any || draw.value == value;
            }))
            return start;
    }
}

Records InOrder(std::int32_t n) {
    Records records(static_cast<std::size_t>(n));
    std::iota(records.begin(), records.end(), std::int16_t(1));
    return records;
}

// 1..n after an operator, which has to use these draws and no other.
Records After(int which, std::int32_t n, const std::vector<Draw>& draws) {
    Records records = InOrder(n);
    RandomSource random = Drawing(draws);
    RandomSource behind = random;
    behind.Skip(draws.size());
    ApplyOperator(which, random, records);
    EXPECT_EQ(random.Position(), behind.Position());
    return records;
}

Records Moved(std::int32_t a, std::int32_t b) {
    Records records = {11, 12, 13, 14, 15};
    MoveElement(records, a, b);
    return records;
}

TEST(MoveElement, TowardsTheFrontPushesTheOthersBack) {
    EXPECT_EQ(Moved(4, 2), (Records{11, 14, 12, 13, 15}));
    EXPECT_EQ(Moved(5, 1), (Records{15, 11, 12, 13, 14}));
}

TEST(MoveElement, TowardsTheEndPullsTheOthersForward) {
    EXPECT_EQ(Moved(2, 4), (Records{11, 13, 14, 12, 15}));
    EXPECT_EQ(Moved(1, 5), (Records{12, 13, 14, 15, 11}));
}

TEST(MoveElement, ToItsOwnPlaceChangesNothing) { EXPECT_EQ(Moved(3, 3), (Records{11, 12, 13, 14, 15})); }

TEST(SequenceChange, LeftPlaceMovesByTwoAndTheRightByOne) {
    EXPECT_EQ(After(1, 10, {{1, 10, 2}, {1, 10, 7}}), (Records{1, 7, 3, 6, 4, 5, 2, 8, 9, 10}));
    EXPECT_EQ(After(1, 10, {{1, 10, 1}, {1, 10, 10}}), (Records{10, 2, 9, 4, 8, 3, 7, 5, 6, 1}));
    EXPECT_EQ(After(1, 10, {{1, 10, 4}, {1, 10, 6}}), (Records{1, 2, 3, 6, 5, 4, 7, 8, 9, 10}));
}

TEST(SequenceChange, TakesItsPlacesInEitherOrder) {
    EXPECT_EQ(After(1, 10, {{1, 10, 7}, {1, 10, 2}}), (Records{1, 7, 3, 6, 4, 5, 2, 8, 9, 10}));
}

TEST(SequenceChange, DrawsTheSecondPlaceUntilItDiffers) {
    EXPECT_EQ(After(1, 5, {{1, 5, 4}, {1, 5, 4}, {1, 5, 4}, {1, 5, 5}}), (Records{1, 2, 3, 5, 4}));
}

TEST(FragmentTransfer, PutsAFragmentAtAPlaceOfWhatIsLeft) {
    EXPECT_EQ(After(2, 10, {{1, 10, 3}, {1, 5, 4}, {1, 6, 2}}), (Records{1, 3, 4, 5, 6, 2, 7, 8, 9, 10}));
    EXPECT_EQ(After(2, 10, {{1, 10, 3}, {1, 5, 4}, {1, 6, 6}}), (Records{1, 2, 7, 8, 9, 3, 4, 5, 6, 10}));
    EXPECT_EQ(After(2, 10, {{1, 10, 3}, {1, 5, 4}, {1, 6, 3}}), InOrder(10));
}

TEST(FragmentTransfer, EndsAFragmentAtTheLastPlace) {
    EXPECT_EQ(After(2, 10, {{1, 10, 9}, {1, 5, 5}, {1, 8, 1}}), (Records{9, 10, 1, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_EQ(After(2, 10, {{1, 10, 9}, {1, 5, 5}, {1, 8, 8}}), (Records{1, 2, 3, 4, 5, 6, 7, 9, 10, 8}));
}

TEST(FragmentTransfer, OfThreeRecordsMovesOneToTheFirstOrSecondPlace) {
    EXPECT_EQ(After(2, 3, {{1, 3, 1}, {1, 1, 1}, {1, 2, 1}}), (Records{1, 2, 3}));
    EXPECT_EQ(After(2, 3, {{1, 3, 1}, {1, 1, 1}, {1, 2, 2}}), (Records{2, 1, 3}));
    EXPECT_EQ(After(2, 3, {{1, 3, 2}, {1, 1, 1}, {1, 2, 1}}), (Records{2, 1, 3}));
    EXPECT_EQ(After(2, 3, {{1, 3, 2}, {1, 1, 1}, {1, 2, 2}}), (Records{1, 2, 3}));
    EXPECT_EQ(After(2, 3, {{1, 3, 3}, {1, 1, 1}, {1, 2, 1}}), (Records{3, 1, 2}));
    EXPECT_EQ(After(2, 3, {{1, 3, 3}, {1, 1, 1}, {1, 2, 2}}), (Records{1, 3, 2}));
}

TEST(SomeSingleTransfers, MovesACountOfRecordsEachWithADroppedDraw) {
    EXPECT_EQ(After(3, 5, {{1, 19, 2}, {1, 5, 1}, {1, 4, Any}, {1, 5, 3}, {1, 5, 2}, {1, 4, Any}, {1, 5, 1}}),
              (Records{3, 2, 1, 4, 5}));
    EXPECT_EQ(After(3, 5, {{1, 19, 1}, {1, 5, 5}, {1, 4, Any}, {1, 5, 1}}), (Records{5, 1, 2, 3, 4}));
}

TEST(SingleTransfer, DropsTheDrawBetweenItsPlaces) {
    EXPECT_EQ(After(4, 10, {{1, 10, 8}, {1, 9, Any}, {1, 10, 3}}), (Records{1, 2, 8, 3, 4, 5, 6, 7, 9, 10}));
    EXPECT_EQ(After(4, 10, {{1, 10, 3}, {1, 9, 5}, {1, 10, 8}}), (Records{1, 2, 4, 5, 6, 7, 8, 3, 9, 10}));
}

TEST(SingleTransfer, DrawsTheSecondPlaceUntilItDiffers) {
    EXPECT_EQ(After(4, 5, {{1, 5, 4}, {1, 4, Any}, {1, 5, 4}, {1, 5, 4}, {1, 5, 1}}),
              (Records{4, 1, 2, 3, 5}));
}

TEST(SomeRemoteConversions, ExchangesACountOfPairs) {
    EXPECT_EQ(After(5, 5, {{1, 19, 2}, {1, 5, 1}, {1, 5, 5}, {1, 5, 5}, {1, 5, 2}}),
              (Records{5, 1, 3, 4, 2}));
}

TEST(RemoteConversion, ExchangesTwoPlacesThatMayBeTheSame) {
    EXPECT_EQ(After(6, 5, {{1, 5, 2}, {1, 5, 5}}), (Records{1, 5, 3, 4, 2}));
    EXPECT_EQ(After(6, 5, {{1, 5, 3}, {1, 5, 3}}), InOrder(5));
}

TEST(SomeNeighbourConversions, ExchangesACountOfNeighbours) {
    EXPECT_EQ(After(7, 5, {{1, 19, 3}, {1, 5, 1}, {1, 5, 2}, {1, 5, 3}}), (Records{2, 3, 4, 1, 5}));
}

TEST(SomeOperators, DrawCountsUpTo19) {
    std::vector<Draw> draws(20, {1, 5, Any});
    draws[0] = {1, 19, 19};
    After(7, 5, draws);
    draws.resize(39, {1, 5, Any});
    After(5, 5, draws);
}

TEST(NeighbourConversion, ExchangesWithTheNextAndNothingAtTheEnd) {
    EXPECT_EQ(After(8, 5, {{1, 5, 1}}), (Records{2, 1, 3, 4, 5}));
    EXPECT_EQ(After(8, 5, {{1, 5, 4}}), (Records{1, 2, 3, 5, 4}));
    EXPECT_EQ(After(8, 5, {{1, 5, 5}}), InOrder(5));
}

TEST(Shake, Is500BurstsOfMovesWithADroppedDrawEach) {
    for (const std::int32_t n : {3, 10}) {
        RandomSource random(4);
        RandomSource again = random;
        Records shaken = InOrder(n);
        Shake(random, shaken);
        Records expected = InOrder(n);
        for (int burst = 0; burst < 500; ++burst)
            for (int left = RandomInRange(again, 1, 20); left > 0; --left) {
                const std::int32_t a = RandomInRange(again, 1, n);
                again.Draw();
                std::int32_t b = RandomInRange(again, 1, n);
                while (a == b) b = RandomInRange(again, 1, n);
                const std::int16_t moved = expected[std::size_t(a - 1)];
                expected.erase(expected.begin() + (a - 1));
                expected.insert(expected.begin() + (b - 1), moved);
            }
        EXPECT_EQ(shaken, expected);
        EXPECT_EQ(random.Position(), again.Position());
    }
}

OrderingOptions Weights(const std::vector<std::int16_t>& weights, std::int32_t total) {
    OrderingOptions options;
    std::int16_t* const fields[] = {&options.SequenceChange,           &options.FragmentTransfer,
                                    &options.SomeSingleTransfers,      &options.SingleTransfer,
                                    &options.SomeRemoteConversions,    &options.RemoteConversion,
                                    &options.SomeNeighbourConversions, &options.NeighbourConversion};
    for (std::size_t k = 0; k < weights.size(); ++k) *fields[k] = weights[k];
    options.UmWeightTotal = total;
    return options;
}

int Chosen(const OrderingOptions& options, std::int32_t r) {
    RandomSource random = Drawing({{1, options.UmWeightTotal, r}});
    RandomSource behind = random;
    behind.Skip(1);
    const int which = ChooseOperator(random, options);
    EXPECT_EQ(random.Position(), behind.Position());
    return which;
}

TEST(ChooseOperator, EndsAtTheFirstSumThatReachesTheDraw) {
    const OrderingOptions options = Weights({2, 3, 1, 4, 1, 2, 3, 4}, 20);
    const int expected[] = {1, 1, 2, 2, 2, 3, 4, 4, 4, 4, 5, 6, 6, 7, 7, 7, 8, 8, 8, 8};
    for (std::int32_t r = 1; r <= 20; ++r) EXPECT_EQ(Chosen(options, r), expected[r - 1]) << r;
}

TEST(ChooseOperator, PassesOverWeightsOfZero) {
    const OrderingOptions options = Weights({0, 0, 2, 0, 0, 0, 1, 0}, 3);
    EXPECT_EQ(Chosen(options, 1), 3);
    EXPECT_EQ(Chosen(options, 2), 3);
    EXPECT_EQ(Chosen(options, 3), 7);
}

TEST(ChooseOperator, IsTheEighthForTheWholeExcessOfASecondRun) {
    const OrderingOptions options = Weights({1, 5, 20, 50, 15, 30, 50, 200}, 742);
    EXPECT_EQ(Chosen(options, 171), 7);
    for (const std::int32_t r : {172, 371, 372, 742}) EXPECT_EQ(Chosen(options, r), 8);
}

TEST(ChooseOperator, IsTheEighthWhereAllWeightsAreZero) {
    EXPECT_EQ(Chosen(Weights(std::vector<std::int16_t>(8, 0), 0), 1), 8);
}

TEST(ChooseOperator, OverflowsForADrawBeyond16Bits) {
    const OrderingOptions options = Weights({32767, 1}, 32800);
    EXPECT_EQ(Chosen(options, 32767), 1);
    RandomSource random = Drawing({{1, 32800, 32768}});
    EXPECT_FAILURE(Failure::Overflow, ChooseOperator(random, options));
}

TEST(BaseOfGeneration, IsTheUmCoefficientOfTheSheetOrderForEveryOrder) {
    RandomSource random(8);
    FloatTable distances(20, 20);
    for (std::int32_t i = 1; i <= 20; ++i)
        for (std::int32_t j = 1; j < i; ++j) distances(i, j) = distances(j, i) = 300 * random.Draw();
    const ByteTable bytes = MakeByteMatrix(distances, 1);
    Order order;
    order.Cells() = InOrder(20);
    const double base = BaseOfGeneration(bytes, order);
    EXPECT_NEAR(base, double(UmOfOrder(distances)), 1e-5 * base);
    for (int k = 0; k < 20; ++k) {
        Shake(random, order.Cells());
        EXPECT_NEAR(BaseOfGeneration(bytes, order), base, 1e-12 * base);
    }
}

} // namespace
} // namespace dorvan
