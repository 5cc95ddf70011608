#include "desktop/form_faces.h"
#include "desktop/qt_text.h"
#include "making/frmPrzedzal.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>

namespace dorvan {

namespace {

using Handler = Bindings::Handler;

constexpr int LimitWidth = 64; // pixels

QGroupBox* AddFrame(FormFace& face, const Frame& frame) {
    auto* box = new QGroupBox(ToQt(frame.Caption), &face);
    face.Binder().Plain(box, frame, box->title());
    face.Column().addWidget(box);
    return box;
}

void LayOutDistance(FormFace& face, frmPrzedzal& form) {
    auto* frame = AddFrame(face, form.Frame1);
    auto* rows = new QFormLayout(frame);
    auto* kinds = new QComboBox(frame);
    face.AddRow(rows, form.lblData, kinds);
    face.Binder().Combo(kinds, form.cboData, "Data", [&form] { form.cboData_Click(); });
    auto* measures = new QComboBox(frame);
    measures->setMinimumContentsLength(28);
    face.AddRow(rows, form.lblDistance, measures);
    face.Binder().Combo(measures, form.Combo1, "Distance");
}

void LayOutOptions(FormFace& face, const Frame& frame,
                   const std::vector<std::pair<OptionButton*, Handler>>& options, int columns) {
    auto* box = AddFrame(face, frame);
    auto* cells = new QGridLayout(box);
    for (int place = 0; place < int(options.size()); ++place) {
        auto* button = new QRadioButton(box);
        face.Binder().Option(button, *options[std::size_t(place)].first, options[std::size_t(place)].second);
        cells->addWidget(button, place / columns, place % columns);
    }
}

// The scale: the limits stand on the borders between the five sections.
void LayOutLimits(FormFace& face, frmPrzedzal& form) {
    auto* frame = AddFrame(face, form.Frame4);
    auto& binder = face.Binder();
    auto* column = new QVBoxLayout(frame);
    auto* automatic = new QCheckBox(frame);
    binder.Check(automatic, form.chkAuto, [&form] { form.chkAuto_Click(); });
    column->addWidget(automatic);

    auto* scale = new QGridLayout;
    scale->setHorizontalSpacing(2);
    column->addLayout(scale);
    const auto addLabel = [&](const Label& label, int row, int place) {
        auto* shown = new QLabel(frame);
        shown->setAlignment(Qt::AlignCenter);
        binder.Text(shown, label);
        scale->addWidget(shown, row, place);
    };
    const Label* sections[] = {&form.Label3, &form.Label4, &form.Label5, &form.Label6, &form.Label7};
    for (int section = 0; section < 5; ++section) addLabel(*sections[section], 0, 2 * section + 1);
    auto* line = new QFrame(frame);
    line->setFrameShape(QFrame::HLine);
    scale->addWidget(line, 1, 0, 1, 11);
    addLabel(form.Label1, 2, 0);
    addLabel(form.Label2, 2, 10);

    const std::pair<TextBox*, void (frmPrzedzal::*)(int&)> limits[] = {
        {&form.Text1, &frmPrzedzal::Text1_KeyPress},
        {&form.Text2, &frmPrzedzal::Text2_KeyPress},
        {&form.Text3, &frmPrzedzal::Text3_KeyPress},
        {&form.Text4, &frmPrzedzal::Text4_KeyPress}};
    for (int limit = 0; limit < 4; ++limit) {
        auto* field = new QLineEdit(frame);
        field->setFixedWidth(LimitWidth);
        const auto keyPress = limits[limit].second;
        binder.Field(field, *limits[limit].first, QString("Section limit %1").arg(limit + 1),
                     {.change = {},
                      .keyPress = [&form, keyPress](int& keyAscii) { (form.*keyPress)(keyAscii); },
                      .keyDown = {},
                      .lostFocus = {}});
        scale->addWidget(field, 2, 2 * limit + 2);
    }
    for (int section = 0; section < 5; ++section) scale->setColumnMinimumWidth(2 * section + 1, 18);
}

void LayOut(FormFace& face, frmPrzedzal& form) {
    LayOutDistance(face, form);
    LayOutOptions(face, form.Frame2,
                  {{&form.Option1, [&form] { form.Option1_Click(); }},
                   {&form.Option2, [&form] { form.Option2_Click(); }},
                   {&form.Option3, [&form] { form.Option3_Click(); }}},
                  3);
    LayOutOptions(face, form.Frame3,
                  {{&form.Option6, [&form] { form.Option6_Click(); }},
                   {&form.Option7, [&form] { form.Option7_Click(); }},
                   {&form.Option8, [&form] { form.Option8_Click(); }},
                   {&form.Option9, [&form] { form.Option9_Click(); }}},
                  2);
    LayOutLimits(face, form);
    face.AddButtons({{&form.Command3, [&form] { form.Command3_Click(); }},
                     {&form.Command2, [&form] { form.Command2_Click(); }}});
}

const FaceOfForm<frmPrzedzal> registered(LayOut);

} // namespace

} // namespace dorvan
