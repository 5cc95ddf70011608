#include "making/order_search.h"

#include "making/arrangement.h"
#include "making/side_by_side_work.h"
#include "making/starting_orders.h"
#include "numbers/random_source.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <numeric>

namespace dorvan {

namespace {

constexpr int StartsOfRound = 8; // from round to round the watch is asked
constexpr int KicksOfStart = 16;
constexpr int Chains = 4;        // that go on side by side: at first the best starts, each by itself
constexpr int FirstChain = 1000; // its number, behind those of the starts
constexpr int KicksOfRound = 16;
constexpr int CrossingsOfHundred = 12; // kicks
constexpr int LeastToCross = 4;        // records
constexpr int MostToCross = 8;
constexpr int KicksToRefresh = 64;

int StartsFor(int n) { return std::clamp(n / 18, 8, 16); }

// The best starts go on so long before the one that stands best then draws the others to it. Tables of few
// strong groups have good orders that no kick leads from one to the other.
int KicksApartFor(int n) { return std::max(48, n * n / 450); }

// So many kicks in a row without gain end the search. Small tables can afford more, and large ones need more.
int PatienceFor(int n) { return std::clamp(36000 / n, std::min(n * n / 90, 4 * n), 2000 + 4 * n); }

// Progress and Cancel: told between pieces of work that are the same on any number of threads, so that the
// same answers lead to the same order.
class Watch {
public:
    Watch(const BestOrderWatch& told, int n) : told_(told), squared_(double(n) * n) {}

    bool Ended() const { return ended_; }

    // False once the search is to end.
    bool GoesOn() {
        if (told_ && !ended_) ended_ = !told_({.Criterion = 2 * Best / squared_, .Share = Share});
        return !ended_;
    }

    double Best = 0;  // half the 2-SUM; of the last round
    double Share = 0; // of the work

private:
    const BestOrderWatch& told_;
    double squared_;
    bool ended_ = false;
};

// One search: the order it stands at, and random draws of its own.
class Climber {
public:
    Climber(const Attractions& attractions, std::uint64_t seed)
        : attractions_(attractions), now_(attractions), kept_(attractions), random_(seed) {}

    const Arrangement& Kept() const { return kept_; }
    RandomSource& Random() { return random_; }

    void Start(const Records& order) {
        now_.Take(order);
        now_.Descend();
        kept_.Follow(now_);
    }

    // From an order without exchanges that gain.
    void GoOnFrom(const Arrangement& other) {
        kept_.Follow(other);
        now_.Follow(other);
    }

    // Kicks the order and keeps what comes of it where it is no worse.
    void Climb(int kicks) {
        for (int kick = 0; kick < kicks; ++kick) {
            Kick();
            now_.Descend();
            if (++kicked_ % KicksToRefresh == 0) now_.Refresh();
            if (now_.Half() <= kept_.Half() + attractions_.Negligible())
                kept_.Follow(now_);
            else
                now_.Follow(kept_);
        }
    }

    // Until neither exchanges nor insertions gain.
    void Settle() {
        now_.Settle();
        kept_.Follow(now_);
    }

private:
    int Draw(int low, int high) { return RandomInRange(random_, low, high); }

    // Lengths of stretches, 2 to n, each doubling as likely as the next.
    int DrawLength(int n) {
        const double length = 2 * std::pow(double(n + 1) / 2, double(random_.Draw()));
        return std::clamp(static_cast<int>(length), 2, n);
    }

    // 1 to `most`, each doubling as likely as the next.
    int DrawFew(int most) {
        const double few = std::pow(double(most + 1), double(random_.Draw()));
        return std::clamp(static_cast<int>(few), 1, most);
    }

    void Kick() {
        const int n = attractions_.Count();
        if (n >= LeastToCross && Draw(1, 100) <= CrossingsOfHundred) return CrossTheMiddle();
        const int length = DrawLength(n);
        const int first = Draw(0, n - length);
        stretch_.assign(now_.Order().begin() + first, now_.Order().begin() + first + length);
        Change(Draw(1, 100));
        now_.Put(first, stretch_);
    }

    // A few records near one end go to the mirrored places near the other: those that are near to none stand
    // there, at which end is all one to the records between, and no other kick takes them across.
    void CrossTheMiddle() {
        const int first = DrawFew(attractions_.Count() / 2 - 1) - 1;
        stretch_.assign(now_.Order().begin() + first, now_.Order().end() - first);
        const int few = std::min(DrawFew(MostToCross), static_cast<int>(stretch_.size()) - 1);
        const auto begin = stretch_.begin();
        const auto end = stretch_.end();
        if (Draw(0, 1) == 0) {
            std::rotate(begin, begin + few, end);
            std::reverse(end - few, end);
        } else {
            std::rotate(begin, end - few, end);
            std::reverse(begin, begin + few);
        }
        now_.Put(first, stretch_);
    }

    void Change(int draw) {
        const auto begin = stretch_.begin();
        const auto end = stretch_.end();
        const int length = static_cast<int>(stretch_.size());
        if (draw <= 30) {
            std::reverse(begin, end);
        } else if (draw <= 60) {
            const int few = DrawFew(length - 1);
            std::rotate(begin, Draw(0, 1) == 0 ? begin + few : end - few, end);
        } else if (draw <= 90) {
            ExchangeEnds();
        } else {
            for (int k = length - 1; k > 0; --k)
                std::swap(stretch_[std::size_t(k)], stretch_[std::size_t(Draw(0, k))]);
        }
    }

