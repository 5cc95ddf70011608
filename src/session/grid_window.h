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

    // On BottomPanel, which lies at the top in spite of its name.
    Label Label1{"Label1", "Description:"};
    TextBox BottomText{"BottomText"}; // the description
    Grid Siatka{"Siatka"};

protected:
    // In the normal state the active child window, be it this one or another, does not stay smaller: its
    // height snaps from below `Height` to `HeightInstead`, its width to `Width`.
    struct LeastSize {
        int Height;
        int HeightInstead;
        int Width;
    };
    void KeepLeastSize(const LeastSize& least);

    Session& session_;
};

} // namespace dorvan
