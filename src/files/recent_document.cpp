#include "files/recent_document.h"

#include "files/data_documents.h"
#include "files/diagram_documents.h"
#include "files/matrix_documents.h"
#include "numbers/text.h"
#include "session/recent_files.h"

namespace dorvan {

void OpenRecentFile(Session& session, std::int16_t index) {
    const std::string path = RecentFilePath(session, index);
    const std::string extension = LowerCase(RightCharacters(path, 3));
    if (extension == "mdt")
        ReadDataFile(session, path);
    else if (extension == "mtx")
        ReadMatrixFile(session, path);
    else if (extension == "dgr")
        ReadDiagramFile(session, path);
    else
        session.platform.messages.show(
            {.Text = "Error! This file is not acceptable for Dorvan.", .Icon = MessageIcon::Critical});
    LoadRecentFiles(session);
}

} // namespace dorvan
