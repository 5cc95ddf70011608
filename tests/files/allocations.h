#pragma once

#include <cstddef>

namespace dorvan::test {

// The largest single piece of memory that was asked for since the last call of forgetAllocations().
void forgetAllocations();
std::size_t largestAllocation();

} // namespace dorvan::test
