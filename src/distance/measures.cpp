#include "distance/measures.h"

#include "distance/side_by_side.h"
#include "numbers/rounding.h"
#include "numbers/runtime_failure.h"

#include <cmath>
#include <limits>

namespace dorvan {

namespace {

// Two records of M values each.
struct RecordPair {
    const float* X;
    const float* Y;
    std::int32_t M;
};

bool IsMissing(float value) { return value == NaValue; }

double Difference(float x, float y) { return RoundToFloat(double(x) - double(y)); }

// The running sum stays a 32-bit float, whatever the width of the addend.
void AddTo(float& sum, double addend) { sum = RoundToFloat(double(sum) + addend); }

double Square(double difference) { return difference * difference; }
double Absolute(double difference) { return std::fabs(difference); }

// 0 / 0 is the one division by zero that the measures can come to.
double Quotient(double dividend, double divisor) {
    if (divisor == 0) throw RuntimeFailure(Failure::DivisionByZero);
    return dividend / divisor;
}

// A base below 0 does not occur here.
double Power(double base, double exponent) {
    if (base == 0 && exponent < 0) throw RuntimeFailure(Failure::InvalidProcedureCall);
    const double power = std::pow(base, exponent);
    if (std::isinf(power)) throw RuntimeFailure(Failure::Overflow);
    return power;
}

template <class Term> float SumOfTerms(const RecordPair& pair, Term term) {
    float sum = 0;
    for (std::int32_t k = 0; k < pair.M; ++k) AddTo(sum, term(Difference(pair.X[k], pair.Y[k])));
    return sum;
}

// The mean over the variables that both records have; 0 when there is none.
template <class Term> float MeanOfPresentTerms(const RecordPair& pair, Term term) {
    float sum = 0;
    std::int16_t count = 0;
    for (std::int32_t k = 0; k < pair.M; ++k) {
        if (IsMissing(pair.X[k]) || IsMissing(pair.Y[k])) continue;
        AddTo(sum, term(Difference(pair.X[k], pair.Y[k])));
        count = AddInt16(count, 1);
    }
    return count == 0 ? 0.0f : sum / static_cast<float>(count);
}

template <class Test> std::int32_t CountWhere(const RecordPair& pair, Test test) {
    std::int32_t count = 0;
    for (std::int32_t k = 0; k < pair.M; ++k) count += test(pair.X[k], pair.Y[k]) ? 1 : 0;
    return count;
}

std::int32_t CountBoth(const RecordPair& pair, float value) {
    return CountWhere(pair, [value](float x, float y) { return x == value && y == value; });
}

// Counted in 32-bit floats, so the count stops growing at 2^24.
float CountDifferent(const RecordPair& pair) {
    float sum = 0;
    for (std::int32_t k = 0; k < pair.M; ++k)
        if (pair.X[k] != pair.Y[k]) sum += 1.0f;
    return sum;
}

float Euclidean(const RecordPair& pair) { return RoundToFloat(std::sqrt(double(SumOfTerms(pair, Square)))); }

float Chebychev(const RecordPair& pair) {
    double greatest = 0;
    for (std::int32_t k = 0; k < pair.M; ++k) {
        const double term = Absolute(Difference(pair.X[k], pair.Y[k]));
        if (term > greatest) greatest = term;
    }
    return static_cast<float>(greatest);
}

float Customized(const RecordPair& pair, std::int16_t p, std::int16_t r) {
    const float sum =
        SumOfTerms(pair, [p](double difference) { return Power(std::fabs(difference), double(p)); });
    return RoundToFloat(Power(sum, Quotient(1.0, r)));
}

float DfDD(const RecordPair& pair) { return RoundToFloat(Quotient(CountDifferent(pair), pair.M) * 100.0); }

float LanceAndWilliams(const RecordPair& pair) {
    const double different = CountDifferent(pair);
    const double zeros = CountBoth(pair, 0.0f);
    return RoundToFloat(Quotient(different, 2.0 * zeros + different));
}

float Jaccard(const RecordPair& pair) {
    const double different = CountDifferent(pair);
    const double ones = CountBoth(pair, 1.0f);
    return RoundToFloat(1.0 - Quotient(ones, different + ones));
}

float YulesQ(const RecordPair& pair) {
    const auto count = [&pair](float wantedX, float wantedY) {
        return NarrowToInt16(
            CountWhere(pair, [=](float x, float y) { return x == wantedX && y == wantedY; }));
    };
    const std::int16_t unlike = MultiplyInt16(count(1, 0), count(0, 1));
    const std::int16_t alike = MultiplyInt16(count(1, 1), count(0, 0));
    const float both = AddInt16(unlike, alike);
    if (!(both > 0)) return 2.0f;
    return 1.0f - static_cast<float>(SubtractInt16(alike, unlike)) / both;
}

// The pairs whose cell is no finite number yet, in the order of the pairs, so that the first failing one's
// failure is thrown.
void ComputeOpenPairs(FloatTable& distances, const FloatTable& values, std::int32_t m,
                      const Measure& measure) {
    const std::int32_t n = distances.Rows();
    for (std::int32_t i = 1; i <= n; ++i) {
        float* row = distances.Row(i);
        if (AllFinite(row + i, n - i)) continue;
        for (std::int32_t j = i + 1; j <= n; ++j)
            if (!AllFinite(row + j - 1, 1))
                row[j - 1] = DistanceBetween(values.Row(i), values.Row(j), m, measure);
    }
}

} // namespace

Measure CurrentMeasure(const Session& session) {
    return {session.CurrentDistType, session.Par_P, session.Par_R};
}

float DistanceBetween(const float* x, const float* y, std::int32_t m, const Measure& measure) {
    const RecordPair pair{x, y, m};
    switch (measure.Type) {
    case DistanceType::Henzel: return MeanOfPresentTerms(pair, Square);
    case DistanceType::Czekanowski: return MeanOfPresentTerms(pair, Absolute);
    case DistanceType::Euclidean: return Euclidean(pair);
    case DistanceType::Manhattan: return SumOfTerms(pair, Absolute);
    case DistanceType::Chebychev: return Chebychev(pair);
    case DistanceType::Customized: return Customized(pair, measure.Par_P, measure.Par_R);
    case DistanceType::DfDD: return DfDD(pair);
    case DistanceType::LanceAndWilliams: return LanceAndWilliams(pair);
    case DistanceType::Jaccard: return Jaccard(pair);
    case DistanceType::YulesQ: return YulesQ(pair);
    default: return 0;
    }
}

FloatTable DistancesBetweenRows(const FloatTable& values, std::int32_t n, std::int32_t m,
                                const Measure& measure) {
    if (n < 0 || m < 0 || n > values.Rows() || m > values.Columns())
        throw RuntimeFailure(Failure::SubscriptOutOfRange);
    FloatTable distances(n, n, std::numeric_limits<float>::quiet_NaN());
    ComputePairsSideBySide(distances, values, m, measure);
    ComputeOpenPairs(distances, values, m, measure);
    MirrorUpperTriangle(distances);
    return distances;
}

bool ComputeDistanceMatrix(Session& session, std::int32_t n, std::int32_t m) {
    const WaitCursor waiting(session.platform);
    session.DistanceValues = DistancesBetweenRows(session.DataValues, n, m, CurrentMeasure(session));
    return true;
}

} // namespace dorvan
