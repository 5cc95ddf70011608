#pragma once

#include <span>
#include <string_view>

namespace dorvan {

// The menu that opens over a window of a DocumentKind: items of the main menus and buttons of toolbars, "-"
// for a line between them, on and off as they are there. A sheet has none of its own: it opens the menu Edit.
std::span<const std::string_view> PopUpItems(std::string_view kind);

} // namespace dorvan
