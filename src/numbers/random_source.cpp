#include "numbers/random_source.h"

namespace dorvan {

namespace {

// The generator of D. Knuth's MMIX: state -> multiplier * state + increment, modulo 2^64.
constexpr std::uint64_t Multiplier = 6364136223846793005u;
constexpr std::uint64_t Increment = 1442695040888963407u;

// The SplitMix64 generator's step (Steele, Lea and Flood 2014): one changed bit of the seed changes about
// half of the state's, so that the streams of neighbouring seeds have nothing in common.
std::uint64_t Scrambled(std::uint64_t seed) {
    std::uint64_t mixed = seed + 0x9E3779B97F4A7C15u;
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9u;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBu;
    return mixed ^ (mixed >> 31);
}

} // namespace

RandomSource::RandomSource(std::uint64_t seed) : state_(Scrambled(seed)) {}

float RandomSource::Draw() {
    state_ = Multiplier * state_ + Increment;
    return static_cast<float>(state_ >> 40) * 0x1p-24F;
}

// Steps of 1, 2, 4, ... draws are affine as well: the step is composed with itself for each bit of the count.
void RandomSource::Skip(std::uint64_t count) {
    std::uint64_t multiplier = Multiplier;
    std::uint64_t increment = Increment;
    for (; count != 0; count >>= 1) {
        if ((count & 1) != 0) state_ = multiplier * state_ + increment;
        increment *= multiplier + 1;
        multiplier *= multiplier;
    }
}

std::int32_t RandomInRange(RandomSource& source, std::int32_t low, std::int32_t high) {
    const double span = double(high) - double(low) + 1.0;
    const double value = double(source.Draw()) * span + double(low);
    const auto whole = static_cast<std::int32_t>(value); // towards 0
    return whole > value ? whole - 1 : whole;
}

} // namespace dorvan
