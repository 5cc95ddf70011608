#include "files/data_file.h"
#include "files/diagram_file.h"
#include "files/matrix_file.h"
#include "plain_against_fast.h"
#include "tests/files/plain_files.h"

#include <benchmark/benchmark.h>

// The three readers and writers at 250 records by 10 variables, from bytes in memory to tables and back,
// beside the same by string streams in the same run: the counter "ratio" tells how many times the streams
// take as long.
namespace dorvan {
namespace {

constexpr std::int16_t Records = 250;
constexpr std::int16_t Variables = 10;

const test::RandomDocuments& Documents() {
    static const test::RandomDocuments documents(Records, Variables, 1);
    return documents;
}

const FileText Text{CodePage(1252), '.', {}};

using bench::Compare;

void ReadData(benchmark::State& state) {
    const std::string bytes = test::plainDataBytes(Documents().Sheet, "about");
    Compare(
        state,
        [&] {
            DocumentTables tables;
            ParseDataFile(bytes, Text, tables);
            return tables.DataValues(1, 1);
        },
        [&] { return test::plainDataFile(bytes); });
}

void WriteData(benchmark::State& state) {
    Compare(
        state, [] { return ComposeDataFile(Documents().Sheet, "about", Text); },
        [] { return test::plainDataBytes(Documents().Sheet, "about"); });
}

void ReadMatrix(benchmark::State& state) {
    const std::string bytes = test::plainMatrixBytes(Documents().Matrix, "about");
    Compare(
        state,
        [&] {
            DistanceMatrix matrix;
            MatrixFileReader(bytes, Text).ReadInto(matrix);
            return matrix.Size;
        },
        [&] { return test::plainMatrixFile(bytes); });
}

void WriteMatrix(benchmark::State& state) {
    Compare(
        state, [] { return ComposeMatrixFile(Documents().Matrix, "about", Text); },
        [] { return test::plainMatrixBytes(Documents().Matrix, "about"); });
}

void ReadDiagram(benchmark::State& state) {
    const std::string bytes = test::plainDiagramBytes(Documents().Diagram, "about");
    Compare(
        state,
        [&] {
            DocumentTables tables;
            ParseDiagramFile(bytes, Text, tables);
            return tables.DistanceValues(1, 1);
        },
        [&] { return test::plainDiagramFile(bytes); });
}

void WriteDiagram(benchmark::State& state) {
    Compare(
        state, [] { return ComposeDiagramFile(Documents().Diagram, "about", Text); },
        [] { return test::plainDiagramBytes(Documents().Diagram, "about"); });
}

BENCHMARK(ReadData)->Unit(benchmark::kMicrosecond);
BENCHMARK(WriteData)->Unit(benchmark::kMicrosecond);
BENCHMARK(ReadMatrix)->Unit(benchmark::kMicrosecond);
BENCHMARK(WriteMatrix)->Unit(benchmark::kMicrosecond);
BENCHMARK(ReadDiagram)->Unit(benchmark::kMicrosecond);
BENCHMARK(WriteDiagram)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace dorvan

BENCHMARK_MAIN();
