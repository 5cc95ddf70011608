#include "import/import_commands.h"

#include "import/frmImpDBF.h"
#include "session/busy.h"
#include "session/opening.h"
#include "sheet/frmNotePad.h"

namespace dorvan {

void ImportDBaseFile(Session& session) {
    if (RefusedWhileBusy(session) || !Accepted<frmImpDBF>(session)) return;
    const WaitCursor wait(session.platform);
    const std::string path = session.forms.Load<frmImpDBF>(session).Table.DBPath;
    OpenDocumentWindow<frmNotePad>(session, {},
                                   [&](frmNotePad& sheet) { sheet.Present("Data from " + CleanName(path)); });
}

} // namespace dorvan
