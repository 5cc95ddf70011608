#include "desktop/form_faces.h"
#include "import/frmImpDBF.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace dorvan {

namespace {

constexpr int ListWidth = 170; // pixels
constexpr int ListHeight = 190;

QLabel* NewLabel(FormFace& face, QWidget* parent, const Label& control) {
    auto* label = new QLabel(parent);
    face.Binder().Text(label, control);
    return label;
}

void LayOutFacts(FormFace& face, frmImpDBF& form) {
    auto* row = new QHBoxLayout;
    for (const auto& [frame, label] :
         {std::pair<const Frame*, const Label*>{&form.Frame2, &form.lblDate}, {&form.Frame3, &form.lblRec}}) {
        auto* box = new QGroupBox(ToQt(frame->Caption), &face);
        face.Binder().Plain(box, *frame, box->title());
        (new QVBoxLayout(box))->addWidget(NewLabel(face, box, *label));
        row->addWidget(box);
    }
    face.Column().addLayout(row);
}

QListWidget* AddList(FormFace& face, QGridLayout& cells, int column, const Label& heading,
                     MultiListBox& control, const MultiListEvents& events) {
    auto* box = cells.parentWidget();
    auto* list = new QListWidget(box);
    list->setFixedSize(ListWidth, ListHeight);
    auto* label = NewLabel(face, box, heading);
    label->setBuddy(list);
    cells.addWidget(label, 0, column);
    cells.addWidget(list, 1, column);
    face.Binder().MultiList(list, control, ToQt(heading.Caption), events);
    return list;
}

QPushButton* AddMove(FormFace& face, QWidget* parent, QVBoxLayout& column, const CommandButton& control,
                     const QString& spoken, Bindings::Handler click) {
    auto* button = new QPushButton(parent);
    button->setAutoDefault(false);
    face.Binder().Button(button, control, std::move(click));
    button->setAccessibleName(spoken);
    button->setToolTip(spoken);
    column.addWidget(button);
    return button;
}

// The keys go from list to list over the buttons that move between them.
void LayOutFields(FormFace& face, frmImpDBF& form) {
    auto* box = face.AddFrame(form.Frame4);
    auto* cells = new QGridLayout(box);
    auto* available = AddList(face, *cells, 0, form.Label2, form.AList,
                              {.doubleClick = [&form] { form.AList_DblClick(); },
                               .keyDown = [&form](int& keyCode) { form.AList_KeyDown(keyCode); }});
    auto* moves = new QVBoxLayout;
    moves->addStretch();
    auto* right = AddMove(face, box, *moves, form.cmdCopyToRight, "Select the marked fields",
                          [&form] { form.cmdCopyToRight_Click(); });
    auto* left = AddMove(face, box, *moves, form.cmdCopyToLeft, "Take the marked fields back",
                         [&form] { form.cmdCopyToLeft_Click(); });
    moves->addStretch();
    cells->addLayout(moves, 1, 1);
    auto* selected = AddList(face, *cells, 2, form.Label3, form.SList,
                             {.doubleClick = [&form] { form.SList_DblClick(); },
                              .keyDown = [&form](int& keyCode) { form.SList_KeyDown(keyCode); }});
    QWidget::setTabOrder(available, right);
    QWidget::setTabOrder(right, left);
    QWidget::setTabOrder(left, selected);
}

void LayOut(FormFace& face, frmImpDBF& form) {
    face.AddFile(form.Frame1, form.Label1, form.cmdBrowse, [&form] { form.cmdBrowse_Click(); });
    LayOutFacts(face, form);
    LayOutFields(face, form);
    auto* names = new QComboBox(&face);
    face.AddRow(face.AddRows(), form.Label4, names);
    face.Binder().Combo(names, form.cmbString, ToQt(form.Label4.Caption));
    face.AddButtons({{&form.cmdOK, [&form] { form.cmdOK_Click(); }},
                     {&form.cmdCancel, [&form] { form.cmdCancel_Click(); }}});
}

const FaceOfForm<frmImpDBF> registeredImpDBF(LayOut);

} // namespace

} // namespace dorvan
