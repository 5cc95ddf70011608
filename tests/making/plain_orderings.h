#pragma once

#include "making/elapsed_text.h"
#include "making/ordering_method.h"
#include "making/ordering_options.h"
#include "numbers/arrays.h"
#include "numbers/number_text.h"
#include "numbers/random_source.h"
#include "numbers/rounding.h"

#include <cmath>
#include <cstdint>
#include <functional>
#include <string>

// The two genetic orderings written down step by step, without any thought of speed. What the program runs
// has to agree with them to the bit.
namespace dorvan::plain {

using Bytes = Array2<std::uint8_t>;

// The world around a run: pending events (returns the number of open windows) and a clock.
struct World {
    std::function<int()> runEvents = [] { return 1; };
    std::function<double()> clock = [] { return 0.0; };
    std::function<void(const std::string&)> showMessage = [](const std::string&) {};
    std::function<void()> beep = [] {};
    char decimalSeparator = '.';
    bool showTexts = true; // the texts of the windows cost time of their own
};

inline void Exchange(Array2<std::int16_t>& rows, std::int32_t row, std::int32_t a, std::int32_t b) {
    const std::int16_t kept = rows(row, a);
    rows(row, a) = rows(row, b);
    rows(row, b) = kept;
}

inline double Quotient(double numerator, double denominator) {
    if (denominator == 0) throw RuntimeFailure(Failure::DivisionByZero);
    return numerator / denominator;
}

// ------------------------------------------------------------------------------------------- simple genetic

inline float Score(const FloatTable& d, const Array2<std::int16_t>& orders, std::int32_t v) {
    const std::int32_t n = d.Rows();
    float sum = 0;
    for (std::int32_t i = 1; i <= n - 1; ++i)
        for (std::int32_t j = i + 1; j <= n; ++j) {
            const double square = double(j - i) * double(j - i);
            const float denominator = d(orders(v, i), orders(v, j)) + 1.0F;
            sum = static_cast<float>(double(sum) + Quotient(square, double(denominator)));
        }
    return static_cast<float>(double(sum) / (double(n) * double(n) / 2.0));
}

struct WorkTexts {
    std::string InfoString = "0 %";
    std::string InfoTime;
    std::string lblFunkcja;
    float percent = 0;
    bool operator==(const WorkTexts&) const = default;
};

struct SimpleGenetic {
    const FloatTable& distances;
    OrderingOptions& options;
    RandomSource& random;
    World& world;

    WorkTexts window = {};
    Order BestOrder = {};
    float BestFitness = 0;
    std::int32_t Generation = 0;
    Array2<std::int16_t> Variants = {};
    Array1<float> Fitness = {};
    std::int16_t ExchangesPerVariant = 0;

    std::int32_t n() const { return distances.Rows(); }

    void MakeExchange(std::int32_t v) {
        const std::int32_t kind = RandomInRange(random, 1, 2);
        if (kind == 1) {
            const std::int32_t a = RandomInRange(random, 1, n());
            const std::int32_t b = RandomInRange(random, 1, n());
            Exchange(Variants, v, a, b);
        } else {
            const std::int32_t a = RandomInRange(random, 2, n() - 1);
            const std::int32_t b = RandomInRange(random, a - 1, a + 1);
            Exchange(Variants, v, a, b);
        }
    }

    void CopyParent(std::int32_t v) {
        for (std::int32_t p = 1; p <= n(); ++p) Variants(v, p) = BestOrder(p);
    }

    void MakeVariants() {
        for (std::int32_t v = 1; v <= options.GeneticVariants; ++v) {
            if (Generation == 1 && v == 1) {
                CopyParent(v);
                continue;
            }
            for (std::int32_t repetition = 1; repetition <= n(); ++repetition) {
                CopyParent(v);
                if (v > 1)
                    for (std::int32_t k = 1; k <= ExchangesPerVariant; ++k) MakeExchange(v);
            }
        }
    }

    void ChooseBest() {
        std::int32_t best = 1;
        for (std::int32_t v = 2; v <= options.GeneticVariants; ++v)
            if (Fitness(v) < Fitness(best)) best = v;
        for (std::int32_t p = 1; p <= n(); ++p) BestOrder(p) = Variants(best, p);
        BestFitness = Fitness(best);
    }

