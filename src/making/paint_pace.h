#pragma once

#include "platform/ports.h"

namespace dorvan {

// When to paint a progress window: about 60 times a second, however often it is asked. Looking at the clock
// costs more than many a question, so it looks just every so many times, as the work's own pace allows.
class PaintPace {
public:
    explicit PaintPace(Clock& clock) : clock_(clock) {}

    // True at the first question, and where 1/60 s went by since it was true last.
    bool Due();

    // The clock at the last look: where Due was true, at that question.
    double Now() const { return lastLook_; }

private:
    Clock& clock_;
    bool painted_ = false;
    double lastPaint_ = 0.0; // seconds
    double lastLook_ = 0.0;
    int stride_ = 1; // questions from look to look
    int asked_ = 0;  // since the last look
};

} // namespace dorvan
