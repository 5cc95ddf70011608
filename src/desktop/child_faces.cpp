#include "desktop/child_faces.h"

#include <memory>

namespace dorvan {

ChildFace* MakeChildFace(ChildWindow& window, const ChildContext& context) {
    const auto& layOut = ChildLayouts::For(window);
    auto face = std::make_unique<ChildFace>(context.session, window, context.dispatch);
    layOut(*face, window, context);
    face->Mirror();
    return face.release();
}

} // namespace dorvan
