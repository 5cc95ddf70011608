#include "desktop/form_faces.h"
#include "making/frmGeneticUM.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QLineEdit>

namespace dorvan {

namespace {

constexpr int FieldWidth = 90; // pixels

void LayOut(FormFace& face, frmGeneticUM& form) {
    auto* frame = new QGroupBox(ToQt(form.Frame1.Caption), &face);
    face.Binder().Plain(frame, form.Frame1, frame->title());
    auto* rows = new QFormLayout(frame);
    for (const auto& row : form.Rows()) {
        auto* field = new QLineEdit(frame);
        field->setFixedWidth(FieldWidth);
        face.AddRow(rows, *row.Caption, field);
        face.Binder().Field(
            field, *row.Field, ToQt(row.Caption->Caption),
            {.change = {},
             .keyPress = [&form, text = row.Field](int& keyAscii) { form.Text_KeyPress(*text, keyAscii); },
             .keyDown = {},
             .lostFocus = {}});
    }
    face.Column().addWidget(frame);
    face.AddLabel(form.Label12);
    face.AddButtons({{&form.Command1, [&form] { form.Command1_Click(); }},
                     {&form.Command2, [&form] { form.Command2_Click(); }}});
}

const FaceOfForm<frmGeneticUM> registered(LayOut);

} // namespace

} // namespace dorvan
