#include "program/open_document.h"

#include "files/data_documents.h"
#include "files/diagram_documents.h"
#include "files/matrix_documents.h"
#include "files/reading.h"
#include "numbers/text.h"
#include "session/busy.h"

namespace dorvan {

std::string_view KindOfFile(std::string_view path) {
    const std::string extension = LowerCase(RightCharacters(path, 4));
    if (extension == ".mdt") return DocumentKind::Data;
    if (extension == ".mtx") return DocumentKind::Matrix;
    if (extension == ".dgr") return DocumentKind::Diagram;
    return {};
}

void OpenDocument(Session& session, const std::string& path) {
    if (RefusedWhileBusy(session)) return;
    const std::string_view kind = KindOfFile(path);
    if (kind.empty()) {
        session.platform.messages.show(
            {.Text = "Error! This file is not acceptable for Dorvan.", .Icon = MessageIcon::Critical});
        return;
    }
    ReadDocument(session, path);
    UpdateRecentFiles(session, path);
}

void OpenDocuments(Session& session, const std::vector<std::string>& paths) {
    if (RefusedWhileBusy(session)) return;
    std::string others;
    for (const auto& path : paths)
        if (KindOfFile(path).empty())
            others += "\r\n  " + path;
        else
            OpenDocument(session, path);
    if (others.empty()) return;
    session.platform.messages.show(
        {.Text = "Only sheets (.mdt), matrices (.mtx) and diagrams (.dgr) open this way; File, Import reads "
                 "tables of other programs:" +
                 others,
         .Icon = MessageIcon::Exclamation});
}

void ReadDocument(Session& session, const std::string& path) {
    const std::string_view kind = KindOfFile(path);
    if (kind == DocumentKind::Data) ReadDataFile(session, path);
    if (kind == DocumentKind::Matrix) ReadMatrixFile(session, path);
    if (kind == DocumentKind::Diagram) ReadDiagramFile(session, path);
}

} // namespace dorvan
