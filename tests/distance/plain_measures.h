#pragma once

#include "distance/distance.h"
#include "numbers/rounding.h"
#include "numbers/runtime_failure.h"

#include <cmath>
#include <cstdint>

// The ten measures as they are defined, one pair after the other: what the fast ones have to equal to the
// bit.
namespace dorvan::test {

inline double plainPower(double base, double exponent) {
    if (base == 0 && exponent < 0) throw RuntimeFailure(Failure::InvalidProcedureCall);
    const double power = std::pow(base, exponent);
    if (std::isinf(power)) throw RuntimeFailure(Failure::Overflow);
    return power;
}

inline float plainDistance(const float* x, const float* y, std::int32_t m, const Measure& measure) {
    float S = 0;
    float d = 0;
    std::int16_t a = 0;
    std::int16_t b = 0;
    std::int16_t c = 0;
    std::int16_t e = 0;
    std::int32_t shared = 0;
    switch (int(measure.Type)) {
    case 1:
        for (std::int32_t k = 0; k < m; ++k) {
            if (x[k] == NaValue || y[k] == NaValue) continue;
            d = RoundToFloat(double(x[k]) - double(y[k]));
            S = RoundToFloat(double(S) + double(d) * double(d));
            c = AddInt16(c, 1);
        }
        if (c == 0) return 0;
        return RoundToFloat(double(S) / c);
    case 2:
        for (std::int32_t k = 0; k < m; ++k) {
            if (x[k] == NaValue || y[k] == NaValue) continue;
            d = RoundToFloat(double(x[k]) - double(y[k]));
            S = RoundToFloat(double(S) + double(std::fabs(d)));
            c = AddInt16(c, 1);
        }
        if (c == 0) return 0;
        return RoundToFloat(double(S) / c);
    case 3:
        for (std::int32_t k = 0; k < m; ++k) {
            d = RoundToFloat(double(x[k]) - double(y[k]));
            S = RoundToFloat(double(S) + double(d) * double(d));
        }
        return RoundToFloat(std::sqrt(double(S)));
    case 4:
        for (std::int32_t k = 0; k < m; ++k) {
            d = RoundToFloat(double(x[k]) - double(y[k]));
            S = RoundToFloat(double(S) + double(std::fabs(d)));
        }
        return S;
    case 5:
        for (std::int32_t k = 0; k < m; ++k) {
            d = RoundToFloat(double(x[k]) - double(y[k]));
            if (std::fabs(d) > S) S = std::fabs(d);
        }
        return S;
    case 6:
        for (std::int32_t k = 0; k < m; ++k) {
            d = RoundToFloat(double(x[k]) - double(y[k]));
            const double power = plainPower(std::fabs(d), measure.Par_P);
            S = RoundToFloat(double(S) + power);
        }
        if (measure.Par_R == 0) throw RuntimeFailure(Failure::DivisionByZero);
        return RoundToFloat(plainPower(S, 1.0 / measure.Par_R));
    case 7:
        for (std::int32_t k = 0; k < m; ++k)
            if (x[k] != y[k]) S = RoundToFloat(double(S) + 1);
        if (m == 0) throw RuntimeFailure(Failure::DivisionByZero);
        return RoundToFloat(double(S) / m * 100.0);
    case 8:
        for (std::int32_t k = 0; k < m; ++k) {
            if (x[k] != y[k]) S = RoundToFloat(double(S) + 1);
            if (x[k] == 0 && y[k] == 0) ++shared;
        }
        if (2.0 * shared + S == 0) throw RuntimeFailure(Failure::DivisionByZero);
        return RoundToFloat(S / (2.0 * shared + S));
    case 9:
        for (std::int32_t k = 0; k < m; ++k) {
            if (x[k] != y[k]) S = RoundToFloat(double(S) + 1);
            if (x[k] == 1 && y[k] == 1) ++shared;
        }
        if (double(S) + shared == 0) throw RuntimeFailure(Failure::DivisionByZero);
        return RoundToFloat(1.0 - shared / (double(S) + shared));
    case 10: {
        for (std::int32_t k = 0; k < m; ++k) {
            if (x[k] == 0 && y[k] == 0) a = AddInt16(a, 1);
            if (x[k] == 1 && y[k] == 1) b = AddInt16(b, 1);
            if (x[k] == 1 && y[k] == 0) c = AddInt16(c, 1);
            if (x[k] == 0 && y[k] == 1) e = AddInt16(e, 1);
        }
        const std::int16_t P = MultiplyInt16(c, e);
        const std::int16_t Q = MultiplyInt16(b, a);
        const float D = AddInt16(P, Q);
        if (!(D > 0)) return 2.0f;
        const float quotient = float(SubtractInt16(Q, P)) / D;
        return RoundToFloat(1.0 - double(quotient));
    }
    default: return 0;
    }
}

inline FloatTable plainDistances(const FloatTable& values, std::int32_t n, std::int32_t m,
                                 const Measure& measure) {
    FloatTable distances(n, n);
    for (std::int32_t i = 1; i <= n; ++i)
        for (std::int32_t j = 1; j <= n; ++j) {
            if (i == j) distances.Row(i)[j - 1] = 0;
            if (i < j) distances.Row(i)[j - 1] = plainDistance(values.Row(i), values.Row(j), m, measure);
            if (i > j) distances.Row(i)[j - 1] = distances.Row(j)[i - 1];
        }
    return distances;
}

} // namespace dorvan::test
