#include "distance/measures.h"

#include "distance/side_by_side.h"
#include "numbers/rounding.h"
#include "numbers/runtime_failure.h"

#include <array>
#include <cmath>

namespace dorvan {

namespace {

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

// The measures themselves.

float Henzel(const RecordPair& pair, const Measure&) { return MeanOfPresentTerms(pair, Square); }

float Czekanowski(const RecordPair& pair, const Measure&) { return MeanOfPresentTerms(pair, Absolute); }

float Euclidean(const RecordPair& pair, const Measure&) {
    return RoundToFloat(std::sqrt(double(SumOfTerms(pair, Square))));
}

float Manhattan(const RecordPair& pair, const Measure&) { return SumOfTerms(pair, Absolute); }

float Chebychev(const RecordPair& pair, const Measure&) {
    double greatest = 0;
    for (std::int32_t k = 0; k < pair.M; ++k) {
        const double term = Absolute(Difference(pair.X[k], pair.Y[k]));
        if (term > greatest) greatest = term;
    }
    return static_cast<float>(greatest);
}

float Customized(const RecordPair& pair, const Measure& measure) {
    const double p = measure.Par_P;
    const float sum = SumOfTerms(pair, [p](double difference) { return Power(std::fabs(difference), p); });
    return RoundToFloat(Power(sum, Quotient(1.0, measure.Par_R)));
}

float DfDD(const RecordPair& pair, const Measure&) {
    return RoundToFloat(Quotient(CountDifferent(pair), pair.M) * 100.0);
}

float LanceAndWilliams(const RecordPair& pair, const Measure&) {
    const double different = CountDifferent(pair);
    const double zeros = CountBoth(pair, 0.0f);
    return RoundToFloat(Quotient(different, 2.0 * zeros + different));
}

float Jaccard(const RecordPair& pair, const Measure&) {
    const double different = CountDifferent(pair);
    const double ones = CountBoth(pair, 1.0f);
    return RoundToFloat(1.0 - Quotient(ones, different + ones));
}

float YulesQ(const RecordPair& pair, const Measure&) {
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

constexpr MeasureRow Table[] = {
    {DistanceType::Henzel, DataKind::NumericalWithNA, "Henzel distance", "henzel", true, Henzel,
     SideBySide::Henzel},
    {DistanceType::Czekanowski, DataKind::NumericalWithNA, "Czekanowski distance (mean City-Block)",
     "czekanowski", true, Czekanowski, SideBySide::Czekanowski},
    {DistanceType::Euclidean, DataKind::Numerical, "Euclidean", "euclidean", false, Euclidean,
     SideBySide::Euclidean},
    {DistanceType::Manhattan, DataKind::Numerical, "Manhattan City-Block", "manhattan", false, Manhattan,
     SideBySide::Manhattan},
    {DistanceType::Chebychev, DataKind::Numerical, "Chebychev", "chebychev", false, Chebychev,
     SideBySide::Chebychev},
    {DistanceType::Customized, DataKind::Numerical, "Customized", "customized", false, Customized,
     SideBySide::Customized},
    {DistanceType::DfDD, DataKind::Binary, "DfDD Distance", "dfdd", false, DfDD, SideBySide::DfDD},
    {DistanceType::LanceAndWilliams, DataKind::Binary, "Lance and Williams", "lance-williams", false,
     LanceAndWilliams, SideBySide::LanceAndWilliams},
    {DistanceType::Jaccard, DataKind::Binary, "Jaccard (mirror)", "jaccard", false, Jaccard,
     SideBySide::Jaccard},
    {DistanceType::YulesQ, DataKind::Binary, "Yule's Q (mirror)", "yule", false, YulesQ, SideBySide::YulesQ},
};

constexpr int KindCount = 3;

std::size_t CheckedPlace(int place, std::size_t count) {
    if (place < 0 || std::size_t(place) >= count) throw RuntimeFailure(Failure::SubscriptOutOfRange);
    return std::size_t(place);
}

// The codes of the measures of each data kind, in the order of its list.
std::array<std::vector<std::int16_t>, KindCount> CodesByKind() {
    std::array<std::vector<std::int16_t>, KindCount> codes;
    for (const MeasureRow& row : Table) codes[std::size_t(row.Kind)].push_back(std::int16_t(row.Code));
    return codes;
}

std::array<std::vector<std::string>, KindCount> TextsByKind() {
    std::array<std::vector<std::string>, KindCount> texts;
    for (const MeasureRow& row : Table) texts[std::size_t(row.Kind)].emplace_back(row.ListText);
    return texts;
}

} // namespace

std::span<const MeasureRow> Measures() { return Table; }

const MeasureRow* FindMeasure(std::int16_t code) {
    for (const MeasureRow& row : Table)
        if (code == row.Code) return &row;
    return nullptr;
}

const MeasureRow* FindMeasure(std::string_view nameOrNumber) {
    for (const MeasureRow& row : Table)
        if (nameOrNumber == row.Name || nameOrNumber == std::to_string(std::int16_t(row.Code))) return &row;
    return nullptr;
}

bool KnowsMissingValues(std::int16_t code) {
    const MeasureRow* row = FindMeasure(code);
    return row ? row->KnowsMissingValues : code < std::int16_t(Table[0].Code);
}

const std::vector<std::string>& DataKinds() {
    static const std::vector<std::string> kinds{"numerical data", "numerical data with NA", "binary"};
    return kinds;
}

const std::vector<std::string>& MeasuresOfKind(int dataKind) {
    static const auto texts = TextsByKind();
    return texts[CheckedPlace(dataKind, texts.size())];
}

std::int16_t MeasureCode(int dataKind, int position) {
    static const auto codes = CodesByKind();
    const auto& ofKind = codes[CheckedPlace(dataKind, codes.size())];
    return ofKind[CheckedPlace(position, ofKind.size())];
}

MeasurePlace PlaceOfMeasure(std::int16_t code) {
    std::array<int, KindCount> position{};
    for (const MeasureRow& row : Table) {
        const auto kind = std::size_t(row.Kind);
        if (code == row.Code) return {int(kind), position[kind]};
        ++position[kind];
    }
    throw RuntimeFailure(Failure::InvalidProcedureCall);
}

void SelectMeasure(std::int16_t code, ComboBox& kinds, ComboBox& measures) {
    const MeasurePlace place = PlaceOfMeasure(code);
    kinds.ListIndex = place.DataKind;
    measures.List = MeasuresOfKind(place.DataKind);
    measures.ListIndex = place.Position;
}

} // namespace dorvan
