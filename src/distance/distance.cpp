#include "distance/distance.h"

#include "distance/side_by_side.h"
#include "numbers/runtime_failure.h"

#include <limits>

namespace dorvan {

namespace {

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
    return {DistanceType(session.CurrentDistType), session.Par_P, session.Par_R};
}

float DistanceBetween(const float* x, const float* y, std::int32_t m, const Measure& measure) {
    const MeasureRow* row = FindMeasure(std::int16_t(measure.Type));
    return row ? row->Distance({x, y, m}, measure) : 0.0f;
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
    session.tables.DistanceValues =
        DistancesBetweenRows(session.tables.DataValues, n, m, CurrentMeasure(session));
    return true;
}

} // namespace dorvan
