#pragma once

#include <cstdint>

namespace dorvan {

// Uniform 32-bit floats in [0, 1): a 64-bit linear congruential generator (multiplier and increment of
// Knuth's MMIX), of which the upper 24 bits are used. Copyable: a copy continues the same stream.
class RandomSource {
public:
    explicit RandomSource(std::uint64_t seed = 0);

    // The next draw: k / 2^24 with k from 0 to 2^24 - 1.
    float Draw();

    // Passes over `count` draws in O(log count).
    void Skip(std::uint64_t count);

    std::uint64_t Position() const { return state_; }
    void SetPosition(std::uint64_t position) { state_ = position; }

private:
    std::uint64_t state_;
};

// The one source of random integers: floor(r * (high - low + 1) + low) in 64-bit floats, r one draw.
// Both ends can be reached. With high = low - 1 it gives low. Always uses exactly one draw.
std::int32_t RandomInRange(RandomSource& source, std::int32_t low, std::int32_t high);

} // namespace dorvan
