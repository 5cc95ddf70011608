#include "distance/measures.h"
#include "files/data_file.h"
#include "making/attractions.h"
#include "making/best_order.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <ctime>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

// The best order of two samples (columns standardized, Euclidean distances), with 100 seeds each, on one
// thread and on all. Counters: "reached" counts the seeds that ended at the best 2-SUM / n^2 known,
// "worst_percent" tells how far above it the worst ended, "cpu_ms" and "most_cpu_ms" the processor's time for
// a run.
namespace dorvan {
namespace {

constexpr int Seeds = 100;

FloatTable Values(const std::string& sample) {
    std::ifstream file(std::string(DORVAN_SOURCE_FOLDER) + "/samples/" + sample + ".mdt", std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    DocumentTables tables;
    ParseDataFile(bytes, {CodePage(1252), '.', {}}, tables);
    return tables.DataValues;
}

// Mean 0 and standard deviation 1 (of n - 1) in each column.
void Standardize(FloatTable& values) {
    const double n = values.Rows();
    for (std::int32_t v = 1; v <= values.Columns(); ++v) {
        double mean = 0;
        double squares = 0;
        for (std::int32_t i = 1; i <= values.Rows(); ++i) mean += double(values(i, v)) / n;
        for (std::int32_t i = 1; i <= values.Rows(); ++i) squares += std::pow(double(values(i, v)) - mean, 2);
        for (std::int32_t i = 1; i <= values.Rows(); ++i)
            values(i, v) = static_cast<float>((double(values(i, v)) - mean) / std::sqrt(squares / (n - 1)));
    }
}

FloatTable Distances(const std::string& sample) {
    FloatTable values = Values(sample);
    Standardize(values);
    return DistancesBetweenRows(values, values.Rows(), values.Columns(), {.Type = DistanceType::Euclidean});
}

double CriterionOf(const FloatTable& distances, const Order& order) {
    FloatTable ordered(distances.Rows(), distances.Rows());
    for (std::int32_t i = 1; i <= order.Count(); ++i)
        for (std::int32_t j = 1; j <= order.Count(); ++j) ordered(i, j) = distances(order(i), order(j));
    return TwoSumOfOrder(ordered);
}

double ProcessorSeconds() {
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return double(now.tv_sec) + double(now.tv_nsec) / 1e9;
}

void BestOrderOf(benchmark::State& state, const std::string& sample, double best) {
    const FloatTable distances = Distances(sample);
    double reached = 0;
    double worst = 0;
    double sum = 0;
    double most = 0;
    for (auto _ : state)
        for (std::uint64_t seed = 1; seed <= Seeds; ++seed) {
            const double start = ProcessorSeconds();
            const Order order = BestOrder(distances, seed, {}, static_cast<int>(state.range(0)));
            const double seconds = ProcessorSeconds() - start;
            const double above = CriterionOf(distances, order) / best - 1;
            reached += above < 1e-7 ? 1 : 0;
            worst = std::max(worst, above);
            sum += seconds;
            most = std::max(most, seconds);
        }
    state.counters["reached"] = reached;
    state.counters["worst_percent"] = 100 * worst;
    state.counters["cpu_ms"] = 1000 * sum / Seeds;
    state.counters["most_cpu_ms"] = 1000 * most;
}

void Iris(benchmark::State& state) { BestOrderOf(state, "iris", 835.2839); }
void Quakes250(benchmark::State& state) { BestOrderOf(state, "quakes250", 2277.6039); }

BENCHMARK(Iris)->ArgName("threads")->Arg(1)->Arg(0)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(Quakes250)->ArgName("threads")->Arg(1)->Arg(0)->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace dorvan

BENCHMARK_MAIN();
