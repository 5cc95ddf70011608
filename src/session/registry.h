#pragma once

#include "session/session.h"

#include <cstdint>
#include <string>
#include <string_view>

// Slots of the registry.
namespace dorvan {

// The first free slot from 1, taken out of the free ones, else a new one at the end (Overflow past 32767).
// `Dirty` of a reused slot keeps what it was: the opener of the document sets it.
std::int16_t FindFreeDataSlot(Session& session);
std::int16_t FindFreeMatrixSlot(Session& session);
std::int16_t FindFreeDiagramSlot(Session& session);
std::int16_t FindFreeBitmapSlot(Session& session);

// Some data slot from 1 up is in use.
bool AnyDataWindowOpen(const Session& session);

// Makes the window of a kind (a DocumentKind) for the slot in `NewWindowIndex`, its `Index` and `Tag` set,
// and puts it into the registry in the place of the one that stood there. It is not shown yet.
ChildWindow& CreateChildWindow(Session& session, std::string_view kind);

// "[DATA]: Untitled:1" and its likes.
std::string UntitledCaption(std::string_view kind, std::int16_t slot);

// The caption without "[MATRIX]: ", "[DATA]: ", "[DIAGRAM]: " and "[BITMAP]: ", wherever they stand.
std::string CaptionPath(std::string_view caption);

// A document that has no file: "Untitled" stands anywhere in the caption.
bool IsUntitled(std::string_view caption);

} // namespace dorvan
