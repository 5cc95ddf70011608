#include "desktop/form_faces.h"
#include "making/frmBestOrder.h"
#include "making/frmWork.h"
#include "making/frmWorkUM.h"
#include "platform/twips.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

namespace dorvan {

namespace {

constexpr int FigureWidth = 110; // pixels; figures that grow do not resize the window

QLabel* AddFigure(FormFace& face, const Label& label) {
    auto* shown = new QLabel(&face);
    shown->setMinimumWidth(FigureWidth);
    face.Binder().Text(shown, label);
    return shown;
}

QProgressBar* AddBar(FormFace& face, const Bar& track, const Bar& filled) {
    auto* bar = new QProgressBar(&face);
    bar->setTextVisible(false);
    bar->setFixedWidth(PixelsOf(int(track.Width)));
    face.Binder().Progress(bar, track, filled, "Progress");
    return bar;
}

void LayOut(FormFace& face, frmWork& form) {
    auto* percent = AddFigure(face, form.InfoString);
    percent->setAlignment(Qt::AlignHCenter);
    face.Column().addWidget(percent);
    face.Column().addWidget(AddBar(face, form.Procent, form.Procent1));
    auto* rows = face.AddRows();
    face.AddRow(rows, form.Label1, AddFigure(face, form.InfoTime));
    face.AddRow(rows, form.Label2, AddFigure(face, form.lblFunkcja));
    face.AddButtons({{&form.Command1, [&form] { form.Command1_Click(); }}});
}

void LayOut(FormFace& face, frmWorkUM& form) {
    auto* rows = face.AddRows();
    const auto addPair = [&](const Label& caption, const Label& first, const Label& second) {
        auto* line = new QWidget(&face);
        auto* figures = new QHBoxLayout(line);
        figures->setContentsMargins(0, 0, 0, 0);
        figures->addWidget(AddFigure(face, first));
        figures->addWidget(AddFigure(face, second));
        face.AddRow(rows, caption, line);
    };
    addPair(form.Label1, form.Generacje, form.lblChangesG);
    addPair(form.Label2, form.Mutacje, form.lblChangeM);
    face.AddRow(rows, form.Label3, AddFigure(face, form.lblFunkcja));
    face.AddRow(rows, form.Label4, AddFigure(face, form.lblActualUM));
    face.AddRow(rows, form.Label5, AddFigure(face, form.BestUm));
    face.AddRow(rows, form.Label6, AddFigure(face, form.InfoTime));
    face.AddButtons({{&form.Command1, [&form] { form.Command1_Click(); }}});
}

void LayOut(FormFace& face, frmBestOrder& form) {
    face.Column().addWidget(AddBar(face, form.Procent, form.Procent1));
    auto* rows = face.AddRows();
    face.AddRow(rows, form.Label1, AddFigure(face, form.lblCriterion));
    face.AddButtons({{&form.Command1, [&form] { form.Command1_Click(); }}});
}

const FaceOfForm<frmBestOrder> registeredBestOrder(LayOut);
const FaceOfForm<frmWork> registeredWork(LayOut);
const FaceOfForm<frmWorkUM> registeredWorkUM(LayOut);

} // namespace

} // namespace dorvan
