#include "making/plain_making.h"

#include "distance/plain_measures.h"

#include <cmath>
#include <utility>

namespace dorvan::test {

void PlainSortAllButLast(Array1<float>& a) {
    const std::int32_t m = a.Count() - 1;
    for (std::int32_t gap = m / 2; gap >= 1; gap /= 2) {
        std::int32_t last = m - gap;
        std::int32_t exchanged = 0;
        do {
            exchanged = 0;
            for (std::int32_t p = 1; p <= last; ++p)
                if (a(p) > a(p + gap)) {
                    std::swap(a(p), a(p + gap));
                    exchanged = p;
                }
            last = exchanged - gap;
        } while (exchanged != 0);
    }
}

Array1<float> PlainAutomaticLimits(const FloatTable& distances) {
    const std::int32_t n = distances.Rows();
    const std::int32_t u = n * (n - 1) / 2;
    Array1<float> s(u);
    for (std::int32_t i = 1; i <= n; ++i)
        for (std::int32_t j = 1; j <= n; ++j)
            if (i > j) s((i - 2) * (i - 1) / 2 + j) = distances(i, j);
    PlainSortAllButLast(s);
    Array1<float> limits(4);
    const double factors[] = {0.2, 0.4, 0.6, 0.8};
    for (std::int32_t k = 1; k <= 4; ++k)
        limits(k) = s(static_cast<std::int32_t>(std::lrint(u * factors[k - 1])));
    return limits;
}

Order PlainSimpleOrder(const FloatTable& distances) {
    const std::int32_t n = distances.Rows();
    float maxDistance = 0;
    for (std::int32_t i = 1; i <= n; ++i)
        for (std::int32_t j = 1; j <= n; ++j)
            if (distances(i, j) >= maxDistance) maxDistance = distances(i, j);
    Order order(n);
    Array1<int> visited(n);
    visited(1) = 1;
    order(1) = 1;
    std::int32_t current = 1;
    for (std::int32_t count = 2; count <= n; ++count) {
        float best = maxDistance;
        std::int16_t nearest = 0;
        for (std::int32_t j = 1; j <= n; ++j)
            if (distances(current, j) <= best && visited(j) != 1) {
                best = distances(current, j);
                nearest = static_cast<std::int16_t>(j);
            }
        order(count) = nearest;
        current = nearest;
        visited(nearest) = 1;
    }
    return order;
}

namespace {

std::int16_t PlainClass(float v, const Array1<float>& limits) {
    if (v >= 0 && v < limits(1)) return 5;
    if (v >= limits(1) && v < limits(2)) return 4;
    if (v >= limits(2) && v < limits(3)) return 3;
    if (v >= limits(3) && v < limits(4)) return 2;
    return v >= limits(4) ? 1 : 6;
}

void PlainRewrite(DiagramDocument& document, const Order& order) {
    const FloatTable savedValues = document.Data;
    const Names savedNames = document.RecordNames;
    for (std::int32_t p = 1; p <= document.RecCount; ++p) {
        for (std::int32_t v = 1; v <= document.VarCount; ++v) document.Data(p, v) = savedValues(order(p), v);
        document.RecordNames(p) = savedNames(order(p));
    }
}

} // namespace

DiagramDocument PlainDiagram(const FloatTable& values, const Names& recordNames, const Names& variableNames,
                             const Measure& measure, bool ordered) {
    DiagramDocument document;
    document.RecCount = static_cast<std::int16_t>(values.Rows());
    document.VarCount = static_cast<std::int16_t>(values.Columns());
    document.DistType = std::int16_t(measure.Type);
    document.Data = values;
    document.RecordNames = recordNames;
    document.VariableNames = variableNames;
    document.Matrix = plainDistances(values, values.Rows(), values.Columns(), measure);
    document.SectionLimits = PlainAutomaticLimits(document.Matrix);
    if (ordered) {
        PlainRewrite(document, PlainSimpleOrder(document.Matrix));
        document.Matrix = plainDistances(document.Data, values.Rows(), values.Columns(), measure);
    }
    document.Classes = Array2<std::int16_t>(document.RecCount, document.RecCount);
    for (std::int32_t i = 1; i <= document.RecCount; ++i)
        for (std::int32_t j = 1; j <= document.RecCount; ++j)
            document.Classes(i, j) = PlainClass(document.Matrix(i, j), document.SectionLimits);
    return document;
}

} // namespace dorvan::test
