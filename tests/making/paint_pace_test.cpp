#include "making/paint_pace.h"
#include "support/test_platform.h"

#include <gtest/gtest.h>

namespace dorvan {
namespace {

// A clock that counts the looks at it and moves on with the work, not with the looks.
class WorkClock : public Clock {
public:
    double now = 100;
    int looks = 0;
    double seconds() override {
        ++looks;
        return now;
    }
};

int PaintingsOf(WorkClock& clock, PaintPace& pace, int questions, double secondsEach) {
    int paintings = 0;
    for (int k = 0; k < questions; ++k) {
        paintings += pace.Due() ? 1 : 0;
        clock.now += secondsEach;
    }
    return paintings;
}

TEST(PaintPace, PaintsAtTheFirstQuestionAndAgainAfterASixtiethOfASecond) {
    WorkClock clock;
    PaintPace pace(clock);
    EXPECT_TRUE(pace.Due());
    clock.now += 0.016;
    EXPECT_FALSE(pace.Due());
    clock.now += 0.001;
    EXPECT_TRUE(pace.Due());
    EXPECT_EQ(pace.Now(), clock.now);
    clock.now += 0.016;
    EXPECT_FALSE(pace.Due());
}

TEST(PaintPace, PaintsSixtyTimesASecondHoweverQuickTheWork) {
    for (const double each : {1e-7, 1e-6, 1e-5, 1e-4, 1e-3, 1e-2}) {
        WorkClock clock;
        PaintPace pace(clock);
        const int paintings = PaintingsOf(clock, pace, static_cast<int>(2 / each), each);
        EXPECT_LE(paintings, 121) << each;
        EXPECT_GE(paintings, 100) << each;
    }
}

TEST(PaintPace, LooksAtTheClockFarLessOftenThanItIsAsked) {
    WorkClock clock;
    PaintPace pace(clock);
    PaintingsOf(clock, pace, 1'000'000, 1e-6);
    EXPECT_LT(clock.looks, 5000);
}

TEST(PaintPace, LooksEachTimeWhereTheWorkIsSlow) {
    WorkClock clock;
    PaintPace pace(clock);
    PaintingsOf(clock, pace, 100'000, 1e-6);
    PaintingsOf(clock, pace, 2000, 0.05); // some are passed over until it has slowed down
    const int looks = clock.looks;
    EXPECT_EQ(PaintingsOf(clock, pace, 50, 0.05), 50);
    EXPECT_EQ(clock.looks - looks, 50);
}

TEST(PaintPace, GoesOnPaintingAfterMidnight) {
    WorkClock clock;
    clock.now = 86399.999;
    PaintPace pace(clock);
    EXPECT_TRUE(pace.Due());
    clock.now = 0.001;
    EXPECT_TRUE(pace.Due());
    clock.now += 0.02;
    EXPECT_TRUE(pace.Due());
}

} // namespace
} // namespace dorvan
