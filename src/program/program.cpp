#include "program/program.h"

#include "distance/frmMacierz.h"
#include "program/registering.h"
#include "sheet/frmNotePad.h"
#include "view/frmDiagram.h"

#include <memory>

namespace dorvan {

namespace {

template <class Window> void MakesWindows(Session& session, std::string_view kind) {
    session.windowMakers[std::string(kind)] = [](Session& owner) { return std::make_shared<Window>(owner); };
}

} // namespace

void Compose(Session& session) {
    MakesWindows<frmNotePad>(session, DocumentKind::Data);
    MakesWindows<frmMacierz>(session, DocumentKind::Matrix);
    MakesWindows<frmDiagram>(session, DocumentKind::Diagram);
    RegisterSheetOperations(session);
    RegisterDistanceOperations(session);
    RegisterViewOperations(session);
    RegisterMakingOperations(session);
    RegisterFilesOperations(session);
    RegisterImportOperations(session);
    RegisterExportOperations(session);
    RegisterPrintOperations(session);
}

} // namespace dorvan
