#include "making/ravelin_ordering.h"

#include "making/lane_sums.h"
#include "making/order_scorer.h"
#include "making/order_scores.h"
#include "making/ravelin_operators.h"
#include "numbers/number_text.h"
#include "numbers/runtime_failure.h"

#include <algorithm>
#include <numeric>
#include <span>
#include <string>
#include <vector>

namespace dorvan {

namespace {

constexpr int MostAhead = Lanes;

using Records = std::vector<std::int16_t>;

// Mutations that follow one another if each is rejected.
class MutationsAhead {
public:
    MutationsAhead(std::int32_t n, OrderScorer& scorer) : n_(std::size_t(n)), scorer_(scorer) {
        rows_.resize(n_ * MostAhead);
        trials_.resize(MostAhead);
    }

    bool Empty() const { return next_ == positions_.size(); }
    void Drop() { next_ = positions_.size(); }

    // The first starts from `mutated`, the others from `current`. Leaves the random source where it was. A
    // draw that fails does so when its turn comes.
    void Draw(int count, const Records& mutated, const Records& current, RandomSource& random,
              const OrderingOptions& options) {
        const std::uint64_t start = random.Position();
        next_ = 0;
        positions_.clear();
        for (int k = 0; k < count; ++k) {
            const std::span row = Row(std::size_t(k));
            std::copy_n((k == 0 ? mutated : current).begin(), n_, row.begin());
            if (!Mutate(row, random, options, k == 0)) break;
            positions_.push_back(random.Position());
        }
        random.SetPosition(start);
        const std::size_t drawn = positions_.size();
        scorer_.Score(std::span(rows_).first(drawn * n_), std::span(trials_).first(drawn));
    }

    // The next mutation: moves the random source behind it; gives the order and its score.
    std::span<const std::int16_t> Take(RandomSource& random, float& trial) {
        random.SetPosition(positions_[next_]);
        trial = trials_[next_];
        return Row(next_++);
    }

private:
    std::span<std::int16_t> Row(std::size_t k) { return {rows_.data() + k * n_, n_}; }

    static bool Mutate(std::span<std::int16_t> row, RandomSource& random, const OrderingOptions& options,
                       bool first) {
        int which = 0;
        try {
            which = ChooseOperator(random, options);
        } catch (const RuntimeFailure&) {
            if (first) throw;
            return false;
        }
        ApplyOperator(which, random, row);
        return true;
    }

    std::size_t n_;
    OrderScorer& scorer_;
    Records rows_;
    std::vector<float> trials_;
    std::vector<std::uint64_t> positions_; // of the random source behind each mutation
    std::size_t next_ = 0;
};

class Search {
public:
    Search(const FloatTable& distances, OrderingOptions& options, RandomSource& random,
           const RavelinHooks& hooks)
        : n_(distances.Rows()), options_(options), random_(random), hooks_(hooks),
          bytes_(MakeByteMatrix(distances, options.MatrixConversionCoefficient)),
          scorer_(UmDenominators(bytes_)), ahead_(n_, scorer_), current_(std::size_t(n_)) {
        if (n_ < 2) throw RuntimeFailure(Failure::InvalidProcedureCall);
        std::iota(current_.begin(), current_.end(), std::int16_t(1));
        best_ = current_;
    }

    FoundOrder Run() {
        AddWeights();
        do {
            if (hooks_.yield(progress_) == 0) break;
            ++generation_;
            if (options_.WorkCancelled) break;
            BeginGeneration();
            RunMutations();
            EndGeneration();
        } while (generationsLost_ != options_.CriticalGenerationNumber);
        return {OrderOf(best_), bestUm_, seenBetter_ && !gained_};
    }

private:
    static Order OrderOf(const Records& records) {
        Order order;
        order.Cells() = records;
        return order;
    }

    void AddWeights() {
        const std::int64_t weights = std::int64_t(options_.SequenceChange) + options_.FragmentTransfer +
                                     options_.SomeSingleTransfers + options_.SingleTransfer +
                                     options_.SomeRemoteConversions + options_.RemoteConversion +
                                     options_.SomeNeighbourConversions + options_.NeighbourConversion;
        const std::int64_t total = options_.UmWeightTotal + weights;
        if (total > INT32_MAX) throw RuntimeFailure(Failure::Overflow);
        options_.UmWeightTotal = static_cast<std::int32_t>(total);
    }

