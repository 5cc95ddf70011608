#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <type_traits>

namespace dorvan::bench {

// Seconds of one run, the least of several.
template <class Run> double LeastTime(const Run& run) {
    double least = 1e9;
    for (int repeat = 0; repeat < 5; ++repeat) {
        const auto start = std::chrono::steady_clock::now();
        if constexpr (std::is_void_v<decltype(run())>)
            run();
        else
            benchmark::DoNotOptimize(run());
        const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
        least = std::min(least, taken.count());
    }
    return least;
}

// Times `run`; the counter "ratio" tells how many times as long the plain way takes in the same process.
template <class Run, class Plain> void Compare(benchmark::State& state, const Run& run, const Plain& plain) {
    for (auto _ : state) benchmark::DoNotOptimize(run());
    const double plainTime = LeastTime(plain);
    state.counters["plain_us"] = plainTime * 1e6;
    state.counters["ratio"] = plainTime / LeastTime(run);
}

} // namespace dorvan::bench
