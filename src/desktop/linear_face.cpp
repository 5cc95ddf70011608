#include "desktop/form_faces.h"
#include "desktop/picture_widget.h"
#include "platform/twips.h"
#include "view/frmLiniowy.h"
#include "view/linear_drawing.h"

#include <QLabel>
#include <QVBoxLayout>

namespace dorvan {

namespace {

void LayOut(FormFace& face, frmLiniowy& form) {
    auto* graph = new PictureWidget(form.Picture1, PictureWidget::Kind::Graph, &face);
    graph->setFixedSize(PixelsOf(LinearGraphWidth), PixelsOf(LinearGraphHeight));
    face.Binder().Plain(graph, form.Picture1, ToQt(form.Label1.Caption));
    face.Binder().Also([graph] { graph->Mirror(); });
    face.Column().addWidget(graph);
    face.AddLabel(form.Label1);
    face.AddButtons({{&form.Command1, [&form] { form.Command1_Click(); }}});
}

const FaceOfForm<frmLiniowy> registered(LayOut);

} // namespace

} // namespace dorvan
