#include "desktop/grid_text.h"

#include <QFontMetrics>

#include <gtest/gtest.h>

#include <vector>

namespace dorvan::test {

namespace {

QFont PlainFont() {
    QFont font("DejaVu Sans");
    font.setPixelSize(11);
    return font;
}

int WidthOf(const FittedText& fitted) { return QFontMetrics(fitted.Font).horizontalAdvance(fitted.Shown); }

} // namespace

TEST(FitText, WhatFitsStaysAsItIs) {
    const FittedText fitted = FitText("12.500", PlainFont(), 60);
    EXPECT_EQ(fitted.Shown, "12.500");
    EXPECT_EQ(fitted.Font, PlainFont());
    EXPECT_FALSE(fitted.Cut);
}

TEST(FitText, WhatIsALittleTooWideBecomesNarrowerAndIsWhole) {
    const int width = QFontMetrics(PlainFont()).horizontalAdvance("12345.678");
    const FittedText fitted = FitText("12345.678", PlainFont(), width * 8 / 10);
    EXPECT_EQ(fitted.Shown, "12345.678");
    EXPECT_FALSE(fitted.Cut);
    EXPECT_LE(WidthOf(fitted), width * 8 / 10);
    EXPECT_GT(WidthOf(fitted), width * 6 / 10) << "no narrower than it has to be";
}

TEST(FitText, WhatIsFarTooWideIsNarrowAndCut) {
    const FittedText fitted = FitText("a name that no column has room for", PlainFont(), 60);
    EXPECT_TRUE(fitted.Cut);
    EXPECT_TRUE(fitted.Shown.endsWith(QChar(0x2026))) << fitted.Shown.toStdString();
    EXPECT_GT(fitted.Shown.size(), 8);
    EXPECT_LE(WidthOf(fitted), 60);
    EXPECT_LT(fitted.Font.stretch(), 100);
    EXPECT_GE(fitted.Font.stretch(), 60) << "still to be read";
}

TEST(FitText, ANumberInAVeryNarrowColumnIsNeverCut) {
    for (const int room : {15, 12, 8, 3}) {
        const FittedText fitted = FitText("250", PlainFont(), room);
        EXPECT_EQ(fitted.Shown, "250") << room;
        EXPECT_FALSE(fitted.Cut) << room;
    }
    EXPECT_LE(WidthOf(FitText("250", PlainFont(), 15)), 15);
}

TEST(LabelStep, IsTheSmallestRoundNumberThatLeavesALabelItsRoom) {
    EXPECT_EQ(LabelStep(17, 12), 1);
    EXPECT_EQ(LabelStep(12, 12), 1);
    EXPECT_EQ(LabelStep(9, 12), 2);
    EXPECT_EQ(LabelStep(4, 12), 5);
    EXPECT_EQ(LabelStep(2, 9), 5);
    EXPECT_EQ(LabelStep(2, 12), 10);
    EXPECT_EQ(LabelStep(1, 12), 20);
    EXPECT_EQ(LabelStep(1, 30), 50);
    EXPECT_EQ(LabelStep(1, 60), 100);
    EXPECT_EQ(LabelStep(0, 60), 1);
}

} // namespace dorvan::test
