#include "numbers/rounding.h"

#include "support/expect_failure.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>

namespace dorvan {
namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();

TEST(RoundToInt16, TiesGoToEven) {
    EXPECT_EQ(RoundToInt16(0.5), 0);
    EXPECT_EQ(RoundToInt16(1.5), 2);
    EXPECT_EQ(RoundToInt16(2.5), 2);
    EXPECT_EQ(RoundToInt16(-0.5), 0);
    EXPECT_EQ(RoundToInt16(-1.5), -2);
    EXPECT_EQ(RoundToInt16(-2.5), -2);
    EXPECT_EQ(RoundToInt16(2.4999999), 2);
    EXPECT_EQ(RoundToInt16(2.5000001), 3);
}

TEST(RoundToInt16, RoundedValueDecidesTheRange) {
    EXPECT_EQ(RoundToInt16(32767.49), 32767);
    EXPECT_EQ(RoundToInt16(-32768.5), -32768);
    EXPECT_FAILURE(Failure::Overflow, RoundToInt16(32767.5));
    EXPECT_FAILURE(Failure::Overflow, RoundToInt16(-32768.51));
    EXPECT_FAILURE(Failure::Overflow, RoundToInt16(1e300));
}

TEST(RoundToInt16, WhatIsNoFiniteNumberFails) {
    EXPECT_FAILURE(Failure::Overflow, RoundToInt16(NotANumber));
    EXPECT_FAILURE(Failure::Overflow, RoundToInt16(Infinity));
    EXPECT_FAILURE(Failure::Overflow, RoundToInt16(-Infinity));
}

TEST(RoundToInt32, TiesGoToEvenUpToTheEnds) {
    EXPECT_EQ(RoundToInt32(100000.5), 100000);
    EXPECT_EQ(RoundToInt32(100001.5), 100002);
    EXPECT_EQ(RoundToInt32(2147483647.25), 2147483647);
    EXPECT_EQ(RoundToInt32(-2147483648.5), std::numeric_limits<std::int32_t>::min());
    EXPECT_FAILURE(Failure::Overflow, RoundToInt32(2147483647.5));
    EXPECT_FAILURE(Failure::Overflow, RoundToInt32(-2147483649.0));
    EXPECT_FAILURE(Failure::Overflow, RoundToInt32(NotANumber));
}

TEST(RoundToByte, TiesGoToEvenWithinAByte) {
    EXPECT_EQ(RoundToByte(254.5), 254);
    EXPECT_EQ(RoundToByte(-0.5), 0);
    EXPECT_EQ(RoundToByte(255.49), 255);
    EXPECT_FAILURE(Failure::Overflow, RoundToByte(255.5));
    EXPECT_FAILURE(Failure::Overflow, RoundToByte(-0.51));
    EXPECT_FAILURE(Failure::Overflow, RoundToByte(NotANumber));
}

TEST(RoundToFloat, TakesTheNearestFloatTiesToEven) {
    EXPECT_EQ(RoundToFloat(0.1), 0.1F);
    EXPECT_EQ(RoundToFloat(1.0 + 0x1p-24), 1.0F);
    EXPECT_EQ(RoundToFloat(1.0 + 0x1.8p-23), 1.0F + 0x1p-22F);
    EXPECT_EQ(RoundToFloat(1e-50), 0.0F);
    EXPECT_EQ(RoundToFloat(1e-40), 1e-40F);
    EXPECT_TRUE(std::signbit(RoundToFloat(-1e-50)));
}

TEST(RoundToFloat, FiniteValueThatRoundsToInfinityFails) {
    constexpr double Greatest = std::numeric_limits<float>::max();
    constexpr double TieWithInfinity = 0x1.ffffffp+127;
    EXPECT_EQ(RoundToFloat(Greatest), std::numeric_limits<float>::max());
    EXPECT_EQ(RoundToFloat(std::nextafter(TieWithInfinity, 0)), std::numeric_limits<float>::max());
    EXPECT_EQ(RoundToFloat(-std::nextafter(TieWithInfinity, 0)), std::numeric_limits<float>::lowest());
    EXPECT_FAILURE(Failure::Overflow, RoundToFloat(TieWithInfinity));
    EXPECT_FAILURE(Failure::Overflow, RoundToFloat(-TieWithInfinity));
    EXPECT_FAILURE(Failure::Overflow, RoundToFloat(1e39));
}

TEST(RoundToFloat, InfinitiesAndNotANumberFail) {
    EXPECT_FAILURE(Failure::Overflow, RoundToFloat(Infinity));
    EXPECT_FAILURE(Failure::Overflow, RoundToFloat(-Infinity));
    EXPECT_FAILURE(Failure::Overflow, RoundToFloat(NotANumber));
}

TEST(Int16Arithmetic, SumsWithinTheRangeAndFailsBeyond) {
    EXPECT_EQ(AddInt16(32766, 1), 32767);
    EXPECT_EQ(AddInt16(-32767, -1), -32768);
    EXPECT_FAILURE(Failure::Overflow, AddInt16(32767, 1));
    EXPECT_FAILURE(Failure::Overflow, AddInt16(-32768, -1));
}

TEST(Int16Arithmetic, SubtractsWithinTheRangeAndFailsBeyond) {
    EXPECT_EQ(SubtractInt16(-32767, 1), -32768);
    EXPECT_EQ(SubtractInt16(0, -32767), 32767);
    EXPECT_FAILURE(Failure::Overflow, SubtractInt16(0, -32768));
    EXPECT_FAILURE(Failure::Overflow, SubtractInt16(-32768, 1));
}

TEST(Int16Arithmetic, MultipliesWithinTheRangeAndFailsBeyond) {
    EXPECT_EQ(MultiplyInt16(-256, 128), -32768);
    EXPECT_EQ(MultiplyInt16(4681, 7), 32767);
    EXPECT_FAILURE(Failure::Overflow, MultiplyInt16(256, 128));
    EXPECT_FAILURE(Failure::Overflow, MultiplyInt16(-32768, -32768));
}

TEST(NarrowToInt16, FailsOutsideSixteenBits) {
    EXPECT_EQ(NarrowToInt16(32767), 32767);
    EXPECT_EQ(NarrowToInt16(-32768), -32768);
    EXPECT_FAILURE(Failure::Overflow, NarrowToInt16(32768));
    EXPECT_FAILURE(Failure::Overflow, NarrowToInt16(-32769));
    EXPECT_FAILURE(Failure::Overflow, NarrowToInt16(std::numeric_limits<std::int64_t>::max()));
}

} // namespace
} // namespace dorvan
