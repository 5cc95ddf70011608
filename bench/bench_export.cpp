#include "export/delimited_text.h"
#include "export/excel_file.h"
#include "print/diagram_pages.h"
#include "print/matrix_pages.h"

#include <benchmark/benchmark.h>

#include <fmt/format.h>

#include <cstdlib>
#include <filesystem>
#include <string>

// A matrix of 250 records, 62500 numbers, as a worksheet and as delimited text, into a file in the folder for
// temporary ones, and the pages of a diagram and of a matrix of that size.
namespace dorvan {
namespace {

constexpr std::int16_t Records = 250;
const FileText Text{CodePage(1252), '.', {}};

const DistanceMatrix& Matrix() {
    static const DistanceMatrix matrix = [] {
        DistanceMatrix made{Array1<std::string>(Records), Array2<std::string>(Records, Records), Records};
        for (int i = 1; i <= Records; ++i) {
            made.Names(i) = fmt::format("Record {}", i);
            for (int j = 1; j <= Records; ++j)
                made.Cells(i, j) = fmt::format("{:.7g}", float(std::abs(i - j)) * 1.2345f);
        }
        return made;
    }();
    return matrix;
}

std::string Target() { return (std::filesystem::temp_directory_path() / "dorvan_bench_export").string(); }

void Worksheet(benchmark::State& state) {
    for (auto _ : state) {
        ExcelFile excel(Text);
        excel.CreateFile(Target());
        for (int i = 1; i <= Records; ++i) {
            excel.WriteValue(CellType::Text, 0, 1, 0, i, 1, Matrix().Names(i));
            for (int j = 1; j <= Records; ++j)
                excel.WriteValue(CellType::Number, 0, 3, 0, i, j + 1, Matrix().Cells(i, j));
        }
        if (excel.CloseFile() != 0) state.SkipWithError("the worksheet was not written");
    }
    std::filesystem::remove(Target());
}

void DelimitedText(benchmark::State& state) {
    for (auto _ : state) ReplaceFile(Target(), MatrixAsText(Matrix(), ';', Text.Codes));
    std::filesystem::remove(Target());
}

struct PlainMeasure : TextMeasure {
    TextExtent extentOf(const std::string& text, const drawing::Font& font) override {
        return {double(text.size()) * font.Size * 12, font.Size * 22.7};
    }
};

constexpr double PageWidth = 11500;
constexpr double PageHeight = 16440;

void MatrixPagesOf250(benchmark::State& state) {
    PlainMeasure measure;
    for (auto _ : state)
        benchmark::DoNotOptimize(MatrixPages(Matrix(), "bench", {PageWidth, PageHeight, ""}, measure, '.'));
}

void DiagramPagesOf250(benchmark::State& state) {
    DiagramDocument diagram;
    diagram.RecCount = Records;
    diagram.DiagType = static_cast<std::int16_t>(state.range(0));
    diagram.RecordNames = Matrix().Names;
    diagram.Classes = Array2<std::int16_t>(Records, Records);
    for (int i = 1; i <= Records; ++i)
        for (int j = 1; j <= Records; ++j) diagram.Classes(i, j) = static_cast<std::int16_t>(1 + (i + j) % 5);
    PlainMeasure measure;
    for (auto _ : state)
        benchmark::DoNotOptimize(
            DiagramPages(diagram, "bench", 1, {PageWidth, PageHeight, ""}, measure, '.'));
}

BENCHMARK(Worksheet)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(DelimitedText)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(MatrixPagesOf250)->Unit(benchmark::kMillisecond);
BENCHMARK(DiagramPagesOf250)->DenseRange(1, 3)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace dorvan

BENCHMARK_MAIN();
