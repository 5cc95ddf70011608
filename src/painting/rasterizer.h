#pragma once

#include "platform/drawing_ports.h"

namespace dorvan::painting {

// Draws as on a screen (see raster_player.h). Needs the toolkit started.
class QtRasterizer : public Rasterizer {
public:
    PixelImage pixelsOf(const Drawing& drawing) override;
};

} // namespace dorvan::painting
