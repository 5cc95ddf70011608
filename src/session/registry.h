#pragma once

#include "numbers/runtime_failure.h"
#include "session/session.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

// Slots of the registry.
namespace dorvan {

// The first free slot from 1, taken out of the free ones, else a new one at the end (Overflow past 32767).
// `Dirty` of a reused slot keeps what it was: the opener of the document sets it.
std::int16_t FindFreeDataSlot(Session& session);
std::int16_t FindFreeMatrixSlot(Session& session);
std::int16_t FindFreeDiagramSlot(Session& session);
std::int16_t FindFreeBitmapSlot(Session& session);
std::int16_t FindFreeSlot(Session& session, std::string_view kind); // a DocumentKind

// Fails with SubscriptOutOfRange for a slot that is not in the registry.
WindowState& StateOfSlot(Session& session, std::string_view kind, std::int16_t slot);

// Takes back a slot whose window could not be made or filled: it is free, and neither window nor document
// stand in it.
void AbandonSlot(Session& session, std::string_view kind, std::int16_t slot);

// Some data slot from 1 up is in use.
bool AnyDataWindowOpen(const Session& session);

// Puts a new window of the kind into the slot in `NewWindowIndex`, in the place of the one that stood there,
// and loads it, its `Index` and `Tag` set. It is not shown yet; `OpenDocumentWindow` is what commands call.
void PutIntoRegistry(Session& session, std::string_view kind, std::shared_ptr<ChildWindow> window);

// The window of a slot, by its class. Fails with SubscriptOutOfRange for a slot that is not in the registry,
// with InvalidProcedureCall for one that holds no such window.
template <class Window>
Window& WindowInSlot(const std::vector<std::shared_ptr<ChildWindow>>& windows, std::int16_t slot) {
    if (slot < 1 || std::size_t(slot) >= windows.size())
        throw RuntimeFailure(Failure::SubscriptOutOfRange, "a window's slot");
    auto* window = dynamic_cast<Window*>(windows[std::size_t(slot)].get());
    if (!window) throw RuntimeFailure(Failure::InvalidProcedureCall, "no such window in that slot");
    return *window;
}

// "[DATA]: Untitled:1" and its likes.
std::string UntitledCaption(std::string_view kind, std::int16_t slot);

// The caption without "[MATRIX]: ", "[DATA]: ", "[DIAGRAM]: " and "[BITMAP]: ", wherever they stand.
std::string CaptionPath(std::string_view caption);

// A document that has no file: "Untitled" stands anywhere in the caption.
bool IsUntitled(std::string_view caption);

} // namespace dorvan
