#include "export/modWMF.h"
#include "files/disk.h"
#include "files/file_dialogs.h"
#include "view/frmDiagram.h"

namespace dorvan {

namespace {

constexpr int MostLegibleRecords = 225; // the message names another number

} // namespace

// Not refused while a diagram is being made. What the disk refuses is not told.
void frmDiagram::Metafile() {
    const DiagramDocument& document = Document();
    if (document.RecCount > MostLegibleRecords)
        session_.platform.messages.show({.Text =
                                             "Diagram is too big for creating metafile (bigger than 240). "
                                             "It's going to be illegible!"});
    const std::string target = PickFileToSave(session_, FileFilters{FileFilter{"WMF (*.wmf)", "*.wmf"}},
                                              " - Save metafile (WMF)", "*.wmf");
    if (target.empty()) return;
    session_.Of<FileValues>().SilentFailure.clear();
    try {
        WriteOverStart(target, PlaceableHeader(BoxOfDiagram(document.RecCount)) +
                                   DrawDiagram(document, session_.DecimalSeparator, session_.codePage));
    } catch (const FileError& error) {
        session_.Of<FileValues>().SilentFailure = error.what();
    }
}

} // namespace dorvan
