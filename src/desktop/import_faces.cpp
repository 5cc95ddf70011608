#include "desktop/form_faces.h"
#include "import/frmImpMatrix.h"
#include "import/frmImportText.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <initializer_list>

namespace dorvan {

namespace {

void AddOptions(FormFace& face, const Frame& frame, std::initializer_list<OptionButton*> options) {
    auto* box = face.AddFrame(frame);
    auto* column = new QVBoxLayout(box);
    for (OptionButton* option : options) {
        auto* button = new QRadioButton(box);
        face.Binder().Option(button, *option);
        column->addWidget(button);
    }
}

void AddChecks(FormFace& face, const Frame& frame, std::initializer_list<CheckBox*> checks) {
    auto* box = face.AddFrame(frame);
    auto* column = new QVBoxLayout(box);
    for (CheckBox* check : checks) {
        auto* shown = new QCheckBox(box);
        face.Binder().Check(shown, *check);
        column->addWidget(shown);
    }
}

void LayOut(FormFace& face, frmImportText& form) {
    AddOptions(face, form.Frame1, {&form.Option1, &form.Option3});
    face.AddFile(form.Frame2, form.Label1, form.Command3, [&form] { form.Command3_Click(); });
    AddChecks(face, form.Frame3, {&form.Check1, &form.Check2});
    face.AddButtons({{&form.Command2, [&form] { form.Command2_Click(); }},
                     {&form.Command1, [&form] { form.Command1_Click(); }}});
}

void LayOut(FormFace& face, frmImpMatrix& form) {
    AddOptions(face, form.Frame1, {&form.optSep1, &form.optSep2});
    AddChecks(face, form.Frame2, {&form.chkFirstCol});
    face.AddFile(form.Frame3, form.Label1, form.Command3, [&form] { form.Command3_Click(); });
    AddOptions(face, form.Frame4, {&form.optDist, &form.optSimilar});
    auto* precision = new QLineEdit(&face);
    face.AddRow(face.AddRows(), form.Label2, precision);
    face.Binder().Field(precision, form.txtPrecision, "Precision",
                        {.change = {},
                         .keyPress = [&form](int& keyAscii) { form.txtPrecision_KeyPress(keyAscii); },
                         .keyDown = {},
                         .lostFocus = {}});
    face.AddButtons({{&form.Command1, [&form] { form.Command1_Click(); }},
                     {&form.Command2, [&form] { form.Command2_Click(); }}});
}

const FaceOfForm<frmImportText> registeredImportText(LayOut);
const FaceOfForm<frmImpMatrix> registeredImpMatrix(LayOut);

} // namespace

} // namespace dorvan
