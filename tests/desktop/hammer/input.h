#pragma once

#include <Qt>

class QString;
class QPoint;
class QWindow;

// Keys and mouse as the window system tells of them, and nothing else: no waiting event is let run on the
// way, so that a dialog which an event opens is the only loop below the next one. A window that goes
// meanwhile ends the call.
namespace dorvan::test {

void ClickKey(QWindow* window, int key, Qt::KeyboardModifiers modifiers, const QString& text);

void PressButton(QWindow* window, Qt::MouseButton button, QPoint place);
void MovePointer(QWindow* window, Qt::MouseButton held, QPoint place);
void ReleaseButton(QWindow* window, Qt::MouseButton button, QPoint place);

// `times`: 2 for a double click.
void ClickButton(QWindow* window, Qt::MouseButton button, QPoint place, int times = 1);

} // namespace dorvan::test
