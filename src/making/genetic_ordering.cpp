#include "making/genetic_ordering.h"

#include "making/order_scorer.h"
#include "making/order_scores.h"

#include <algorithm>
#include <numeric>
#include <span>
#include <utility>
#include <vector>

namespace dorvan {

namespace {

constexpr std::uint64_t DrawsOfExchange = 3; // kind, a, b

class Evolution {
public:
    Evolution(const FloatTable& distances, OrderingOptions& options, RandomSource& random)
        : n_(distances.Rows()), options_(options), random_(random), scorer_(ScoreDenominators(distances)),
          best_(std::size_t(n_)), exchanges_(std::max(1, n_ / 10)) {
        std::iota(best_.begin(), best_.end(), std::int16_t(1));
        variants_.resize(std::size_t(options.GeneticVariants) * std::size_t(n_));
        fitness_.resize(std::size_t(options.GeneticVariants));
    }

    FoundOrder Run(const GeneticYield& yield) {
        options_.WorkCancelled = false;
        while (yield(progress_) != 0) {
            if (options_.WorkCancelled) {
                options_.WorkCancelled = false;
                break;
            }
            BeginGeneration();
            MakeVariants();
            ScoreVariants();
            KeepBest();
            if (progress_.Generation == options_.GeneticGenerations) break;
        }
        FoundOrder found{Order(n_), bestFitness_};
        found.BestOrder.Cells() = best_;
        return found;
    }

private:
    using Row = std::span<std::int16_t>;

    Row Variant(std::size_t v) { return {variants_.data() + (v - 1) * std::size_t(n_), std::size_t(n_)}; }

    void BeginGeneration() {
        ++progress_.Generation;
        progress_.Percent =
            static_cast<float>(double(progress_.Generation) / double(options_.GeneticGenerations) * 100.0);
        progress_.Fitness = bestFitness_;
        progress_.TimeDue = true;
    }

    // The first row is the parent. Each other one is made n times from it, with new draws, and only the last
    // time counts.
    void MakeVariants() {
        std::copy(best_.begin(), best_.end(), Variant(1).begin());
        const auto lost = static_cast<std::uint64_t>(n_ - 1);
        for (std::size_t v = 2; v <= fitness_.size(); ++v) {
            random_.Skip(lost * static_cast<std::uint64_t>(exchanges_) * DrawsOfExchange);
            MakeVariant(Variant(v));
        }
    }

    void MakeVariant(Row row) {
        std::copy(best_.begin(), best_.end(), row.begin());
        for (int exchange = 0; exchange < exchanges_; ++exchange) Exchange(row);
    }

    // Anywhere, or near by.
    void Exchange(Row row) {
        const std::int32_t kind = RandomInRange(random_, 1, 2);
        const std::int32_t a = kind == 1 ? RandomInRange(random_, 1, n_) : RandomInRange(random_, 2, n_ - 1);
        const std::int32_t b =
            kind == 1 ? RandomInRange(random_, 1, n_) : RandomInRange(random_, a - 1, a + 1);
        std::swap(row[std::size_t(a - 1)], row[std::size_t(b - 1)]);
    }

    // The parent's score is known but for the first generation.
    void ScoreVariants() {
        const std::size_t known = progress_.Generation == 1 ? 0 : 1;
        fitness_[0] = bestFitness_;
        scorer_.Score(std::span(variants_).subspan(known * std::size_t(n_)),
                      std::span(fitness_).subspan(known));
    }

    // Among equals the first.
    void KeepBest() {
        const auto smallest = std::min_element(fitness_.begin(), fitness_.end());
        bestFitness_ = *smallest;
        if (smallest == fitness_.begin()) return;
        const Row row = Variant(static_cast<std::size_t>(smallest - fitness_.begin()) + 1);
        std::copy(row.begin(), row.end(), best_.begin());
    }

    std::int32_t n_;
    OrderingOptions& options_;
    RandomSource& random_;
    OrderScorer scorer_;
    std::vector<std::int16_t> best_;
    int exchanges_; // in each variant
    float bestFitness_ = 0;
    std::vector<std::int16_t> variants_; // row after row
    std::vector<float> fitness_;
    GeneticProgress progress_;
};

} // namespace

FoundOrder SimpleGeneticOrder(const FloatTable& distances, OrderingOptions& options, RandomSource& random,
                              const GeneticYield& yield) {
    return Evolution(distances, options, random).Run(yield);
}

} // namespace dorvan
