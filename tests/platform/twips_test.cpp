#include "platform/twips.h"

#include <gtest/gtest.h>

namespace dorvan::test {

TEST(PixelsOf, GoesToTheNearestPixel) {
    EXPECT_EQ(PixelsOf(0), 0);
    EXPECT_EQ(PixelsOf(7), 0);
    EXPECT_EQ(PixelsOf(8), 1);
    EXPECT_EQ(PixelsOf(255), 17);
    EXPECT_EQ(PixelsOf(390), 26);
}

} // namespace dorvan::test
