#pragma once

#include "platform/controls.h"

namespace dorvan {

// A place inside a window, in twips.
struct Area {
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;
    bool operator==(const Area&) const = default;
};

// Goes from 0 to Max.
struct ScrollBar : Control {
    using Control::Control;
    int Value = 0;
    int Max = 0;
    int SmallChange = 300; // by an arrow or the wheel
    int LargeChange = 0;   // by a click beside the thumb: a page
};

} // namespace dorvan
