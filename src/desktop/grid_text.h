#pragma once

#include <QFont>
#include <QString>

class QPainter;
class QRect;

// The texts of a grid's cells and heads.
namespace dorvan {

// A text as a cell shows it: in a narrower font where it does not fit, and cut where it does not even then.
struct FittedText {
    QString Shown;
    QFont Font;
    bool Cut = false;
};

// `room` is in pixels of the font. In a cell too narrow for three dots nothing is cut.
FittedText FitText(const QString& text, const QFont& font, int room);

// Of heads that are smaller than their labels, every k-th has one: 1, 2, 5, 10, 20, 50, ... Lengths in
// pixels.
int LabelStep(int head, int label);

} // namespace dorvan