    void Show(float start) {
        if (!world.showTexts) return;
        const float percent =
            static_cast<float>(Quotient(double(Generation), double(options.GeneticGenerations)) * 100.0);
        window.InfoTime = ElapsedText(static_cast<float>(world.clock()) - start, world.decimalSeparator);
        window.InfoString = FormatPattern(double(percent), "#0.0", world.decimalSeparator) + " %";
        window.lblFunkcja = FormatPattern(double(BestFitness), "###0.000", world.decimalSeparator);
        window.percent = percent;
    }

    void Run() {
        options.WorkCancelled = false;
        Generation = 0;
        ExchangesPerVariant = static_cast<std::int16_t>(n() / 10);
        if (ExchangesPerVariant < 1) ExchangesPerVariant = 1;
        BestOrder = Order(n());
        for (std::int32_t p = 1; p <= n(); ++p) BestOrder(p) = static_cast<std::int16_t>(p);
        Variants = Array2<std::int16_t>(options.GeneticVariants, n());
        Fitness = Array1<float>(options.GeneticVariants);
        const float start = static_cast<float>(world.clock());
        for (;;) {
            if (world.runEvents() == 0) break;
            if (options.WorkCancelled) {
                options.WorkCancelled = false;
                break;
            }
            Generation = Generation + 1;
            Show(start);
            MakeVariants();
            for (std::int32_t v = 1; v <= options.GeneticVariants; ++v)
                Fitness(v) = Score(distances, Variants, v);
            ChooseBest();
            if (Generation == options.GeneticGenerations) break;
        }
        window.InfoString = "100 %";
    }
};

// -------------------------------------------------------------------------------------------------- Ravelin

inline Bytes MakeBytes(const FloatTable& d, float coefficient) {
    const std::int32_t n = d.Rows();
    Bytes bytes(n, n);
    if (coefficient == 0) return bytes;
    for (std::int32_t i = 1; i <= n; ++i)
        for (std::int32_t j = 1; j <= n; ++j) {
            float v = d(i, j);
            if (v > 255) v = 255;
            const float product = v * coefficient;
            bytes(i, j) = RoundToByte(double(product));
        }
    return bytes;
}

inline float Um(const Bytes& bytes, const Array2<std::int16_t>& orders, std::int32_t row) {
    const std::int32_t n = bytes.Rows();
    float sum = 0;
    for (std::int32_t i = 1; i <= n - 1; ++i)
        for (std::int32_t j = i + 1; j <= n; ++j) {
            const double square = double(j - i) * double(j - i);
            const int denominator = bytes(orders(row, i), orders(row, j)) + 1;
            sum = static_cast<float>(double(sum) + square / double(denominator));
        }
    return static_cast<float>(double(sum) / (double(n) * double(n) / 2.0));
}

inline double StartBase(const Bytes& bytes, const Array2<std::int16_t>& orders, std::int32_t row) {
    const std::int32_t n = bytes.Rows();
    double sum = 0;
    for (std::int32_t i = 1; i <= n - 1; ++i)
        for (std::int32_t j = i + 1; j <= n; ++j) {
            const double difference = double(orders(row, j) - orders(row, i));
            const int denominator = bytes(orders(row, i), orders(row, j)) + 1;
            sum = sum + difference * difference / double(denominator);
        }
    return sum / (double(n) * double(n) / 2.0);
}

inline void Move(Array2<std::int16_t>& rows, std::int32_t row, std::int32_t a, std::int32_t b) {
    const std::int16_t t = rows(row, a);
    if (a > b) {
        for (std::int32_t j = a; j >= b + 1; --j) rows(row, j) = rows(row, j - 1);
        rows(row, b) = t;
    }
    if (a < b) {
        for (std::int32_t j = a; j <= b - 1; ++j) rows(row, j) = rows(row, j + 1);
        rows(row, b) = t;
    }
}

struct WorkUmTexts {
    std::string Generacje;
    std::string lblChangesG;
    std::string Mutacje;
    std::string lblChangeM;
    std::string lblFunkcja;
    std::string lblActualUM;
    std::string BestUm;
    std::string InfoTime;
    bool operator==(const WorkUmTexts&) const = default;
};

struct Ravelin {
    const FloatTable& distances;
    OrderingOptions& options;
    RandomSource& random;
    World& world;

