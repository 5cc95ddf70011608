#include "program/program.h"

#include "sheet/frmNotePad.h"
#include "sheet/new_data_sheet.h"

#include <memory>

namespace dorvan {

namespace {

template <class Window> void MakesWindows(Session& session, std::string_view kind) {
    session.windowMakers[std::string(kind)] = [](Session& owner) { return std::make_shared<Window>(owner); };
}

} // namespace

void Compose(Session& session) {
    MakesWindows<frmNotePad>(session, DocumentKind::Data);
    session.commands.Set("NewDataSheet", [&session](const CommandCall&) { NewDataSheet(session); });
}

} // namespace dorvan
