#include "desktop/desktop.h"
#include "files/diagram_file.h"
#include "files/disk.h"
#include "files/file_text.h"
#include "session/children.h"
#include "view/frmDiagram.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QScrollBar>
#include <QSettings>
#include <QTemporaryDir>

#include <cstdlib>
#include <string>

// What a user waits for on the screen, with a diagram of 250 records, the largest there is: from the event to
// the end of the painting, on the offscreen platform (which paints as the X server's does, by software).
namespace dorvan {
namespace {

constexpr std::int16_t Records = 250;
constexpr std::int16_t Variables = 10;

double applicationMilliseconds = 0; // what QApplication itself took to start

const QTemporaryDir& Folder() {
    static const QTemporaryDir folder;
    return folder;
}

std::unique_ptr<Desktop> Start() {
    auto desktop = std::make_unique<Desktop>(Folder().path().toStdString());
    desktop->mainWindow->resize(1366, 768);
    desktop->mainWindow->show();
    QCoreApplication::processEvents();
    desktop->mainWindow->repaint();
    return desktop;
}

// Records along a bent line, so that all classes appear.
const std::string& DiagramPath() {
    static const std::string path = [] {
        DiagramDocument document;
        document.RecCount = Records;
        document.VarCount = Variables;
        document.DistType = 3;
        document.DiagType = 2;
        document.Matrix = FloatTable(Records, Records);
        document.Data = FloatTable(Records, Variables);
        document.RecordNames = Names(Records);
        document.VariableNames = Names(Variables);
        document.RecordHasNA = Flags(Records);
        for (int i = 1; i <= Records; ++i) {
            document.RecordNames(i) = "record " + std::to_string(i);
            for (int j = 1; j <= Records; ++j)
                document.Matrix(i, j) = float(std::abs(i - j) + (i == j ? 0 : (i * 7 + j * 7) % 40));
        }
        for (int j = 1; j <= Variables; ++j) document.VariableNames(j) = "v" + std::to_string(j);
        for (int k = 1; k <= 4; ++k) document.SectionLimits(k) = float(k * 40);
        std::string target = Folder().filePath("bench.dgr").toStdString();
        ReplaceFile(target, ComposeDiagramFile(document, "bench", FileText{CodePage(1252), '.', {}}));
        return target;
    }();
    return path;
}

GridWidget& OpenedGrid(Desktop& desktop) {
    return *desktop.ports.children.FaceOf(*desktop.session.ActiveWindow)->findChild<GridWidget*>();
}

void Paint(GridWidget& grid) {
    QCoreApplication::processEvents();
    grid.viewport()->repaint();
}

void StartToFirstPaintedMainWindow(benchmark::State& state) {
    for (auto _ : state) {
        auto desktop = Start();
        state.PauseTiming();
        desktop.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        state.ResumeTiming();
    }
    state.counters["application_ms"] = applicationMilliseconds;
}

void OpenDiagramToFirstPaintedFrame(benchmark::State& state) {
    DiagramPath();
    auto desktop = Start();
    for (auto _ : state) {
        desktop->Open(DiagramPath());
        Paint(OpenedGrid(*desktop));
        state.PauseTiming();
        CloseChild(desktop->session, *desktop->session.ActiveWindow);
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        state.ResumeTiming();
    }
}

void ScrollStep(benchmark::State& state) {
    auto desktop = Start();
    desktop->Open(DiagramPath());
    GridWidget& grid = OpenedGrid(*desktop);
    Paint(grid);
    QScrollBar& bar = *grid.verticalScrollBar();
    for (auto _ : state) {
        bar.setValue(bar.value() < bar.maximum() ? bar.value() + 1 : 0);
        QCoreApplication::processEvents();
    }
}

void MoveByHandWithRepaint(benchmark::State& state) {
    auto desktop = Start();
    desktop->Open(DiagramPath());
    auto& window = dynamic_cast<frmDiagram&>(*desktop->session.ActiveWindow);
    GridWidget& grid = OpenedGrid(*desktop);
    desktop->dispatch.Run([&] {
        window.Siatka.SetCurrent(1, 1);
        window.SelectThisRow();
    });
    Paint(grid);
    for (auto _ : state) {
        const bool atEnd = window.SelectedRow == Records;
        desktop->dispatch.Run([&] { desktop->shell.ButtonClick("toolDiagram", atEnd ? "Home" : "Down"); });
        Paint(grid);
    }
}

// The whole viewport anew, at a percentage: of all boxes at 12, of those in sight at more.
void RepaintZoomed(benchmark::State& state) {
    auto desktop = Start();
    desktop->Open(DiagramPath());
    auto& window = dynamic_cast<frmDiagram&>(*desktop->session.ActiveWindow);
    GridWidget& grid = OpenedGrid(*desktop);
    desktop->ports.children.FaceOf(window)->showMaximized();
    QCoreApplication::processEvents();
    desktop->dispatch.Run([&] {
        window.ZoomFit();
        while (window.Zoom.Percent() < double(state.range(0))) window.ZoomIn();
    });
    Paint(grid);
    for (auto _ : state) grid.viewport()->repaint();
    state.counters["percent"] = window.Zoom.Percent();
}

// From the turn of the wheel to the end of the painting, in and out between the whole diagram and the tiles.
void ZoomStep(benchmark::State& state) {
    auto desktop = Start();
    desktop->Open(DiagramPath());
    auto& window = dynamic_cast<frmDiagram&>(*desktop->session.ActiveWindow);
    GridWidget& grid = OpenedGrid(*desktop);
    desktop->ports.children.FaceOf(window)->showMaximized();
    Paint(grid);
    bool in = false;
    for (auto _ : state) {
        if (window.Zoom.Percent() <= 12) in = true;
        if (window.Zoom.Percent() >= 100) in = false;
        desktop->dispatch.Run([&] { in ? window.ZoomIn() : window.ZoomOut(); });
        Paint(grid);
    }
}

BENCHMARK(StartToFirstPaintedMainWindow)->Unit(benchmark::kMillisecond);
BENCHMARK(OpenDiagramToFirstPaintedFrame)->Unit(benchmark::kMillisecond);
BENCHMARK(ScrollStep)->Unit(benchmark::kMillisecond);
BENCHMARK(MoveByHandWithRepaint)->Unit(benchmark::kMillisecond);
BENCHMARK(RepaintZoomed)->Arg(12)->Arg(35)->Arg(100)->Arg(200)->Unit(benchmark::kMillisecond);
BENCHMARK(ZoomStep)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace dorvan

int main(int argumentCount, char** arguments) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QElapsedTimer timer;
    timer.start();
    const QApplication application(argumentCount, arguments);
    dorvan::applicationMilliseconds = double(timer.nsecsElapsed()) / 1e6;
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, dorvan::Folder().path());
    benchmark::Initialize(&argumentCount, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
