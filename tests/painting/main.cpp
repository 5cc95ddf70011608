#include "painting/toolkit.h"

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    const dorvan::painting::Toolkit toolkit;
    return RUN_ALL_TESTS();
}
