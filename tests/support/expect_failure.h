#pragma once

#include "numbers/runtime_failure.h"

#include <gtest/gtest.h>

namespace dorvan::test {

template <class Action>::testing::AssertionResult endsInFailure(Failure expected, const Action& action) {
    try {
        action();
    } catch (const RuntimeFailure& failure) {
        if (failure.Kind() == expected) return ::testing::AssertionSuccess();
        return ::testing::AssertionFailure() << failure.what();
    }
    return ::testing::AssertionFailure() << "no failure";
}

} // namespace dorvan::test

// That an expression ends with this RuntimeFailure and no other.
#define EXPECT_FAILURE(expected, ...)                                                                        \
    EXPECT_TRUE(::dorvan::test::endsInFailure(expected, [&] { static_cast<void>(__VA_ARGS__); }))
