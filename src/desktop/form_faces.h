#pragma once

#include "desktop/form_face.h"
#include "desktop/qt_text.h"

namespace dorvan {

// One for each class of dialog.
void LayOutAbout(FormFace& face);
void LayOutNowy(FormFace& face);
void LayOutCustomized(FormFace& face);
void LayOutOptionsOfMatrix(FormFace& face);
void LayOutPrzedzal(FormFace& face);
void LayOutGenetic(FormFace& face);
void LayOutGeneticUM(FormFace& face);
void LayOutWork(FormFace& face);
void LayOutWorkUM(FormFace& face);

} // namespace dorvan
