#include "session/grid_window.h"

#include <algorithm>

namespace dorvan {

namespace {

constexpr int RightMargin = 100; // twips

} // namespace

void GridWindow::LayOutIn(const LeastSize& least) {
    ChildWindow* active = session_.ActiveWindow;
    if (Mode == WindowMode::Normal && active &&
        (active->Height < least.Height || active->Width < least.Width)) {
        if (active->Height < least.Height) active->Height = least.HeightInstead;
        active->Width = std::max(active->Width, least.Width);
        session_.platform.children.update(*active);
    }
    if (Mode == WindowMode::Minimized || ScaleHeight <= 0) return;
    SiatkaBounds = {0, BottomPanelHeight, ScaleWidth, std::max(0, ScaleHeight - BottomPanelHeight)};
    BottomTextWidth = std::max(0, ScaleWidth - BottomTextLeft - RightMargin);
}

} // namespace dorvan
