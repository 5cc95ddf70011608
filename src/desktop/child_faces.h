#pragma once

#include "desktop/child_face.h"

#include <functional>

namespace dorvan {

struct Session;

// What the faces of child windows need beside their window.
struct ChildContext {
    Session& session;
    EventDispatch& dispatch;
    std::function<void(const std::string& menu, QPoint global)> popUp;
};

// The face of a child window, laid out by its class's name. Fails with InvalidProcedureCall for an unknown
// class.
ChildFace* MakeChildFace(ChildWindow& window, const ChildContext& context);

// One for each class of window.
void LayOutNotePad(ChildFace& face, const ChildContext& context);
void LayOutMatrix(ChildFace& face, const ChildContext& context);
void LayOutDiagram(ChildFace& face, const ChildContext& context);

} // namespace dorvan
