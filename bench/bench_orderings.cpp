#include "bench/silent_platform.h"
#include "distance/distance.h"
#include "making/genetic_ordering.h"
#include "making/ordering_method.h"
#include "making/ordering_options.h"
#include "making/ordering_runs.h"
#include "making/plain_orderings.h"
#include "making/ravelin_ordering.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdint>

// The two genetic orderings on Euclidean distances of n random points, whole runs, each beside the plain
// transcription in the same run. Counters: "ratio" tells how many times the plain run takes as long,
// "ns_term" the nanoseconds for each term of each score, "windows_percent" what the progress window and its
// yields add.
namespace dorvan {
namespace {

constexpr std::uint64_t Seed = 5;
constexpr std::int64_t MostYields = 2'000'000; // a run may never find its end by itself

FloatTable DistancesOfPoints(std::int32_t n) {
    constexpr std::int32_t variables = 10;
    RandomSource random(static_cast<std::uint64_t>(n));
    FloatTable points(n, variables);
    for (auto& value : points.Cells()) value = 50 * random.Draw();
    return DistancesBetweenRows(points, n, variables, {.Type = DistanceType::Euclidean});
}

template <class Run> double Seconds(const Run& run) {
    const auto start = std::chrono::steady_clock::now();
    run();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// The least of some runs, more of them where they are short: what a busy machine adds does not count.
template <class Run> double LeastSeconds(const Run& run) {
    double least = Seconds(run);
    for (int repeat = 0; repeat < 9 && least < 0.2; ++repeat) least = std::min(least, Seconds(run));
    return least;
}

// The clock of a session whose windows are painted, as they are for a user.
struct WatchedSession : bench::SilentSession {
    double seconds() override {
        return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
    }
    WatchedSession() { AddGeneticOrderings(session); }

    Order Run(std::int16_t method, const OrderingOptions& options, const FloatTable& distances) {
        session.random = RandomSource(Seed);
        session.Of<OrderingOptions>() = options;
        return session.Of<OrderingMethods>().at(method).run(session, distances);
    }
};

void Report(benchmark::State& state, std::int32_t n, std::int64_t orders, double plain, double fast,
            double watched) {
    const double terms = double(orders) * n * (n - 1) / 2;
    state.counters["ratio"] = plain / fast;
    state.counters["ns_term"] = fast / terms * 1e9;
    state.counters["plain_ns_term"] = plain / terms * 1e9;
    state.counters["windows_percent"] = (watched / fast - 1) * 100;
}

void SimpleGenetic(benchmark::State& state) {
    const auto n = static_cast<std::int32_t>(state.range(0));
    const FloatTable distances = DistancesOfPoints(n);
    OrderingOptions options;
    options.GeneticVariants = 50;
    options.GeneticGenerations = static_cast<std::int16_t>(state.range(1));
    const auto run = [&] {
        RandomSource random(Seed);
        return SimpleGeneticOrder(distances, options, random, [](GeneticProgress&) { return 1; });
    };
    for (auto _ : state) benchmark::DoNotOptimize(run());
    const double fast = LeastSeconds([&] { benchmark::DoNotOptimize(run()); });

    RandomSource random(Seed);
    plain::World world{.showTexts = false};
    plain::SimpleGenetic twin{distances, options, random, world};
    const double plain = Seconds([&] { twin.Run(); });
    WatchedSession watched;
    const double withWindow =
        LeastSeconds([&] { benchmark::DoNotOptimize(watched.Run(3, options, distances)); });
    Report(state, n, std::int64_t(options.GeneticGenerations) * options.GeneticVariants, plain, fast,
           withWindow);
}

void RavelinDefaults(benchmark::State& state) {
    const auto n = static_cast<std::int32_t>(state.range(0));
    const FloatTable distances = DistancesOfPoints(n);
    std::int64_t yields = 0;
    std::int64_t generations = 0;
    const auto run = [&] {
        RandomSource random(Seed);
        OrderingOptions options;
        RavelinHooks hooks;
        yields = 0;
        hooks.yield = [&](RavelinProgress& progress) {
            generations = progress.Generation.value_or(0);
            return ++yields < MostYields ? 1 : 0;
        };
        hooks.invalidMinimum = [] {};
        return RavelinOrder(distances, options, random, hooks);
    };
    for (auto _ : state) benchmark::DoNotOptimize(run());
    const double fast = LeastSeconds([&] { benchmark::DoNotOptimize(run()); });

    OrderingOptions options;
    RandomSource random(Seed);
    std::int64_t plainYields = 0;
    plain::World world{.runEvents = [&] { return ++plainYields < MostYields ? 1 : 0; }, .showTexts = false};
    plain::Ravelin twin{distances, options, random, world};
    const double plain = Seconds([&] { twin.Run(); });
    if (plainYields != yields) state.SkipWithError("the twins do not agree");
    WatchedSession watched;
    const double withWindow = LeastSeconds([&] { benchmark::DoNotOptimize(watched.Run(4, {}, distances)); });
    Report(state, n, yields - generations, plain, fast, withWindow);
    state.counters["mutations"] = double(yields - generations);
}

BENCHMARK(SimpleGenetic)
    ->ArgNames({"n", "generations"})
    ->Args({50, 250})
    ->Args({150, 50})
    ->Args({250, 25})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(RavelinDefaults)->ArgName("n")->Arg(50)->Arg(150)->Arg(250)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace dorvan

BENCHMARK_MAIN();
