#pragma once

#include "session/session.h"

#include <cstdint>
#include <string>

// The open documents as items of the menu Extras: the active one first, then the one that was active before
// it, to which Ctrl+Tab goes, and so on.
namespace dorvan {

inline constexpr int DocumentItems = 30; // what stands behind them is not listed
inline constexpr std::string_view DocumentsMenu = "mnuExtrasDocuments";

// "mnuExtrasDocument(1)"
std::string DocumentItem(int number);

// Brings the items in line with the windows.
void ShowDocuments(Session& session);

// Activates the document of an item; nothing for a number that has none.
void ActivateDocument(Session& session, std::int16_t number);

} // namespace dorvan
