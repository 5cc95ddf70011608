#include "view/document_order.h"

#include "numbers/runtime_failure.h"
#include "view/classes.h"

namespace dorvan {

namespace {

template <class T> Array1<T> Reordered(const Array1<T>& values, const Array1<std::int16_t>& order) {
    Array1<T> result(order.Count());
    for (std::int32_t place = 1; place <= order.Count(); ++place) result(place) = values(order(place));
    return result;
}

// Rows and columns alike.
FloatTable Reordered(const FloatTable& matrix, const Array1<std::int16_t>& order) {
    const std::int32_t count = order.Count();
    FloatTable result(count, count);
    for (std::int32_t row = 1; row <= count; ++row) {
        const float* from = matrix.Row(order(row));
        float* to = result.Row(row);
        for (const std::int16_t place : order.Cells()) *to++ = from[place - 1];
    }
    return result;
}

void CheckOrder(const Array1<std::int16_t>& order, const DiagramDocument& document) {
    const std::int32_t count = document.RecCount;
    if (order.Count() != count || document.Matrix.Rows() < count || document.Matrix.Columns() < count)
        throw RuntimeFailure(Failure::SubscriptOutOfRange, "a diagram's order");
    for (const std::int16_t place : order.Cells())
        if (place < 1 || place > count)
            throw RuntimeFailure(Failure::SubscriptOutOfRange, "a diagram's order");
}

} // namespace

void ReorderRecords(DiagramDocument& document, const Array1<std::int16_t>& order) {
    CheckOrder(order, document);
    document.Matrix = Reordered(document.Matrix, order);
    document.RecordNames = Reordered(document.RecordNames, order);
    document.RecordHasNA = Reordered(document.RecordHasNA, order);
}

void ReorderDocument(DiagramDocument& document, const Array1<std::int16_t>& order) {
    ReorderRecords(document, order);
    if (!document.NoData) {
        const FloatTable data = document.Data;
        for (std::int32_t place = 1; place <= order.Count(); ++place)
            for (std::int32_t v = 1; v <= document.VarCount; ++v)
                document.Data(place, v) = data(order(place), v);
    }
    ClassifyDiagram(document);
}

} // namespace dorvan
