#pragma once

#include "platform/drawing.h"

#include <string>

class QPageLayout;

// Printing to a PDF file, which needs no print system. It needs the toolkit started.
namespace dorvan::painting {

inline constexpr const char* PdfDeviceName = "Print to File (PDF)";

struct PageChoices {
    std::string Paper = "a4"; // or "a3", "letter"
    bool Landscape = false;
};

struct PrintableSize { // twips
    double Width = 0;
    double Height = 0;
};

PrintableSize PrintableOn(const PageChoices& page);
PrintableSize PrintableOn(const QPageLayout& layout);

// The bytes of a file with a page for each sheet. Throws std::runtime_error when they cannot be drawn.
std::string PdfOfPages(const Drawing& pages, const PageChoices& page, const std::string& title);
std::string PdfOfPages(const Drawing& pages, const QPageLayout& layout, const std::string& title);

} // namespace dorvan::painting
