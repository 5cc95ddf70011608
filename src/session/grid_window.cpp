#include "session/grid_window.h"

#include <algorithm>

namespace dorvan {

void GridWindow::KeepLeastSize(const LeastSize& least) {
    ChildWindow* active = session_.ActiveWindow;
    if (Mode == WindowMode::Normal && active &&
        (active->Height < least.Height || active->Width < least.Width)) {
        if (active->Height < least.Height) active->Height = least.HeightInstead;
        active->Width = std::max(active->Width, least.Width);
        session_.platform.children.update(*active);
    }
}

} // namespace dorvan
