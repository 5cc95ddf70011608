#include "distance/distance.h"
#include "plain_against_fast.h"
#include "tests/distance/plain_measures.h"

#include <benchmark/benchmark.h>
#include <fmt/format.h>

#include <cstdint>
#include <random>
#include <string>
#include <utility>

// The distances between all records of a sheet, beside the plain definition in the same run: the counter
// "ratio" tells how many times the plain loop takes as long.
namespace dorvan {
namespace {

// Scores 0 and 1 for the binary measures, else numbers from 0 to 10 with two decimals; a cell in 50 missing
// for the measures that skip missing ones.
FloatTable Sheet(std::int32_t n, std::int32_t m, DistanceType type) {
    const MeasureRow& row = *FindMeasure(std::int16_t(type));
    std::mt19937 random(static_cast<std::uint32_t>(n * 1000 + m));
    FloatTable values(n, m);
    for (float& value : values.Cells()) {
        const std::uint32_t draw = random();
        if (row.Kind == DataKind::Binary)
            value = static_cast<float>(draw % 2);
        else if (row.KnowsMissingValues && draw % 50 == 0)
            value = NaValue;
        else
            value = static_cast<float>(draw % 1001) / 100.0f;
    }
    return values;
}

using bench::LeastTime;

void Distances(benchmark::State& state, Measure measure, std::int32_t n, std::int32_t m) {
    const FloatTable values = Sheet(n, m, measure.Type);
    for (auto _ : state) benchmark::DoNotOptimize(DistancesBetweenRows(values, n, m, measure));
    const double plain = LeastTime([&] { return test::plainDistances(values, n, m, measure); });
    const double fast = LeastTime([&] { return DistancesBetweenRows(values, n, m, measure); });
    state.counters["plain_us"] = plain * 1e6;
    state.counters["ratio"] = plain / fast;
}

void Register(const std::string& name, Measure measure, std::int32_t n, std::int32_t m) {
    benchmark::RegisterBenchmark((name + "/" + std::to_string(n) + "x" + std::to_string(m)).c_str(),
                                 Distances, measure, n, m)
        ->Unit(benchmark::kMicrosecond);
}

using ParameterPairs = std::vector<std::pair<std::int16_t, std::int16_t>>;
const ParameterPairs NoParameters{{0, 0}};
const ParameterPairs Parameters{{2, 2}, {3, 3}};

void RegisterAll() {
    for (const MeasureRow& row : Measures())
        for (const auto& [p, r] : row.Code == DistanceType::Customized ? Parameters : NoParameters) {
            const std::string name = p == 0 ? row.Name : fmt::format("{}/p{}r{}", row.Name, p, r);
            const Measure measure{row.Code, p, r};
            for (const auto& [n, m] : {std::pair{150, 10}, {250, 10}, {250, 100}})
                Register(name, measure, n, m);
            if (row.Code == DistanceType::Jaccard) Register(name, measure, 250, 20);
        }
}

} // namespace
} // namespace dorvan

int main(int argc, char** argv) {
    dorvan::RegisterAll();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
