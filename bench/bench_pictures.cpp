#include "export/modFreeImage.h"
#include "export/modWMF.h"
#include "painting/picture_files.h"
#include "painting/raster_player.h"
#include "painting/rasterizer.h"
#include "painting/text_measure.h"
#include "painting/toolkit.h"
#include "view/bitmap_drawing.h"

#include <benchmark/benchmark.h>

// The bitmap of 250 records, the largest there is, with a disc in nearly every cell.
namespace dorvan {
namespace {

const painting::Toolkit& Started() {
    static const painting::Toolkit toolkit;
    return toolkit;
}

DiagramDocument LargestDiagram(std::int16_t type) {
    constexpr std::int16_t records = 250;
    DiagramDocument document;
    document.RecCount = records;
    document.DiagType = type;
    document.RecordNames = Array1<std::string>(records, "record");
    document.Classes = Array2<std::int16_t>(records, records);
    for (int i = 1; i <= records; ++i)
        for (int j = 1; j <= records; ++j)
            document.Classes(i, j) = static_cast<std::int16_t>(1 + (i + j) % 5);
    document.SectionLimits.Cells() = {1, 2, 3, 4};
    return document;
}

Drawing LargestDrawing(std::int16_t type) {
    Started();
    painting::QtTextMeasure measure;
    return BitmapDrawing(LargestDiagram(type), measure, '.');
}

void DrawBitmap(benchmark::State& state) {
    Started();
    const DiagramDocument document = LargestDiagram(static_cast<std::int16_t>(state.range(0)));
    painting::QtTextMeasure measure;
    for (auto _ : state) benchmark::DoNotOptimize(BitmapDrawing(document, measure, '.'));
}
BENCHMARK(DrawBitmap)->DenseRange(1, 3)->Unit(benchmark::kMillisecond);

void PlayBitmap(benchmark::State& state) {
    const Drawing drawing = LargestDrawing(static_cast<std::int16_t>(state.range(0)));
    for (auto _ : state) benchmark::DoNotOptimize(painting::ImageOf(drawing));
}
BENCHMARK(PlayBitmap)->DenseRange(1, 3)->Unit(benchmark::kMillisecond);

void EncodeBitmap(benchmark::State& state) {
    const Drawing drawing = LargestDrawing(2);
    const PixelImage pixels = painting::QtRasterizer().pixelsOf(drawing);
    for (auto _ : state) benchmark::DoNotOptimize(EncodedImage(pixels, ImageFormat::Png));
}
BENCHMARK(EncodeBitmap)->Unit(benchmark::kMillisecond);

void WriteMetafile(benchmark::State& state) {
    const DiagramDocument document = LargestDiagram(2);
    const CodePage codes;
    for (auto _ : state) benchmark::DoNotOptimize(DrawDiagram(document, '.', codes));
}
BENCHMARK(WriteMetafile)->Unit(benchmark::kMillisecond);

void WritePdf(benchmark::State& state) {
    const Drawing drawing = LargestDrawing(2);
    for (auto _ : state) benchmark::DoNotOptimize(painting::PdfOf(drawing));
}
BENCHMARK(WritePdf)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace dorvan

BENCHMARK_MAIN();
