#pragma once

#include "desktop/grid_widget.h"

namespace dorvan {

// The tiles of a diagram as a grid's pictures; they read as "class 5", "class 3 selected".
GridPictures TilePictures();

} // namespace dorvan
