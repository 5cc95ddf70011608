#include "painting/fonts.h"

#include <cmath>

namespace dorvan::painting {

namespace {

QFont Named(const drawing::Font& font) {
    QFont made(font.Name.empty() ? QStringLiteral("Liberation Sans") : ToQt(font.Name));
    if (font.Name.empty()) made.setStyleHint(QFont::SansSerif);
    made.setBold(font.Bold);
    made.setHintingPreference(QFont::PreferNoHinting);
    made.setStyleStrategy(QFont::StyleStrategy(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
    return made;
}

} // namespace

QFont FontInTwips(const drawing::Font& font) {
    QFont made = Named(font);
    made.setPixelSize(int(std::lround(font.Size * drawing::TwipsPerPoint)));
    return made;
}

QFont FontInPixels(const drawing::Font& font, double scale) {
    QFont made = Named(font);
    made.setPointSizeF(font.Size * scale);
    return made;
}

QString ToQt(const std::string& text) { return QString::fromUtf8(text.data(), qsizetype(text.size())); }

} // namespace dorvan::painting
