#include "desktop/form_faces.h"
#include "sheet/add_dialogs.h"
#include "sheet/frmDeleteVar.h"
#include "sheet/frmStandard.h"
#include "sheet/frmVar.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

// The dialogs that change the shape of a sheet, and that of standardization.
namespace dorvan {

namespace {

constexpr int ListHeight = 220; // pixels

void LayOutAdding(FormFace& face, AddDialog& form) {
    face.AddField(face.AddRows(), form.Label1, form.Text1,
                  {.change = {},
                   .keyPress = [&form](int& keyAscii) { form.Text1_KeyPress(keyAscii); },
                   .keyDown = {},
                   .lostFocus = {}});
    face.AddButtons({{&form.Command2, [&form] { form.Command2_Click(); }},
                     {&form.Command1, [&form] { form.Command1_Click(); }}});
}

void LayOutRecords(FormFace& face, frmAddRec& form) { LayOutAdding(face, form); }
void LayOutVariables(FormFace& face, frmAddVar& form) { LayOutAdding(face, form); }

QListWidget* AddNames(FormFace& face, ListBox& control, Bindings::Handler click = {}) {
    auto* list = new QListWidget(&face);
    list->setFixedHeight(ListHeight);
    face.Column().addWidget(list);
    face.Binder().List(list, control, "Variables", std::move(click));
    return list;
}

void LayOutEditor(FormFace& face, frmVar& form) {
    AddNames(face, form.List1, [&form] { form.List1_Click(); });
    auto* row = new QHBoxLayout;
    auto* name = new QLineEdit(&face);
    row->addWidget(name);
    face.Binder().Field(name, form.Text1, "Name of the variable",
                        {.change = {},
                         .keyPress = [&form](int& keyAscii) { form.Text1_KeyPress(keyAscii); },
                         .keyDown = {},
                         .lostFocus = {}});
    auto* accept = new QPushButton(&face);
    accept->setAutoDefault(false);
    row->addWidget(accept);
    face.Binder().Button(accept, form.Command3, [&form] { form.Command3_Click(); });
    face.Column().addLayout(row);
    face.AddButtons({{&form.Command1, [&form] { form.Command1_Click(); }},
                     {&form.Command2, [&form] { form.Command2_Click(); }}});
}

void LayOutDeleting(FormFace& face, frmDeleteVar& form) {
    AddNames(face, form.List1);
    face.AddButtons({{&form.Command1, [&form] { form.Command1_Click(); }},
                     {&form.Command2, [&form] { form.Command2_Click(); }}});
}

void LayOutStandard(FormFace& face, frmStandard& form) {
    for (OptionButton* option : {&form.Option1, &form.Option2}) {
        auto* button = new QRadioButton(&face);
        face.Binder().Option(button, *option);
        face.Column().addWidget(button);
    }
    face.AddButtons({{&form.Command2, [&form] { form.Command2_Click(); }},
                     {&form.Command1, [&form] { form.Command1_Click(); }}});
}

const FaceOfForm<frmAddRec> registeredRecords(LayOutRecords);
const FaceOfForm<frmAddVar> registeredVariables(LayOutVariables);
const FaceOfForm<frmVar> registeredEditor(LayOutEditor);
const FaceOfForm<frmDeleteVar> registeredDeleting(LayOutDeleting);
const FaceOfForm<frmStandard> registeredStandard(LayOutStandard);

} // namespace

} // namespace dorvan