    WorkUmTexts window = {};
    Bytes ByteMatrix = {};
    Array2<std::int16_t> Pair = {};
    Order CurrentOrder = {};
    Order BestOrder = {};
    double Base = 0;
    float Trial = 0;
    float BestUm = 0;
    std::int32_t Generation = 0;
    std::int32_t Mutation = 0;
    std::int32_t MutationsLost = 0;
    std::int32_t GenerationsLost = 0;
    float start = 0;

    std::int32_t n() const { return distances.Rows(); }
    std::string Figure(double value) const {
        return FormatPattern(value, "###0.00000", world.decimalSeparator);
    }

    void SequenceChange() {
        std::int32_t a = RandomInRange(random, 1, n());
        std::int32_t b = 0;
        do b = RandomInRange(random, 1, n());
        while (b == a);
        if (a > b) std::swap(a, b);
        const std::int32_t h = (b - a + 1) / 2;
        for (std::int32_t k = 0; k <= h - 1; ++k) Exchange(Pair, 2, a + 2 * k, b - k);
    }

    void FragmentTransfer() {
        const std::int32_t a = RandomInRange(random, 1, n());
        const std::int32_t l = RandomInRange(random, 1, n() / 2);
        std::int32_t b = a + l - 1;
        if (b > n()) b = n();
        const std::int32_t f = b - a + 1;
        Order fragment;
        for (std::int32_t j = a; j <= b; ++j) fragment.Append(Pair(2, j));
        if (b < n())
            for (std::int32_t j = b + 1; j <= n(); ++j) Pair(2, j - b - 1 + a) = Pair(2, j);
        const std::int32_t s = RandomInRange(random, 1, n() - f);
        Order tail;
        for (std::int32_t j = s; j <= n() - f; ++j) tail.Append(Pair(2, j));
        for (std::int32_t j = s + f; j <= n(); ++j) Pair(2, j) = tail(j - s - f + 1);
        for (std::int32_t j = s; j <= s + f - 1; ++j) Pair(2, j) = fragment(j - s + 1);
    }

    void SingleTransfer() {
        const std::int32_t a = RandomInRange(random, 1, n());
        RandomInRange(random, 1, n() - 1);
        std::int32_t b = 0;
        do b = RandomInRange(random, 1, n());
        while (b == a);
        Move(Pair, 2, a, b);
    }

    void RemoteConversion() {
        const std::int32_t a = RandomInRange(random, 1, n());
        const std::int32_t b = RandomInRange(random, 1, n());
        Exchange(Pair, 2, a, b);
    }

    void NeighbourConversion() {
        const std::int32_t a = RandomInRange(random, 1, n());
        std::int32_t b = a + 1;
        if (b > n()) b = n();
        Exchange(Pair, 2, a, b);
    }

    template <class Step> void Some(Step step) {
        const std::int32_t c = RandomInRange(random, 1, 19);
        for (std::int32_t k = 1; k <= c; ++k) step();
    }

    void Mutate(int which) {
        if (which == 1) SequenceChange();
        if (which == 2) FragmentTransfer();
        if (which == 3) Some([this] { SingleTransfer(); });
        if (which == 4) SingleTransfer();
        if (which == 5) Some([this] { RemoteConversion(); });
        if (which == 6) RemoteConversion();
        if (which == 7) Some([this] { NeighbourConversion(); });
        if (which == 8) NeighbourConversion();
    }

    int ChooseOperator() {
        const std::int16_t r = NarrowToInt16(RandomInRange(random, 1, options.UmWeightTotal));
        const std::int16_t weights[] = {options.SequenceChange,          options.FragmentTransfer,
                                        options.SomeSingleTransfers,     options.SingleTransfer,
                                        options.SomeRemoteConversions,   options.RemoteConversion,
                                        options.SomeNeighbourConversions};
        std::int32_t c = 0;
        for (int k = 1; k <= 7; ++k) {
            c = c + weights[k - 1];
            if (c >= r) return k;
        }
        return 8;
    }

