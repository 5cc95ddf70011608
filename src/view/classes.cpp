#include "view/classes.h"

#include "numbers/runtime_failure.h"

namespace dorvan {

namespace {

struct Limits {
    float first, second, third, fourth;
};

// Each test is told by what lies outside it; this order and form decide when the limits do not rise.
inline std::int16_t ClassBetween(float value, const Limits& limits) {
    if (!(value < 0.0f || value >= limits.first)) return 5;
    if (!(value < limits.first || value >= limits.second)) return 4;
    if (!(value < limits.second || value >= limits.third)) return 3;
    if (!(value < limits.third || value >= limits.fourth)) return 2;
    return value >= limits.fourth ? 1 : 6;
}

Limits LimitsOf(const Array1<float>& sectionLimits) {
    return {sectionLimits(1), sectionLimits(2), sectionLimits(3), sectionLimits(4)};
}

} // namespace

std::int16_t ClassifyCell(float value, const Array1<float>& sectionLimits) {
    return ClassBetween(value, LimitsOf(sectionLimits));
}

void ClassifyDiagram(DiagramDocument& document) {
    const std::int32_t count = document.RecCount;
    if (document.Matrix.Rows() < count || document.Matrix.Columns() < count)
        throw RuntimeFailure(Failure::SubscriptOutOfRange, "a diagram's matrix");
    if (document.Classes.Rows() != count || document.Classes.Columns() != count)
        document.Classes = Array2<std::int16_t>(count, count);
    const Limits limits = LimitsOf(document.SectionLimits);
    for (std::int32_t row = 1; row <= count; ++row) {
        const float* values = document.Matrix.Row(row);
        std::int16_t* classes = document.Classes.Row(row);
        for (std::int32_t column = 0; column < count; ++column)
            classes[column] = ClassBetween(values[column], limits);
    }
}

} // namespace dorvan
