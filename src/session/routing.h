#pragma once

#include <string_view>

// Which command a menu item or button stands for, and what a command reaches for a kind of window.
namespace dorvan {

// Commands are named as in the command table where they are an operation of a module ("MakeMatrix") or of the
// active window's class ("frmDiagram.Up"); the main window's own commands have names of their own ("Close",
// "ExportText"). Empty: the item or button has no command and does nothing.
std::string_view CommandOfMenuItem(std::string_view item);
std::string_view CommandOfButton(std::string_view toolbar, std::string_view key);

// Carried out by the main window itself, without the command table.
bool IsOwnCommand(std::string_view command);

// Its operation depends on the kind of the active window.
bool IsRoutedCommand(std::string_view command);

// What a routed command calls for a window of the kind (a DocumentKind); empty: nothing.
std::string_view RoutedOperation(std::string_view command, std::string_view kind);

// The kind of window that an operation such as "frmDiagram.Up" belongs to; empty for a module's operation.
std::string_view KindOfOperation(std::string_view operation);

} // namespace dorvan
