#include "program/program.h"

#include "making/making_diagram.h"
#include "sheet/frmNotePad.h"
#include "view/classes.h"
#include "view/frmDiagram.h"
#include "sheet/new_data_sheet.h"

#include <memory>

namespace dorvan {

namespace {

template <class Window> void MakesWindows(Session& session, std::string_view kind) {
    session.windowMakers[std::string(kind)] = [](Session& owner) { return std::make_shared<Window>(owner); };
}

void AddDiagramCommands(Session& session) {
    const auto add = [&session](const char* name, void (frmDiagram::*method)()) {
        session.commands.Set(name, [&session, method](const CommandCall& call) {
            (DiagramWindow(session, call.Index).*method)();
        });
    };
    add("frmDiagram.SelectThisRow", &frmDiagram::SelectThisRow);
    add("frmDiagram.Home", &frmDiagram::Home);
    add("frmDiagram.Up", &frmDiagram::Up);
    add("frmDiagram.Down", &frmDiagram::Down);
    add("frmDiagram.EndRow", &frmDiagram::EndRow);
    add("frmDiagram.Insert", &frmDiagram::Insert);
    session.commands.Set("frmDiagram.SaveDiagram", [&session](const CommandCall& call) {
        DiagramWindow(session, call.Index).SaveDiagram(call.Path);
    });
    session.commands.Set("ClassifyDiagram", [&session](const CommandCall& call) {
        ClassifyDiagram(session.DiagramDocuments.at(std::size_t(call.Index)));
    });
}

} // namespace

void Compose(Session& session) {
    MakesWindows<frmNotePad>(session, DocumentKind::Data);
    MakesWindows<frmDiagram>(session, DocumentKind::Diagram);
    AddDiagramCommands(session);
    session.commands.Set("MakeDiagram", [&session](const CommandCall&) { MakeDiagram(session); });
    session.commands.Set("NewDataSheet", [&session](const CommandCall&) { NewDataSheet(session); });
}

} // namespace dorvan