    void Shake() {
        for (int burst = 1; burst <= 500; ++burst) {
            const std::int32_t c = RandomInRange(random, 1, 20);
            for (std::int32_t k = 1; k <= c; ++k) {
                const std::int32_t a = RandomInRange(random, 1, n());
                RandomInRange(random, 1, n());
                std::int32_t b = 0;
                do b = RandomInRange(random, 1, n());
                while (b == a);
                Move(Pair, 2, a, b);
            }
        }
    }

    void BothRows(const Order& order) {
        for (std::int32_t row = 1; row <= 2; ++row)
            for (std::int32_t p = 1; p <= n(); ++p) Pair(row, p) = order(p);
    }

    void CheckDescent() {
        if (LeadingNumber(window.lblFunkcja) < LeadingNumber(Figure(Base))) {
            world.beep();
            world.showMessage("Error - Min invalid value");
        }
    }

    void OneMutation() {
        if (world.showTexts) {
            window.Mutacje = std::to_string(Mutation);
            window.InfoTime = ElapsedText(static_cast<float>(world.clock()) - start, world.decimalSeparator);
            CheckDescent();
            window.lblChangeM = std::to_string(MutationsLost);
            window.lblFunkcja = Figure(Base);
        }
        Mutate(ChooseOperator());
        Trial = Um(ByteMatrix, Pair, 2);
        if (world.showTexts) window.lblActualUM = Figure(double(Trial));
        if (double(Trial) < Base) {
            Base = double(Trial);
            MutationsLost = 0;
            for (std::int32_t p = 1; p <= n(); ++p) CurrentOrder(p) = Pair(2, p);
        } else {
            MutationsLost = MutationsLost + 1;
            BothRows(CurrentOrder);
        }
    }

    void Mutations() {
        do {
            if (world.runEvents() == 0) return;
            Mutation = Mutation + 1;
            if (options.WorkCancelled) return;
            OneMutation();
        } while (MutationsLost < options.CriticalMutationNumber);
    }

    void EndGeneration() {
        if (Generation == 1) BestUm = static_cast<float>(Base);
        Mutation = 0;
        MutationsLost = 0;
        if (Generation > 1) {
            if (Base >= double(BestUm)) {
                GenerationsLost = GenerationsLost + 1;
            } else {
                GenerationsLost = 0;
                BestUm = static_cast<float>(Base);
                BestOrder = CurrentOrder;
            }
        }
        if (world.showTexts) {
            window.BestUm = Figure(double(BestUm));
            window.lblChangesG = std::to_string(GenerationsLost);
        }
    }

    void AddWeights() {
        for (const std::int16_t weight :
             {options.SequenceChange, options.FragmentTransfer, options.SomeSingleTransfers,
              options.SingleTransfer, options.SomeRemoteConversions, options.RemoteConversion,
              options.SomeNeighbourConversions, options.NeighbourConversion})
            options.UmWeightTotal = options.UmWeightTotal + weight;
    }

    void Run() {
        options.WorkCancelled = false;
        ByteMatrix = MakeBytes(distances, options.MatrixConversionCoefficient);
        Pair = Array2<std::int16_t>(2, n());
        CurrentOrder = Order(n());
        for (std::int32_t p = 1; p <= n(); ++p) CurrentOrder(p) = static_cast<std::int16_t>(p);
        BestOrder = CurrentOrder;
        AddWeights();
        start = static_cast<float>(world.clock());
        do {
            if (world.runEvents() == 0) return;
            Generation = Generation + 1;
            if (options.WorkCancelled) return;
            window.Generacje = std::to_string(Generation);
            window.lblFunkcja = "";
            BothRows(BestOrder);
            if (Generation > 1) Shake();
            Base = StartBase(ByteMatrix, Pair, 1);
            if (world.showTexts) window.lblFunkcja = Figure(Base);
            Mutations();
            EndGeneration();
        } while (GenerationsLost != options.CriticalGenerationNumber);
    }
};

} // namespace dorvan::plain
