#include "painting/pdf_pages.h"

#include "painting/fonts.h"
#include "painting/page_player.h"

#include <QBuffer>
#include <QPageLayout>
#include <QPdfWriter>

#include <stdexcept>

namespace dorvan::painting {

namespace {

constexpr int TwipsPerInch = 1440;
constexpr double Margin = 10; // points, as of a new printer

QPageLayout LayoutOf(const PageChoices& page) {
    const auto size = page.Paper == "a3"       ? QPageSize::A3
                      : page.Paper == "letter" ? QPageSize::Letter
                                               : QPageSize::A4;
    return QPageLayout(QPageSize(size), page.Landscape ? QPageLayout::Landscape : QPageLayout::Portrait,
                       QMarginsF(Margin, Margin, Margin, Margin), QPageLayout::Point);
}

} // namespace

PrintableSize PrintableOn(const QPageLayout& layout) {
    const QRect printable = layout.paintRectPixels(TwipsPerInch);
    return {double(printable.width()), double(printable.height())};
}

PrintableSize PrintableOn(const PageChoices& page) { return PrintableOn(LayoutOf(page)); }

std::string PdfOfPages(const Drawing& pages, const QPageLayout& layout, const std::string& title) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer); // writes the rest at its end
        writer.setCreator(QStringLiteral("Dorvan"));
        writer.setTitle(ToQt(title));
        writer.setResolution(TwipsPerInch);
        writer.setPageLayout(layout);
        if (!PlayPages(pages, writer)) throw std::runtime_error("The pages cannot be drawn.");
    }
    return bytes.toStdString();
}

std::string PdfOfPages(const Drawing& pages, const PageChoices& page, const std::string& title) {
    return PdfOfPages(pages, LayoutOf(page), title);
}

} // namespace dorvan::painting
