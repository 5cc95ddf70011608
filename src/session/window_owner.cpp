#include "session/window_owner.h"

namespace dorvan {

std::shared_ptr<ChildWindow> OwnerOf(const Session& session, const ChildWindow& window) {
    for (const auto* windows :
         {&session.DataWindows, &session.MatrixWindows, &session.DiagramWindows, &session.BitmapWindows})
        for (const auto& owner : *windows)
            if (owner.get() == &window) return owner;
    return nullptr;
}

} // namespace dorvan
