#include "making/paint_pace.h"

#include <algorithm>
#include <cmath>

namespace dorvan {

namespace {

constexpr double PaintSeconds = 1.0 / 60.0;
constexpr double LookSeconds = 0.0005; // less than this from look to look is too often
constexpr int LongestStride = 1024;

} // namespace

bool PaintPace::Due() {
    if (++asked_ < stride_) return false;
    asked_ = 0;
    const double now = clock_.seconds();
    const bool quick = std::fabs(now - lastLook_) < LookSeconds;
    stride_ = quick ? std::min(2 * stride_, LongestStride) : std::max(1, stride_ / 2);
    lastLook_ = now;
    // Midnight turns the clock back.
    if (painted_ && std::fabs(now - lastPaint_) < PaintSeconds) return false;
    painted_ = true;
    lastPaint_ = now;
    return true;
}

} // namespace dorvan
