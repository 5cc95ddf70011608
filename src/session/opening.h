#pragma once

#include "session/children.h"
#include "session/registry.h"

#include <cstdint>
#include <memory>
#include <string>

namespace dorvan {

// How a document opens.
struct Opening {
    std::string Caption = {}; // empty: the untitled one of its slot
    bool Dirty = true;        // false: a file holds the document as it is
    std::int16_t Slot = 0;    // taken already; 0: the first free one is taken
};

// Opens a window of the class on a document: takes a slot, makes the window in it, lets `present(window)`
// fill it, and shows it in the size of new windows.
//
//     OpenDocumentWindow<frmNotePad>(session, {}, [&](frmNotePad& sheet) { sheet.Present(description); });
//
// A document that has to stand in the slot's record before its window is made takes the slot itself:
//
//     const std::int16_t slot = FindFreeDiagramSlot(session);
//     session.DiagramDocuments.at(std::size_t(slot)) = document;
//     OpenDocumentWindow<frmDiagram>(session, {.Slot = slot}, [&](frmDiagram& diagram) { ... });
template <class Window, class Presentation>
Window& OpenDocumentWindow(Session& session, const Opening& opening, const Presentation& present) {
    const std::int16_t slot = opening.Slot > 0 ? opening.Slot : FindFreeSlot(session, Window::Kind);
    session.NewWindowIndex = slot;
    const auto window = std::make_shared<Window>(session);
    PutIntoRegistry(session, Window::Kind, window);
    window->Caption = opening.Caption.empty() ? UntitledCaption(Window::Kind, slot) : opening.Caption;
    present(*window);
    StateOfSlot(session, Window::Kind, slot).Dirty = opening.Dirty;
    PlaceNewWindow(session, *window);
    ShowChild(session, *window);
    return *window;
}

} // namespace dorvan
