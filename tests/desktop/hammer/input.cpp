#include "hammer/input.h"

#include <QGuiApplication>
#include <QPointer>
#include <QStyleHints>
#include <QTest>
#include <QWindow>

#include <array>
#include <utility>

namespace dorvan::test {

namespace {

// Milliseconds of a clock of its own, by which a double click is told from two clicks.
int now = 0;

void Mouse(QWindow* window, Qt::MouseButtons held, Qt::MouseButton button, QEvent::Type type, QPoint place) {
    ++now;
    qt_handleMouseEvent(window, place, window->mapToGlobal(place), held, button, type, {}, now);
}

} // namespace

void ClickKey(QWindow* window, int key, Qt::KeyboardModifiers modifiers, const QString& text) {
    static constexpr std::array<std::pair<Qt::KeyboardModifier, int>, 3> keys = {
        {{Qt::ShiftModifier, Qt::Key_Shift},
         {Qt::ControlModifier, Qt::Key_Control},
         {Qt::AltModifier, Qt::Key_Alt}}};
    const QPointer<QWindow> alive(window);
    Qt::KeyboardModifiers held;
    for (const auto& [modifier, its] : keys)
        if (alive && modifiers & modifier) {
            qt_handleKeyEvent(alive, QEvent::KeyPress, its, held);
            held |= modifier;
        }
    if (alive) qt_handleKeyEvent(alive, QEvent::KeyPress, key, held, text);
    if (alive) qt_handleKeyEvent(alive, QEvent::KeyRelease, key, held, text);
    for (auto last = keys.rbegin(); last != keys.rend(); ++last)
        if (alive && modifiers & last->first) {
            qt_handleKeyEvent(alive, QEvent::KeyRelease, last->second, held);
            held &= ~Qt::KeyboardModifiers(last->first);
        }
}

void PressButton(QWindow* window, Qt::MouseButton button, QPoint place) {
    Mouse(window, button, button, QEvent::MouseButtonPress, place);
}

void MovePointer(QWindow* window, Qt::MouseButton held, QPoint place) {
    Mouse(window, held, Qt::NoButton, QEvent::MouseMove, place);
}

void ReleaseButton(QWindow* window, Qt::MouseButton button, QPoint place) {
    Mouse(window, Qt::NoButton, button, QEvent::MouseButtonRelease, place);
}

void ClickButton(QWindow* window, Qt::MouseButton button, QPoint place, int times) {
    const QPointer<QWindow> alive(window);
    now += 2 * QGuiApplication::styleHints()->mouseDoubleClickInterval(); // no second click of the last one
    for (int click = 0; click < times; ++click) {
        if (alive) PressButton(alive, button, place);
        if (alive) ReleaseButton(alive, button, place);
    }
}

} // namespace dorvan::test
