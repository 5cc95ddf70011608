#pragma once

#include "desktop/desktop.h"
#include "sheet/frmNotePad.h"
#include "view/frmDiagram.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <string>

class QAction;
class QMessageBox;

namespace dorvan::test {

// The whole program on the offscreen platform, with settings and files of its own. A dialog that no script
// answers fails the test; a run-time failure is recorded in `ended`.
class DesktopTest : public ::testing::Test {
protected:
    DesktopTest();
    ~DesktopTest() override;

    using Script = std::function<void(QDialog&)>;

    // What the user does in the dialogs to come, in their order.
    void InDialog(Script script) { scripts_.push_back(std::move(script)); }
    // Clicks the button with that text, such as "Yes", in the next message box.
    void AnswerNext(const QString& button, const QString& expectedText = {});
    // Chooses a path in the next file dialog.
    void ChooseFile(const QString& path);

    QAction& Item(const QString& name);            // of a menu
    QAction& Button(const QString& toolbarAndKey); // "toolMain.Save"
    void Click(const QString& name);               // a menu item or a button

    template <class Widget = QWidget> Widget& Find(QWidget& root, const QString& name) {
        auto* widget = root.findChild<Widget*>(name);
        if (!widget) throw std::runtime_error("no widget " + name.toStdString());
        return *widget;
    }

    // The active child window and what it shows.
    ChildFace& Face();
    GridWidget& ActiveGrid();
    frmNotePad& Sheet() { return dynamic_cast<frmNotePad&>(*desktop.session.ActiveWindow); }
    frmDiagram& Diagram() { return dynamic_cast<frmDiagram&>(*desktop.session.ActiveWindow); }

    // Opens a new sheet through its dialog.
    void NewSheet(int records, int variables);
    void Type(const QString& text);
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    // In the viewport, scrolled to if need be.
    QPoint PlaceOf(GridWidget& grid, int row, int column);
    void ClickCell(GridWidget& grid, int row, int column);
    void DoubleClickCell(GridWidget& grid, int row, int column);
    // By way of the window system, which gives the focus before the widget hears of the press.
    void ClickOn(QWidget& widget, QPoint place, Qt::MouseButton button = Qt::LeftButton);
    void ClickOn(QWidget& widget) { ClickOn(widget, widget.rect().center()); }
    void PressInWindow(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    QString Sample(const QString& name) const;
    QString Path(const QString& name) const { return folder_.filePath(name); }
    std::string BytesOf(const QString& path) const;

    QTemporaryDir folder_;
    std::string ended; // what ended the run
    Desktop desktop;

private:
    void LookAgain();
    void RunScripts();

    std::deque<Script> scripts_;
    QDialog* answered_ = nullptr;
    QObject dialogs_; // ends the looking for them
    int unanswered_ = 0;
};

} // namespace dorvan::test
