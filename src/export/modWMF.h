#pragma once

#include "numbers/code_page.h"
#include "session/documents.h"

#include <string>
#include <string_view>

// Diagrams as placeable metafiles: always the dots form with a legend, whatever the diagram's type.
namespace dorvan {

// Of the drawing, in logical units of 1000 to the inch.
struct MetafileBox {
    int Left = 0;
    int Top = 0;
    int Right = 0;
    int Bottom = 0;
    bool operator==(const MetafileBox&) const = default;
};

MetafileBox BoxOfDiagram(int records);

// The metafile without its placeable header. Fails with SubscriptOutOfRange for a cell of a class outside 0
// to 5.
std::string DrawDiagram(const DiagramDocument& diagram, char decimalSeparator, const CodePage& codes);

// The 22 bytes that make a metafile placeable. The low 16 bits of the box are written.
std::string PlaceableHeader(const MetafileBox& box);

// Writes the bytes over the start of the file: a longer one keeps its tail. Fails with FileError.
void WriteOverStart(const std::string& path, std::string_view bytes);

} // namespace dorvan
