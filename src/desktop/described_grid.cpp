#include "desktop/described_grid.h"

#include "platform/twips.h"
#include "session/document_grid.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace dorvan {

namespace {

constexpr int PanelHeight = 390; // twips, more where the font needs it
constexpr int RightMargin = 100; // twips
constexpr int LeftMargin = 4;    // pixels
constexpr int LeastMargin = 1;

} // namespace

GridWidget& LayOutDescribedGrid(ChildFace& face, GridWindow& window, const QString& gridName,
                                FieldEvents events) {
    auto* column = new QVBoxLayout(face.widget());
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    auto* panel = new QWidget(face.widget());
    panel->setObjectName("BottomPanel"); // at the top, in spite of its name
    auto* row = new QHBoxLayout(panel);
    row->setContentsMargins(LeftMargin, LeastMargin, PixelsOf(RightMargin), LeastMargin);
    panel->setMinimumHeight(PixelsOf(PanelHeight));
    auto* label = new QLabel(panel);
    face.Binder().Text(label, window.Label1);
    auto* field = new QLineEdit(panel);
    label->setBuddy(field);
    face.Binder().Field(field, window.BottomText, "Description", std::move(events));
    row->addWidget(label);
    row->addWidget(field, 1);
    column->addWidget(panel);
    auto& shown = face.ShowGrid(window.Siatka, gridName);
    shown.SetLabelColumns(DocumentGrid::FirstValueColumn); // numbers and names
    column->addWidget(&shown, 1);
    if (!window.ActiveControl) window.SetFocus(window.Siatka);
    return shown;
}

} // namespace dorvan