    void BeginGeneration() {
        progress_.Generation = generation_;
        progress_.Base.reset();
        shaken_ = best_;
        if (generation_ > 1) Shake(random_, *shaken_);
        if (!baseOfBest_) baseOfBest_ = BaseOfGeneration(bytes_, OrderOf(best_));
        base_ = *baseOfBest_;
        progress_.Base = base_;
        ahead_.Drop();
    }

    void RunMutations() {
        do {
            if (hooks_.yield(progress_) == 0) return;
            ++mutation_;
            if (options_.WorkCancelled) return;
            ShowMutation();
            TryMutation();
        } while (mutationsLost_ < options_.CriticalMutationNumber);
    }

    void ShowMutation() {
        progress_.Mutation = mutation_;
        progress_.TimeDue = true;
        if (ShownBaseIsBelow()) hooks_.invalidMinimum();
        progress_.MutationsLost = mutationsLost_;
        progress_.Base = base_;
    }

    // Compares what the window shows with what it is about to show, as texts; a greater number never has a
    // text that reads as less, so the texts are only made where the numbers differ.
    bool ShownBaseIsBelow() const {
        if (progress_.Base && *progress_.Base >= base_) return false;
        const auto figure = [this](double value) {
            return FormatPattern(value, "###0.00000", hooks_.decimalSeparator);
        };
        const std::string shown = progress_.Base ? figure(*progress_.Base) : std::string();
        return LeadingNumber(shown) < LeadingNumber(figure(base_));
    }

    void TryMutation() {
        if (ahead_.Empty()) DrawAhead();
        float trial = 0;
        const std::span<const std::int16_t> order = ahead_.Take(random_, trial);
        progress_.Trial = trial;
        if (double(trial) < base_) {
            base_ = double(trial);
            seenBetter_ = true;
            mutationsLost_ = 0;
            current_.assign(order.begin(), order.end());
            ahead_.Drop();
        } else {
            ++mutationsLost_;
        }
    }

    // No more than can follow before the generation ends.
    void DrawAhead() {
        const int left = std::max(1, options_.CriticalMutationNumber - mutationsLost_);
        ahead_.Draw(std::min(MostAhead, left), shaken_ ? *shaken_ : current_, current_, random_, options_);
        shaken_.reset();
    }

    // The first generation sets the mark and does not write the best order.
    void EndGeneration() {
        mutation_ = 0;
        mutationsLost_ = 0;
        if (generation_ == 1) {
            bestUm_ = static_cast<float>(base_);
        } else if (base_ >= double(bestUm_)) {
            ++generationsLost_;
        } else {
            generationsLost_ = 0;
            bestUm_ = static_cast<float>(base_);
            best_ = current_;
            gained_ = true;
            baseOfBest_.reset();
        }
        progress_.BestUm = bestUm_;
        progress_.GenerationsLost = generationsLost_;
    }

    std::int32_t n_;
    OrderingOptions& options_;
    RandomSource& random_;
    const RavelinHooks& hooks_;
    ByteTable bytes_;
    OrderScorer scorer_;
    MutationsAhead ahead_;

    Records current_;               // last accepted, kept across generations
    std::optional<Records> shaken_; // where the first mutation of a generation starts
    Records best_;
    std::optional<double> baseOfBest_;
    double base_ = 0; // what a mutation has to beat
    float bestUm_ = 0;
    bool seenBetter_ = false; // than the order of the sheet
    bool gained_ = false;     // a generation after the first has
    std::int32_t generation_ = 0;
    std::int32_t mutation_ = 0;
    std::int32_t mutationsLost_ = 0;
    std::int32_t generationsLost_ = 0;
    RavelinProgress progress_;
};

} // namespace

FoundOrder RavelinOrder(const FloatTable& distances, OrderingOptions& options, RandomSource& random,
                        const RavelinHooks& hooks) {
    options.WorkCancelled = false;
    return Search(distances, options, random, hooks).Run();
}

} // namespace dorvan
