#pragma once

#include "files/file_fault.h"

#include <gtest/gtest.h>

#include <string>

namespace dorvan::test {

// The message of the fault that an action ends with, for a file named "f"; a test failure when there is none.
template <class Action> std::string faultOf(const Action& action) {
    try {
        action();
    } catch (const FileFault& fault) {
        return fault.Describe("f");
    }
    ADD_FAILURE() << "no fault";
    return {};
}

} // namespace dorvan::test
