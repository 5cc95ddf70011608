#include "program/program.h"

#include "distance/frmMacierz.h"
#include "distance/making_matrix.h"
#include "files/data_documents.h"
#include "files/diagram_documents.h"
#include "files/matrix_documents.h"
#include "making/making_diagram.h"
#include "making/ordering_runs.h"
#include "sheet/new_data_sheet.h"
#include "view/frmDiagram.h"

namespace dorvan {

namespace {

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

void AddSheets(Session& session) { AddOperation(session, "NewDataSheet", NewDataSheet); }

void AddFiles(Session& session) {
    AddOperation(session, "OpenDataFile", OpenDataFile);
    AddOperation(session, "OpenMatrixFile", OpenMatrixFile);
    AddOperation(session, "OpenDiagramFile", OpenDiagramFile);
    AddOperation(session, "SaveData", SaveData);
    AddOperation(session, "SaveDataAs", SaveDataAs);
}

void AddMatrices(Session& session) {
    AddOperation(session, "MakeMatrix", MakeMatrix);
    AddSaving(session, "frmMacierz.SaveMatrix", MatrixWindow, &frmMacierz::SaveMatrix);
}

void AddDiagrams(Session& session) {
    AddOperation(session, "MakeDiagram", MakeDiagram);
    AddGeneticOrderings(session);
    AddMethod(session, "frmDiagram.SelectThisRow", DiagramWindow, &frmDiagram::SelectThisRow);
    AddMethod(session, "frmDiagram.Home", DiagramWindow, &frmDiagram::Home);
    AddMethod(session, "frmDiagram.Up", DiagramWindow, &frmDiagram::Up);
    AddMethod(session, "frmDiagram.Down", DiagramWindow, &frmDiagram::Down);
    AddMethod(session, "frmDiagram.EndRow", DiagramWindow, &frmDiagram::EndRow);
    AddMethod(session, "frmDiagram.Insert", DiagramWindow, &frmDiagram::Insert);
    AddSaving(session, "frmDiagram.SaveDiagram", DiagramWindow, &frmDiagram::SaveDiagram);
}

} // namespace

void Compose(Session& session) {
    AddSheets(session);
    AddFiles(session);
    AddMatrices(session);
    AddDiagrams(session);
}

} // namespace dorvan
