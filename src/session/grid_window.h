#pragma once

#include "platform/child_window.h"
#include "platform/grid.h"
#include "session/session.h"

#include <string>
#include <utility>

namespace dorvan {

// A child window with a description on a panel at its top and a grid in the rest: matrices and diagrams.
class GridWindow : public ChildWindow {
public:
    GridWindow(std::string name, Session& session) : ChildWindow(std::move(name)), session_(session) {}

    static constexpr int BottomPanelHeight = 390; // twips; the panel of the description, above the grid

    TextBox BottomText{"BottomText"}; // the description
    Grid Siatka{"Siatka"};

    // Places of the controls, in twips inside the window, as the last resize set them.
    struct Bounds {
        int Left = 0;
        int Top = BottomPanelHeight;
        int Width = 0;
        int Height = 0;
    };
    Bounds SiatkaBounds;
    int BottomTextLeft = 1200; // right of the label "Description:"; told by the face
    int BottomTextWidth = 0;

protected:
    // In the normal state the active child window, be it this one or another, does not stay smaller: its
    // height snaps from below `Height` to `HeightInstead`, its width to `Width`.
    struct LeastSize {
        int Height;
        int HeightInstead;
        int Width;
    };
    void LayOutIn(const LeastSize& least);

    Session& session_;
};

} // namespace dorvan
