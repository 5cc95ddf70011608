#include "session/popup_menus.h"

#include "session/documents.h"

namespace dorvan {

namespace {

constexpr std::string_view DiagramItems[] = {"mnuEditSelect",
                                             "mnuEditHome",
                                             "mnuEditUp",
                                             "mnuEditDown",
                                             "mnuEditEnd",
                                             "mnuEditInsert",
                                             "-",
                                             "mnuExtrasUndo",
                                             "mnuExtrasRedo",
                                             "-",
                                             "mnuExtrasBestOrder",
                                             "mnuEditHistogram",
                                             "mnuEditLinear",
                                             "mnuEditDiagramType",
                                             "-",
                                             "mnuEditCreateMatrix",
                                             "mnuEditCreateDataset",
                                             "mnuExportBitmap",
                                             "-",
                                             "mnuExtrasCopy",
                                             "mnuExtrasSavePicture",
                                             "mnuExtrasCopyPicture"};

// The menu's item makes diagrams of sheets alone; the button those of matrices too.
constexpr std::string_view MatrixItems[] = {
    "toolMain.MakeDiagram", "-", "mnuExtrasCopy", "mnuExportText", "mnuExportExcel",
    "mnuFilePrint",         "-", "mnuSave",       "mnuSaveAs"};

constexpr std::string_view BitmapItems[] = {"mnuEditCopyClip", "-", "mnuSave", "mnuSaveAs"};

} // namespace

std::span<const std::string_view> PopUpItems(std::string_view kind) {
    if (kind == DocumentKind::Diagram) return DiagramItems;
    if (kind == DocumentKind::Matrix) return MatrixItems;
    if (kind == DocumentKind::Bitmap) return BitmapItems;
    return {};
}

} // namespace dorvan
