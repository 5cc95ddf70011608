#include "files/allocations.h"

#include <algorithm>
#include <cstdlib>
#include <new>

namespace {
std::size_t largest = 0;
}

namespace dorvan::test {

void forgetAllocations() { largest = 0; }
std::size_t largestAllocation() { return largest; }

} // namespace dorvan::test

// The whole test program allocates through these.
void* operator new(std::size_t size) {
    largest = std::max(largest, size);
    if (void* memory = std::malloc(size == 0 ? 1 : size)) return memory;
    throw std::bad_alloc();
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
