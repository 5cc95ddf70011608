#include "desktop/form_faces.h"
#include "desktop/icons.h"
#include "session/frmAbout.h"

#include <QLabel>
#include <QVBoxLayout>

namespace dorvan {

namespace {

constexpr int PictureSide = 72; // pixels

void LayOut(FormFace& face, frmAbout& form) {
    auto* picture = new QLabel(&face);
    picture->setPixmap(ProgramIcon().pixmap(PictureSide, PictureSide));
    picture->setAlignment(Qt::AlignHCenter);
    face.Column().addWidget(picture);
    for (const Label* label : {&form.lblTitle, &form.lblVersion, &form.lblLicence, &form.lblDisclaimer,
                               &form.lblFreeImage, &form.lblSpreadsheet}) {
        QLabel* shown = face.AddLabel(*label);
        if (label != &form.lblDisclaimer) shown->setAlignment(Qt::AlignHCenter);
        if (label == &form.lblTitle) {
            QFont font = shown->font();
            font.setBold(true);
            shown->setFont(font);
        }
    }
    face.AddButtons({{&form.cmdOK, [&form] { form.cmdOK_Click(); }}});
}

const FaceOfForm<frmAbout> registered(LayOut);

} // namespace

} // namespace dorvan
