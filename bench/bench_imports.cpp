#include "import/reading_dbase.h"
#include "import/text_codes.h"
#include "import/text_table.h"
#include "plain_against_fast.h"
#include "tests/import/plain_imports.h"

#include <benchmark/benchmark.h>

// The imports of 250 records by 100 variables, from bytes in memory to tables, beside the plain ways in the
// same run: the counter "ratio" tells how many times the plain way takes as long.
namespace dorvan {
namespace {

constexpr int Records = 250;
constexpr int Variables = 100;

const TextCodes Codes{CodePage(1252), false};

using bench::Compare;

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