    // begin, middle, end become end, middle, begin
    void ExchangeEnds() {
        const int length = static_cast<int>(stretch_.size());
        const int a = DrawFew(length / 2);
        const int b = DrawFew(length - a);
        const auto begin = stretch_.begin();
        std::rotate(begin, stretch_.end() - b, stretch_.end());
        std::rotate(begin + b, begin + b + a, stretch_.end());
    }

    const Attractions& attractions_;
    Arrangement now_;
    Arrangement kept_;
    RandomSource random_;
    Records stretch_;
    std::int64_t kicked_ = 0;
};

class Search {
public:
    Search(const Attractions& attractions, std::uint64_t seed, const BestOrderWatch& progress, int threads)
        : attractions_(attractions), seed_(seed), watch_(progress, attractions.Count()), threads_(threads),
          given_(std::size_t(attractions.Count())), best_(attractions) {
        std::iota(given_.begin(), given_.end(), 0);
        best_.Take(given_);
        watch_.Best = best_.Half();
    }

    Records Run() {
        StartAll();
        do GoOn();
        while (!watch_.Ended() && SettleBest());
        const double given = attractions_.HalfTwoSum(given_);
        const bool better = attractions_.HalfTwoSum(best_.Order()) < given - attractions_.Negligible();
        return better ? best_.Order() : given_;
    }

private:
    std::unique_ptr<Climber> MakeClimber(int number) const {
        constexpr std::uint64_t Apart = 0x9E3779B97F4A7C15u;
        return std::make_unique<Climber>(attractions_, seed_ + std::uint64_t(number) * Apart);
    }

    Records StartingOrder(int number, RandomSource& random) const {
        const int n = attractions_.Count();
        const int first = RandomInRange(random, 0, n - 1);
        switch (number) {
        case 0: return given_;
        case 1: return SpectralOrder(attractions_);
        case 2: return GroupedOrder(attractions_, first);
        case 3: return WalkOrder(attractions_, first);
        default: return RandomOrder(n, random);
        }
    }

    void StartAll() {
        const int starts = StartsFor(attractions_.Count());
        std::vector<std::unique_ptr<Climber>> climbers;
        while (static_cast<int>(climbers.size()) < starts && watch_.GoesOn())
            StartSome(climbers, std::min(StartsOfRound, starts - static_cast<int>(climbers.size())));
        ClimbAll(climbers, KicksOfStart);
        std::stable_sort(climbers.begin(), climbers.end(), [](const auto& one, const auto& other) {
            return one->Kept().Half() < other->Kept().Half();
        });
        climbers.resize(std::min(climbers.size(), std::size_t(Chains)));
        ClimbAll(climbers, KicksApartFor(attractions_.Count()));
    }

    // So many kicks each, unless the watch ends them.
    void ClimbAll(const std::vector<std::unique_ptr<Climber>>& climbers, int kicks) {
        for (int done = 0; done < kicks && watch_.GoesOn(); done += KicksOfRound)
            ClimbRound(climbers, std::min(KicksOfRound, kicks - done));
        for (const auto& climber : climbers) TakeIfBetter(*climber);
    }

    void StartSome(std::vector<std::unique_ptr<Climber>>& climbers, int count) {
        const std::size_t before = climbers.size();
        climbers.resize(before + std::size_t(count));
        WorkSideBySide(count, threads_, [&](int place) {
            const int number = static_cast<int>(before) + place;
            auto& climber = climbers[std::size_t(number)];
            climber = MakeClimber(number);
            climber->Start(StartingOrder(number, climber->Random()));
        });
    }

    void ClimbRound(const std::vector<std::unique_ptr<Climber>>& climbers, int kicks) {
        WorkSideBySide(static_cast<int>(climbers.size()), threads_,
                       [&](int number) { climbers[std::size_t(number)]->Climb(kicks); });
    }

    // Rounds of kicks, until so many in a row brought no gain. A chain that stands no worse than the best
    // stays where it stands: orders as good as each other are many.
    void GoOn() {
        for (int chain = static_cast<int>(chains_.size()); chain < Chains; ++chain) {
            chains_.push_back(MakeClimber(FirstChain + chain));
            chains_.back()->GoOnFrom(best_);
        }
        const int patience = PatienceFor(attractions_.Count());
        for (int lost = 0; lost < patience && watch_.GoesOn();) {
            watch_.Share = double(lost) / patience;
            for (const auto& chain : chains_)
                if (!Equal(chain->Kept())) chain->GoOnFrom(best_);
            ClimbRound(chains_, KicksOfRound);
            bool gained = false;
            for (const auto& chain : chains_) gained = TakeIfBetter(*chain) || gained;
            lost = gained ? 0 : lost + Chains * KicksOfRound;
        }
    }

    // True if insertions helped.
    bool SettleBest() {
        chains_.front()->GoOnFrom(best_);
        chains_.front()->Settle();
        return TakeIfBetter(*chains_.front());
    }

    bool Equal(const Arrangement& other) const {
        return std::fabs(other.Half() - best_.Half()) <= attractions_.Negligible();
    }

    bool TakeIfBetter(const Climber& climber) {
        if (!(climber.Kept().Half() < best_.Half() - attractions_.Negligible())) return false;
        best_.Follow(climber.Kept());
        watch_.Best = best_.Half();
        return true;
    }

    const Attractions& attractions_;
    std::uint64_t seed_;
    Watch watch_;
    int threads_;
    Records given_;
    Arrangement best_;
    std::vector<std::unique_ptr<Climber>> chains_;
};

} // namespace

Records SearchBestOrder(const Attractions& attractions, std::uint64_t seed, const BestOrderWatch& progress,
                        int threads) {
    return Search(attractions, seed, progress, threads).Run();
}

} // namespace dorvan
