#include "session/registry.h"

#include "numbers/rounding.h"
#include "numbers/runtime_failure.h"
#include "numbers/text.h"

#include <fmt/format.h>

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
    return session.BitmapWindows;
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

bool AnyDataWindowOpen(const Session& session) {
    for (std::size_t slot = 1; slot < session.DataStates.size(); ++slot)
        if (!session.DataStates[slot].Deleted) return true;
    return false;
}

ChildWindow& CreateChildWindow(Session& session, std::string_view kind) {
    const auto maker = session.windowMakers.find(kind);
    if (maker == session.windowMakers.end()) throw RuntimeFailure(Failure::InvalidProcedureCall, kind);
    auto window = maker->second(session);
    window->Index = session.NewWindowIndex;
    window->Tag = fmt::format("{}", session.NewWindowIndex);
    window->Form_Load();
    auto& place = WindowsOf(session, kind).at(static_cast<std::size_t>(session.NewWindowIndex));
    place = std::move(window);
    return *place;
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
