#include "session/registry.h"

#include "numbers/rounding.h"
#include "numbers/runtime_failure.h"
#include "numbers/text.h"

#include <fmt/format.h>

#include <utility>

namespace dorvan {

namespace {

// The first slot marked `Deleted`, taken into use; 0 when there is none.
std::int16_t TakeFreeSlot(std::vector<WindowState>& states) {
    for (std::size_t slot = 1; slot < states.size(); ++slot)
        if (states[slot].Deleted) {
            states[slot].Deleted = false;
            return NarrowToInt16(static_cast<std::int64_t>(slot));
        }
    return 0;
}

template <class... Arrays> std::int16_t FindFreeSlot(std::vector<WindowState>& states, Arrays&... others) {
    if (const std::int16_t slot = TakeFreeSlot(states)) return slot;
    const std::int16_t slot = NarrowToInt16(static_cast<std::int64_t>(states.size()));
    states.emplace_back();
    (others.emplace_back(), ...);
    return slot;
}

std::vector<std::shared_ptr<ChildWindow>>& WindowsOf(Session& session, std::string_view kind) {
    if (kind == DocumentKind::Data) return session.DataWindows;
    if (kind == DocumentKind::Matrix) return session.MatrixWindows;
    if (kind == DocumentKind::Diagram) return session.DiagramWindows;
    if (kind == DocumentKind::Bitmap) return session.BitmapWindows;
    throw RuntimeFailure(Failure::InvalidProcedureCall, kind);
}

std::vector<WindowState>& StatesOf(Session& session, std::string_view kind) {
    if (kind == DocumentKind::Data) return session.DataStates;
    if (kind == DocumentKind::Matrix) return session.MatrixStates;
    if (kind == DocumentKind::Diagram) return session.DiagramStates;
    if (kind == DocumentKind::Bitmap) return session.BitmapStates;
    throw RuntimeFailure(Failure::InvalidProcedureCall, kind);
}

} // namespace

std::int16_t FindFreeDataSlot(Session& session) {
    return FindFreeSlot(session.DataStates, session.DataWindows);
}

std::int16_t FindFreeMatrixSlot(Session& session) {
    return FindFreeSlot(session.MatrixStates, session.MatrixWindows, session.MatrixDocuments);
}

std::int16_t FindFreeDiagramSlot(Session& session) {
    return FindFreeSlot(session.DiagramStates, session.DiagramWindows, session.DiagramDocuments);
}

std::int16_t FindFreeBitmapSlot(Session& session) {
    return FindFreeSlot(session.BitmapStates, session.BitmapWindows);
}

std::int16_t FindFreeSlot(Session& session, std::string_view kind) {
    if (kind == DocumentKind::Data) return FindFreeDataSlot(session);
    if (kind == DocumentKind::Matrix) return FindFreeMatrixSlot(session);
    if (kind == DocumentKind::Diagram) return FindFreeDiagramSlot(session);
    if (kind == DocumentKind::Bitmap) return FindFreeBitmapSlot(session);
    throw RuntimeFailure(Failure::InvalidProcedureCall, kind);
}

void AbandonSlot(Session& session, std::string_view kind, std::int16_t slot) {
    const auto window = std::exchange(WindowsOf(session, kind).at(std::size_t(slot)), nullptr);
    StateOfSlot(session, kind, slot) = {.Deleted = true};
    if (kind == DocumentKind::Matrix) session.MatrixDocuments.at(std::size_t(slot)) = {};
    if (kind == DocumentKind::Diagram) session.DiagramDocuments.at(std::size_t(slot)) = {};
    if (!window || std::erase(session.Children, window) == 0) return;
    if (session.ActiveWindow == window.get()) session.ActiveWindow = nullptr;
    session.platform.children.close(*window);
}

WindowState& StateOfSlot(Session& session, std::string_view kind, std::int16_t slot) {
    auto& states = StatesOf(session, kind);
    if (slot < 0 || std::size_t(slot) >= states.size())
        throw RuntimeFailure(Failure::SubscriptOutOfRange, "a window's slot");
    return states[std::size_t(slot)];
}

bool AnyDataWindowOpen(const Session& session) {
    for (std::size_t slot = 1; slot < session.DataStates.size(); ++slot)
        if (!session.DataStates[slot].Deleted) return true;
    return false;
}

void PutIntoRegistry(Session& session, std::string_view kind, std::shared_ptr<ChildWindow> window) {
    const std::int16_t slot = session.NewWindowIndex;
    auto& windows = WindowsOf(session, kind);
    if (slot < 1 || std::size_t(slot) >= windows.size())
        throw RuntimeFailure(Failure::SubscriptOutOfRange, "a window's slot");
    window->Index = slot;
    window->Tag = fmt::format("{}", slot);
    window->Form_Load();
    windows[std::size_t(slot)] = std::move(window);
}

std::string UntitledCaption(std::string_view kind, std::int16_t slot) {
    return fmt::format("[{}]: Untitled:{}", kind, slot);
}

std::string CaptionPath(std::string_view caption) {
    std::string path(caption);
    for (const auto prefix : {"[MATRIX]: ", "[DATA]: ", "[DIAGRAM]: ", "[BITMAP]: "})
        path = ReplaceAll(path, prefix, "");
    return path;
}

bool IsUntitled(std::string_view caption) { return caption.find("Untitled") != std::string_view::npos; }

} // namespace dorvan
