#pragma once

#include "desktop/child_faces.h"
#include "session/grid_window.h"

namespace dorvan {

// The content of a matrix or diagram window: a line with the description above a grid.
GridWidget& LayOutDescribedGrid(ChildFace& face, GridWindow& window, const QString& gridName,
                                FieldEvents events);

} // namespace dorvan
