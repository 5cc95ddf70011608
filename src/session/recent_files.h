#pragma once

#include "session/session.h"

#include <cstdint>
#include <string>

// The list of recent files: at most four paths in the settings store, the newest first, and the items of the
// menu File that show them. It is all that the program keeps between runs.
//
// The newest stands in item 0, the one that an empty list has as a separator. A path is looked for in the
// items 1 to 4, so the newest is not recognised: opened again, it stands in two places.
namespace dorvan {

// Fills the menu from the store. Nothing happens while the store has no newest path; items once shown stay.
void LoadRecentFiles(Session& session);

// One of the items 1 to 4 shows exactly this path.
bool IsRecentFile(const Session& session, const std::string& path);

// Writes the path before the others, of which the fourth falls off.
void AddRecentFile(Session& session, const std::string& path);

// After a file was opened through a dialog: adds a path that is not recognised, and fills the menu.
void UpdateRecentFiles(Session& session, const std::string& path);

// The path that an item of the list shows, from 0.
std::string RecentFilePath(const Session& session, std::int16_t index);

} // namespace dorvan
