#pragma once

#include <string>

namespace dorvan {

// What a print goes onto. Lengths in twips.
struct Paper {
    double Width = 0; // the printable part
    double Height = 0;
    std::string FontName; // of the texts
};

} // namespace dorvan
