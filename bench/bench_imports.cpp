#include "import/reading_dbase.h"
#include "import/text_codes.h"
#include "import/text_table.h"
#include "tests/import/plain_imports.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>

// The imports of 250 records by 100 variables, from bytes in memory to tables, beside the plain ways in the
// same run: the counter "ratio" tells how many times the plain way takes as long.
namespace dorvan {
namespace {

constexpr int Records = 250;
constexpr int Variables = 100;

const TextCodes Codes{CodePage(1252), false};

// Seconds of one run, the least of several.
template <class Run> double LeastTime(const Run& run) {
    double least = 1e9;
    for (int repeat = 0; repeat < 5; ++repeat) {
        const auto start = std::chrono::steady_clock::now();
        benchmark::DoNotOptimize(run());
        const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
        least = std::min(least, taken.count());
    }
    return least;
}

template <class Run, class Plain> void Compare(benchmark::State& state, const Run& run, const Plain& plain) {
    for (auto _ : state) benchmark::DoNotOptimize(run());
    const double plainTime = LeastTime(plain);
    state.counters["plain_us"] = plainTime * 1e6;
    state.counters["ratio"] = plainTime / LeastTime(run);
}

void ImportText(benchmark::State& state) {
    const std::string bytes = test::plainTextTable(Records, Variables, 1);
    Compare(
        state,
        [&] {
            return TextTable(TextOfFile(bytes, Codes), {';', true, true}).Read('.').Values(1, 1);
        },
        [&] { return test::plainReadTable(bytes); });
}

void ImportDBase(benchmark::State& state) {
    const std::string bytes = test::plainDBaseTable(Records, Variables, 1);
    DBaseSelection selection{{}, "NAME"};
    for (int j = 1; j <= Variables; ++j) selection.Variables.push_back("VAR" + std::to_string(j));
    const auto opened = [&] {
        modDBF table;
        table.OpenDBF(bytes, Codes);
        return table;
    };
    Compare(
        state,
        [&] {
            modDBF table = opened();
            return ReadDBaseRecords(table, bytes, selection, Records, '.', Codes, [](std::int32_t) {})
                .Table.Values(1, 1);
        },
        [&] {
            modDBF table = opened();
            return test::plainReadDBase(table, bytes, selection, Records);
        });
}

BENCHMARK(ImportText)->Unit(benchmark::kMicrosecond);
BENCHMARK(ImportDBase)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace dorvan

BENCHMARK_MAIN();
