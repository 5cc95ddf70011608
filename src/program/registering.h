#pragma once

#include "session/session.h"

#include <cstdint>
#include <string>
#include <string_view>

// One line registers what an operation of the command table does; a name that no command has fails.
//
//     Register(session, "MakeMatrix", MakeMatrix);                          // an operation of a module
//     Register(session, "frmDiagram.Up", DiagramWindow, &frmDiagram::Up);  // a method of the active window
//
// Each room has a file of its own here, <room>_operations.cpp.
namespace dorvan {

inline void Register(Session& session, std::string_view operation, void (*does)(Session&)) {
    session.commands.Set(operation, [&session, does](const CommandCall&) { does(session); });
}

// An operation that takes a path, or the number of its menu item.
inline void Register(Session& session, std::string_view operation,
                     void (*does)(Session&, const std::string& path)) {
    session.commands.Set(operation, [&session, does](const CommandCall& call) { does(session, call.Path); });
}

inline void Register(Session& session, std::string_view operation,
                     void (*does)(Session&, std::int16_t number)) {
    session.commands.Set(operation, [&session, does](const CommandCall& call) { does(session, call.Index); });
}

// A method of the window in the call's slot, which `windowOf` finds.
template <class Window>
void Register(Session& session, std::string_view operation, Window& (*windowOf)(Session&, std::int16_t),
              void (Window::*method)()) {
    session.commands.Set(operation, [&session, windowOf, method](const CommandCall& call) {
        (windowOf(session, call.Index).*method)();
    });
}

// One that takes a path: a save.
template <class Window>
void Register(Session& session, std::string_view operation, Window& (*windowOf)(Session&, std::int16_t),
              void (Window::*method)(const std::string& path)) {
    session.commands.Set(operation, [&session, windowOf, method](const CommandCall& call) {
        (windowOf(session, call.Index).*method)(call.Path);
    });
}

// One for each room that has operations.
void RegisterSessionOperations(Session& session);
void RegisterSheetOperations(Session& session);
void RegisterDistanceOperations(Session& session);
void RegisterViewOperations(Session& session);
void RegisterMakingOperations(Session& session);
void RegisterFilesOperations(Session& session);
void RegisterImportOperations(Session& session);
void RegisterExportOperations(Session& session);
void RegisterPrintOperations(Session& session);

} // namespace dorvan
