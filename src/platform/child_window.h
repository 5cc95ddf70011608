#pragma once

#include "platform/form.h"

#include <cstdint>

namespace dorvan {

enum class WindowMode { Normal, Minimized, Maximized };

// A window inside the main window: what the registry and the shell need to know of it. Lengths in twips,
// 15 to the pixel.
class ChildWindow : public Form {
public:
    using Form::Form;

    std::string Tag;        // the slot index as text
    std::string TypeOfForm; // empty until the first activation
    std::int16_t Index = 0; // slot index

    WindowMode Mode = WindowMode::Normal;
    int Left = 0;
    int Top = 0;
    int Width = 0; // outer size; 0 until the window has been given one
    int Height = 0;
    int ScaleWidth = 0; // inner size, as told by the face
    int ScaleHeight = 0;

    virtual void Form_Activate() = 0;
    virtual void Form_Deactivate() = 0;
    // False keeps the window open.
    virtual bool Form_QueryUnload() { return true; }
    virtual void Form_Unload() = 0;

    // A command is about to run, or another window comes to the front: a field that has the focus loses it.
    virtual void LeaveField() {}
};

} // namespace dorvan
