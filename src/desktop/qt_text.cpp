#include "desktop/qt_text.h"

#include <algorithm>

namespace dorvan {

QString WithoutMnemonic(QString caption) {
    for (qsizetype place = 0; place < caption.size(); ++place)
        if (caption[place] == '&') caption.remove(place, 1); // of "&&" the second one stays
    return caption;
}

QString SpokenName(const QString& caption) {
    QString name = WithoutMnemonic(caption).trimmed();
    if (name.endsWith(':')) name.chop(1);
    return name;
}

int CharactersBefore(const QString& text, int unit) {
    int characters = 0;
    for (int place = 0; place < std::min(unit, int(text.size())); ++place)
        if (!text[place].isLowSurrogate()) ++characters;
    return characters;
}

int UnitsBefore(const QString& text, int characters) {
    int place = 0;
    while (place < text.size() && characters > 0) {
        place += text[place].isHighSurrogate() ? 2 : 1;
        --characters;
    }
    return std::min(place, int(text.size()));
}

} // namespace dorvan
