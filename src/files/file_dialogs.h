#pragma once

#include "session/session.h"

#include <string>
#include <string_view>
#include <vector>

// The two file dialogs.
namespace dorvan {

using FileFilters = std::vector<FileFilter>;

// "mdt file (*.mdt)" and the like, then "all (*.*)": of a kind such as "mdt" and its extension.
FileFilters FileFiltersOf(std::string_view kind, std::string_view extension);
FileFilters DataFileFilters();
FileFilters MatrixFileFilters();
FileFilters DiagramFileFilters();     // of the open dialog
FileFilters DiagramFileSaveFilters(); // the save dialog calls them "diagram file"

// The chosen path, or an empty text when cancelled. `title` stands behind the program's name in the dialog's
// title. The dialogs start in the program's folder. A path of more than 255 characters is refused with a
// message, as if cancelled.
std::string PickFileToOpen(Session& session, const FileFilters& filters, std::string_view title);
std::string PickFileToSave(Session& session, const FileFilters& filters, std::string_view title,
                           std::string_view extension);

} // namespace dorvan
