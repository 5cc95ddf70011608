#include "program/open_document.h"

#include "files/data_documents.h"
#include "files/diagram_documents.h"
#include "files/matrix_documents.h"
#include "files/reading.h"
#include "numbers/text.h"

namespace dorvan {

void OpenDocument(Session& session, const std::string& path) {
    if (session.DiagramBusy == 1) {
        session.platform.signals.beep();
        return;
    }
    const std::string extension = LowerCase(RightCharacters(path, 4));
    if (extension == ".mdt")
        ReadDataFile(session, path);
    else if (extension == ".mtx")
        ReadMatrixFile(session, path);
    else if (extension == ".dgr")
        ReadDiagramFile(session, path);
    else {
        session.platform.messages.show(
            {.Text = "Error! This file is not acceptable for Dorvan.", .Icon = MessageIcon::Critical});
        return;
    }
    UpdateRecentFiles(session, path);
}

} // namespace dorvan
