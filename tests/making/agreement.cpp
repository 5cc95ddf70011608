#include "agreement.h"

#include "making/frmWork.h"
#include "making/frmWorkUM.h"
#include "making/genetic_ordering.h"
#include "making/ravelin_ordering.h"
#include "plain_orderings.h"
#include "support/test_platform.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace dorvan {

namespace {

float DistanceOf(Distances kind, RandomSource& random) {
    const float draw = random.Draw();
    switch (kind) {
    case Distances::Ties: return std::floor(draw * 4);
    case Distances::Wide: return draw * 1000;
    case Distances::Small: return draw;
    case Distances::Negative: return draw * 6.8F - 3.4F;
    case Distances::BelowZero: return draw * 200 - 0.5F;
    case Distances::Huge: return draw < 0.1F ? 1e30F : draw * 1e6F;
    case Distances::Zero: return 0;
    case Distances::Equal: return 7;
    default: return draw * 100;
    }
}

// What both runs of a plan share: the random source, the clock that moves on with each yield, and what
// happens at the yields.
class Stage {
public:
    explicit Stage(const Plan& plan) : options(plan.options), random(plan.seed), plan_(plan) {}

    OrderingOptions options;
    RandomSource random;
    Trace trace;

    float Seconds() const { return 0.3F * static_cast<float>(trace.yields.size()); }

    int Yield(std::string shown) {
        trace.yields.push_back({random.Position(), std::move(shown)});
        const auto now = static_cast<int>(trace.yields.size());
        if (now == plan_.cancelAt) options.WorkCancelled = true;
        return now == plan_.noWindowAt || (plan_.noWindowFrom != 0 && now >= plan_.noWindowFrom) ? 0 : 1;
    }

    template <class Run> Trace Play(const Run& run) {
        try {
            for (int k = 0; k < plan_.runs; ++k) {
                start_ = Seconds();
                const auto found = run();
                trace.found.push_back({found.BestOrder, found.Score, options.WorkCancelled});
            }
        } catch (const RuntimeFailure& failure) {
            trace.failure = failure.Kind();
        }
        trace.position = random.Position();
        trace.weights = options.UmWeightTotal;
        return trace;
    }

    float Elapsed() const { return Seconds() - start_; }

private:
    const Plan& plan_;
    float start_ = 0;
};

std::string Joined(std::initializer_list<std::string> texts) {
    std::string joined;
    for (const std::string& text : texts) joined += text + "|";
    return joined;
}

std::string WidthText(double width) { return std::to_string(std::int64_t(std::floor(width * 4500.0))); }

} // namespace

FloatTable MakeDistances(Distances kind, std::int32_t n, std::uint64_t seed) {
    RandomSource random(seed + 1000);
    FloatTable distances(n, n);
    for (std::int32_t i = 1; i <= n; ++i)
        for (std::int32_t j = 1; j <= n; ++j)
            if (i < j || (i != j && kind == Distances::Lopsided))
                distances(i, j) = DistanceOf(kind, random);
            else if (i > j)
                distances(i, j) = distances(j, i);
    return distances;
}

Trace RunGenetic(const FloatTable& distances, const Plan& plan) {
    Stage stage(plan);
    test::TestSession world;
    world.session.DecimalSeparator = plan.decimalSeparator;
    return stage.Play([&] {
        frmWork window(world.session);
        return SimpleGeneticOrder(distances, stage.options, stage.random, [&](GeneticProgress& progress) {
            if (progress.TimeDue) window.ShowProgress(progress, stage.Elapsed());
            progress.TimeDue = false;
            return stage.Yield(
                Joined({window.InfoString.Caption, window.InfoTime.Caption, window.lblFunkcja.Caption,
                        WidthText(window.Procent1.Width / window.Procent.Width)}));
        });
    });
}

Trace PlainGenetic(const FloatTable& distances, const Plan& plan) {
    Stage stage(plan);
    return stage.Play([&] {
        plain::World world;
        plain::SimpleGenetic run{distances, stage.options, stage.random, world, {}, {}, 0, 0, {}, {}, 0};
        world.decimalSeparator = plan.decimalSeparator;
        world.clock = [&] { return double(stage.Seconds()); };
        world.runEvents = [&] {
            const plain::WorkTexts& window = run.window;
            return stage.Yield(Joined({window.InfoString, window.InfoTime, window.lblFunkcja,
                                       WidthText(double(window.percent) / 100.0)}));
        };
        run.Run();
        return FoundOrder{run.BestOrder, run.BestFitness};
    });
}

Trace RunRavelin(const FloatTable& distances, const Plan& plan) {
    Stage stage(plan);
    test::TestSession world;
    world.session.DecimalSeparator = plan.decimalSeparator;
    return stage.Play([&] {
        frmWorkUM window(world.session);
        RavelinHooks hooks;
        hooks.decimalSeparator = plan.decimalSeparator;
        hooks.invalidMinimum = [&] { ++stage.trace.messages; };
        hooks.yield = [&](RavelinProgress& progress) {
            window.ShowProgress(progress, stage.Elapsed());
            progress.TimeDue = false;
            return stage.Yield(
                Joined({window.Generacje.Caption, window.lblChangesG.Caption, window.Mutacje.Caption,
                        window.lblChangeM.Caption, window.lblFunkcja.Caption, window.lblActualUM.Caption,
                        window.BestUm.Caption, window.InfoTime.Caption}));
        };
        return RavelinOrder(distances, stage.options, stage.random, hooks);
    });
}

Trace PlainRavelin(const FloatTable& distances, const Plan& plan) {
    Stage stage(plan);
    return stage.Play([&] {
        plain::World world;
        plain::Ravelin run{distances, stage.options, stage.random, world, {}, {}, {}, {}, {}};
        world.decimalSeparator = plan.decimalSeparator;
        world.clock = [&] { return double(stage.Seconds()); };
        world.showMessage = [&](const std::string&) { ++stage.trace.messages; };
        world.runEvents = [&] {
            const plain::WorkUmTexts& window = run.window;
            return stage.Yield(
                Joined({window.Generacje, window.lblChangesG, window.Mutacje, window.lblChangeM,
                        window.lblFunkcja, window.lblActualUM, window.BestUm, window.InfoTime}));
        };
        run.Run();
        return FoundOrder{run.BestOrder, run.BestUm};
    });
}

void ExpectSame(const Trace& run, const Trace& plain) {
    EXPECT_EQ(run.yields.size(), plain.yields.size());
    const auto different =
        std::mismatch(run.yields.begin(), run.yields.end(), plain.yields.begin(), plain.yields.end());
    if (different.first != run.yields.end() && different.second != plain.yields.end()) {
        ADD_FAILURE() << "yield " << different.first - run.yields.begin() + 1 << ": "
                      << different.first->shown << " at " << different.first->position << ", but plainly "
                      << different.second->shown << " at " << different.second->position;
    }
    ASSERT_EQ(run.found.size(), plain.found.size());
    for (std::size_t k = 0; k < run.found.size(); ++k) {
        EXPECT_EQ(run.found[k].order.Cells(), plain.found[k].order.Cells());
        EXPECT_EQ(run.found[k].score, plain.found[k].score);
        EXPECT_EQ(run.found[k].cancelled, plain.found[k].cancelled);
    }
    EXPECT_EQ(run.failure, plain.failure);
    EXPECT_EQ(run.position, plain.position);
    EXPECT_EQ(run.weights, plain.weights);
    EXPECT_EQ(run.messages, plain.messages);
}

} // namespace dorvan
