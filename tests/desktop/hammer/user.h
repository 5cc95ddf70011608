#pragma once

#include "desktop/desktop.h"
#include "hammer/action.h"

#include <QPoint>
#include <QStringList>

#include <random>
#include <string>
#include <vector>

class QDialog;
class QMdiSubWindow;
class QWidget;

namespace dorvan::test {

// A user with a will of chance at the program's screen: thinks up the next action from what stands there, and
// carries actions out by way of the events that the window system would send.
class User {
public:
    // `files`: the folder of the documents to open, where saves go as well.
    User(Desktop& desktop, std::string files, unsigned seed);

    Action Next();
    void Do(const Action& action);

    // Milliseconds until the next one.
    static int Pause(const Action& action);

    // What must hold whenever the program waits for its user; empty when it does.
    std::string Complaint() const;

private:
    Action InMainWindow();
    Action WithWindows();
    Action WithCommands();
    Action WithKeys();
    Action WithMouse();
    Action InDialog(QDialog& dialog);

    int Draw(int count) { return int(random_() % unsigned(count)); }
    template <std::size_t Count> auto OneOf(const char* const (&names)[Count]) {
        return names[Draw(int(Count))];
    }
    Action Key(int key, int modifiers = 0) { return {"key", {key, modifiers}, {}}; }
    Action AtTitle(const char* verb);
    QPoint InActiveGrid();
    QMdiSubWindow* Window(int number) const;
    QWidget* Attention() const;
    bool IsInReach(const std::string& item) const;
    void PressKey(int key, int modifiers);
    void Mouse(const Action& action);
    void Answer(const std::string& button);
    void ChooseFile(const std::string& name);

    Desktop& desktop_;
    QString files_;
    std::vector<std::string> items_; // names of actions
    std::mt19937 random_;
};

} // namespace dorvan::test
