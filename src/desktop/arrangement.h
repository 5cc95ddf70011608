#pragma once

#include <QRect>
#include <QSize>

#include <vector>

// Where the child windows go when the user has them arranged. In pixels of the workspace.
namespace dorvan {

// Each three quarters of the room, one `step` further right and down than the one below it, so that its title
// stays in sight; from the corner again where one would leave the room.
std::vector<QRect> CascadePlaces(QSize room, int windows, int step);

// The whole room in rows of windows that read in order, a later row holding one window more where they do not
// come out even.
std::vector<QRect> TilePlaces(QSize room, int windows);

} // namespace dorvan
