#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace dorvan {

inline QString ToQt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string FromQt(const QString& text) { return text.toStdString(); }

// A caption without its access key marks.
QString WithoutMnemonic(QString caption);

// A name for a screen reader: no access key mark, no colon at the end.
QString SpokenName(const QString& caption);

// Controls count characters, QString counts UTF-16 units.
int CharactersBefore(const QString& text, int unit);
int UnitsBefore(const QString& text, int characters);

} // namespace dorvan
