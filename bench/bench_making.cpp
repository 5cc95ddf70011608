#include "bench/silent_platform.h"
#include "distance/loading.h"
#include "making/frmPrzedzal.h"
#include "making/making_diagram.h"
#include "making/section_limits.h"
#include "plain_against_fast.h"
#include "session/children.h"
#include "session/registry.h"
#include "sheet/frmNotePad.h"
#include "tests/making/plain_making.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <memory>
#include <random>
#include <string>

// The command Make Diagram on a sheet of 250 records, from the text of the sheet to the window with its grid
// filled (but not painted), beside the plain making in the same run: the counter "ratio" tells how many times
// the plain one takes as long.
namespace dorvan {
namespace {

constexpr std::int32_t Records = 250;

// A session with one sheet of numbers from 0 to 10 with two decimals, whose options dialog is answered with
// an order (1 none, 2 simple) and the Euclidean distance.
struct SheetSession : bench::SilentSession {
    bool ordered;

    SheetSession(std::int32_t variables, bool withOrder) : ordered(withOrder) {
        answerDialog = [this](Form& form) {
            auto& dialog = dynamic_cast<frmPrzedzal&>(form);
            ordered ? dialog.Option7_Click() : dialog.Option6_Click();
            dialog.Command3_Click();
        };
        OpenSheet(variables);
    }

    void OpenSheet(std::int32_t variables) {
        std::mt19937 random(250);
        session.NewWindowIndex = FindFreeDataSlot(session);
        PutIntoRegistry(session, DocumentKind::Data, std::make_shared<frmNotePad>(session));
        auto& sheet = DataWindow(session, session.NewWindowIndex);
        sheet.LayOut(Records, variables);
        for (int r = 1; r <= Records; ++r) {
            sheet.Grid1.SetText(r, 1, "record " + std::to_string(r));
            for (int v = 1; v <= variables; ++v) {
                const std::uint32_t draw = random();
                sheet.Grid1.SetText(r, v + 1,
                                    std::to_string(draw % 10) + "." + std::to_string(draw / 10 % 100));
            }
        }
        ShowChild(session, sheet);
    }

    void Make() {
        MakeDiagram(session);
        CloseChild(session, *session.ActiveWindow);
    }

    DiagramDocument MakePlainly() {
        LoadWorkingData(session);
        return test::PlainDiagram(session.tables.DataValues, session.tables.RecordNames,
                                  session.tables.VariableNames, {.Type = DistanceType::Euclidean}, ordered);
    }
};

using bench::LeastTime;

void Report(benchmark::State& state, double plain, double fast) {
    state.counters["plain_us"] = plain * 1e6;
    state.counters["ratio"] = plain / fast;
}

void Making(benchmark::State& state, std::int32_t variables, bool ordered) {
    SheetSession sheet(variables, ordered);
    for (auto _ : state) sheet.Make();
    const double plain = LeastTime([&] { return sheet.MakePlainly(); });
    Report(state, plain, LeastTime([&] { sheet.Make(); }));
}

void AutomaticLimits(benchmark::State& state) {
    SheetSession sheet(10, false);
    sheet.Make();
    const FloatTable distances = sheet.session.tables.DistanceValues;
    for (auto _ : state) benchmark::DoNotOptimize(ComputeAutomaticLimits(distances));
    const double plain = LeastTime([&] { return test::PlainAutomaticLimits(distances); });
    Report(state, plain, LeastTime([&] { return ComputeAutomaticLimits(distances); }));
}

BENCHMARK_CAPTURE(Making, order1_250x10, 10, false)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Making, order2_250x10, 10, true)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Making, order1_250x100, 100, false)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Making, order2_250x100, 100, true)->Unit(benchmark::kMicrosecond);
BENCHMARK(AutomaticLimits)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace dorvan

BENCHMARK_MAIN();
