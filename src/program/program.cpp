#include "program/program.h"

#include "distance/frmMacierz.h"
#include "distance/making_matrix.h"
#include "files/data_documents.h"
#include "files/diagram_documents.h"
#include "files/matrix_documents.h"
#include "making/making_diagram.h"
#include "making/ordering_runs.h"
#include "sheet/frmNotePad.h"
#include "sheet/new_data_sheet.h"
#include "view/classes.h"
#include "view/frmDiagram.h"

#include <memory>

namespace dorvan {

namespace {

template <class Window> void MakesWindows(Session& session, std::string_view kind) {
    session.windowMakers[std::string(kind)] = [](Session& owner) { return std::make_shared<Window>(owner); };
}

// A command that is an operation of a module.
void AddOperation(Session& session, const char* name, void (*operation)(Session&)) {
    session.commands.Set(name, [&session, operation](const CommandCall&) { operation(session); });
}

// A command that is a method of the window in the call's slot.
template <class Window>
void AddMethod(Session& session, const char* name, Window& (*windowOf)(Session&, std::int16_t),
               void (Window::*method)()) {
    session.commands.Set(name, [&session, windowOf, method](const CommandCall& call) {
        (windowOf(session, call.Index).*method)();
    });
}

template <class Window>
void AddSaving(Session& session, const char* name, Window& (*windowOf)(Session&, std::int16_t),
               void (Window::*method)(const std::string&)) {
    session.commands.Set(name, [&session, windowOf, method](const CommandCall& call) {
        (windowOf(session, call.Index).*method)(call.Path);
    });
}

void AddSheets(Session& session) {
    MakesWindows<frmNotePad>(session, DocumentKind::Data);
    AddOperation(session, "NewDataSheet", NewDataSheet);
}

void AddFiles(Session& session) {
    AddOperation(session, "OpenDataFile", OpenDataFile);
    AddOperation(session, "OpenMatrixFile", OpenMatrixFile);
    AddOperation(session, "OpenDiagramFile", OpenDiagramFile);
    AddOperation(session, "SaveData", SaveData);
    AddOperation(session, "SaveDataAs", SaveDataAs);
}

void AddMatrices(Session& session) {
    MakesWindows<frmMacierz>(session, DocumentKind::Matrix);
    AddOperation(session, "MakeMatrix", MakeMatrix);
    AddSaving(session, "frmMacierz.SaveMatrix", MatrixWindow, &frmMacierz::SaveMatrix);
}

void AddDiagrams(Session& session) {
    MakesWindows<frmDiagram>(session, DocumentKind::Diagram);
    AddOperation(session, "MakeDiagram", MakeDiagram);
    AddGeneticOrderings(session);
    AddMethod(session, "frmDiagram.SelectThisRow", DiagramWindow, &frmDiagram::SelectThisRow);
    AddMethod(session, "frmDiagram.Home", DiagramWindow, &frmDiagram::Home);
    AddMethod(session, "frmDiagram.Up", DiagramWindow, &frmDiagram::Up);
    AddMethod(session, "frmDiagram.Down", DiagramWindow, &frmDiagram::Down);
    AddMethod(session, "frmDiagram.EndRow", DiagramWindow, &frmDiagram::EndRow);
    AddMethod(session, "frmDiagram.Insert", DiagramWindow, &frmDiagram::Insert);
    AddSaving(session, "frmDiagram.SaveDiagram", DiagramWindow, &frmDiagram::SaveDiagram);
    session.commands.Set("ClassifyDiagram", [&session](const CommandCall& call) {
        ClassifyDiagram(session.DiagramDocuments.at(std::size_t(call.Index)));
    });
}

} // namespace

void Compose(Session& session) {
    AddSheets(session);
    AddFiles(session);
    AddMatrices(session);
    AddDiagrams(session);
}

} // namespace dorvan
