#pragma once

#include "desktop/child_faces.h"

namespace dorvan {

// The content of a matrix or diagram window: a line with the description above a grid.
GridWidget& LayOutDescribedGrid(ChildFace& face, Grid& grid, const QString& gridName, TextBox& description,
                                FieldEvents events);

} // namespace dorvan
