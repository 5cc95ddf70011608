#include "program/program.h"

#include "making/making_diagram.h"
#include "sheet/frmNotePad.h"

#include <memory>

namespace dorvan {

namespace {

template <class Window> void MakesWindows(Session& session, std::string_view kind) {
    session.windowMakers[std::string(kind)] = [](Session& owner) { return std::make_shared<Window>(owner); };
}

} // namespace

void Compose(Session& session) {
    MakesWindows<frmNotePad>(session, DocumentKind::Data);
    session.commands.Set("MakeDiagram", [&session](const CommandCall&) { MakeDiagram(session); });
}

} // namespace dorvan
