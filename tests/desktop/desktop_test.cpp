#include "desktop_test.h"

#include "desktop/qt_text.h"
#include "support/golden.h"

#include <QAction>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QSettings>
#include <QWindow>

namespace dorvan::test {

namespace {

constexpr int LookForDialogs = 10;     // milliseconds
constexpr int LongestActivation = 30;  // s
constexpr int LongestUnanswered = 300; // looks, until a dialog counts as unexpected

std::string MakeSettingsFolder(const QTemporaryDir& folder) {
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());
    return sourcePath("samples");
}

// A window manager gives the focus of its own accord and in its own time; offscreen there is none.
bool HasAManager() { return QGuiApplication::platformName() == "xcb"; }

bool IsActive(const QWidget& window) { return window.windowHandle() && window.windowHandle()->isActive(); }

void Activate(QWidget& window) {
    if (!HasAManager()) return QApplication::setActiveWindow(&window);
    for (int wait = 0; wait < LongestActivation; ++wait) {
        if (QTest::qWaitForWindowActive(&window, 1000)) return;
        window.activateWindow(); // it forgets one now and then
    }
    ADD_FAILURE() << "no focus for " << window.objectName().toStdString();
}

} // namespace

DesktopTest::DesktopTest() : desktop(MakeSettingsFolder(folder_)) {
    desktop.dispatch.onEnd = [this](const std::string& what) { ended = what; };
    desktop.mainWindow->resize(1366, 768);
    desktop.mainWindow->show();
    Activate(*desktop.mainWindow);
    QCoreApplication::processEvents();
    LookAgain();
}

DesktopTest::~DesktopTest() {
    EXPECT_TRUE(scripts_.empty()) << scripts_.size() << " dialogs did not come";
    EXPECT_EQ(ended, "");
}

// A script may open a further dialog, so the next look is due before it returns.
void DesktopTest::LookAgain() {
    QTimer::singleShot(LookForDialogs, &dialogs_, [this] { RunScripts(); });
}

void DesktopTest::RunScripts() {
    LookAgain();
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (!dialog || !dialog->isVisible()) {
        answered_ = nullptr;
        return;
    }
    if (dialog == answered_) {
        if (++unanswered_ < LongestUnanswered) return;
        ADD_FAILURE() << "the dialog " << dialog->objectName().toStdString() << " stays open";
        dialog->reject();
        unanswered_ = 0;
        return;
    }
    if (HasAManager() && !IsActive(*dialog)) return;
    if (scripts_.empty()) {
        auto* box = qobject_cast<QMessageBox*>(dialog);
        ADD_FAILURE() << "an unexpected dialog " << dialog->windowTitle().toStdString() << ": "
                      << (box ? box->text().toStdString() : "");
        answered_ = dialog;
        dialog->reject();
        return;
    }
    answered_ = dialog;
    unanswered_ = 0;
    const Script script = scripts_.front();
    scripts_.pop_front();
    Activate(*dialog);
    script(*dialog);
    if (QApplication::activeModalWidget() != dialog) answered_ = nullptr;
}

void DesktopTest::AnswerNext(const QString& button, const QString& expectedText) {
    InDialog([button, expectedText](QDialog& dialog) {
        auto* box = qobject_cast<QMessageBox*>(&dialog);
        ASSERT_NE(box, nullptr) << dialog.objectName().toStdString();
        if (!expectedText.isEmpty()) {
            EXPECT_EQ(box->text().toStdString(), expectedText.toStdString());
        }
        for (auto* candidate : box->buttons())
            if (WithoutMnemonic(candidate->text()) == button) return candidate->click();
        ADD_FAILURE() << "no button " << button.toStdString();
        dialog.reject();
    });
}

void DesktopTest::ChooseFile(const QString& path) {
    InDialog([path](QDialog& dialog) {
        auto* files = qobject_cast<QFileDialog*>(&dialog);
        ASSERT_NE(files, nullptr) << dialog.objectName().toStdString();
        auto* name = files->findChild<QLineEdit*>("fileNameEdit");
        ASSERT_NE(name, nullptr);
        name->setText(path);
        QTest::keyClick(name, Qt::Key_Return);
    });
}

QAction& DesktopTest::Item(const QString& name) {
    auto* action = desktop.mainWindow->findChild<QAction*>(name);
    if (!action) throw std::runtime_error("no menu item " + name.toStdString());
    return *action;
}

QAction& DesktopTest::Button(const QString& toolbarAndKey) { return Item(toolbarAndKey); }

void DesktopTest::Click(const QString& name) {
    ASSERT_TRUE(Item(name).isEnabled()) << name.toStdString();
    Item(name).trigger();
    Activate(*desktop.mainWindow);
    QCoreApplication::processEvents();
}

ChildFace& DesktopTest::Face() {
    auto* face =
        desktop.session.ActiveWindow ? desktop.ports.children.FaceOf(*desktop.session.ActiveWindow) : nullptr;
    if (!face) throw std::runtime_error("no child window");
    return *face;
}

GridWidget& DesktopTest::ActiveGrid() {
    auto* grid = Face().findChild<GridWidget*>();
    if (!grid) throw std::runtime_error("no grid");
    return *grid;
}

void DesktopTest::NewSheet(int records, int variables) {
    InDialog([this, records, variables](QDialog& dialog) {
        auto& recordField = Find<QLineEdit>(dialog, "txtRecords");
        recordField.selectAll();
        QTest::keyClicks(&recordField, QString::number(records));
        auto& variableField = Find<QLineEdit>(dialog, "txtLiczba");
        variableField.selectAll();
        QTest::keyClicks(&variableField, QString::number(variables));
        Find<QPushButton>(dialog, "Command1").click();
    });
    Click("mnuFNew");
}

void DesktopTest::Type(const QString& text) {
    for (const QChar character : text) QTest::keyClick(QApplication::focusWidget(), character.toLatin1());
}

void DesktopTest::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

QPoint DesktopTest::PlaceOf(GridWidget& grid, int row, int column) {
    if (grid.CellRect(row, column).isEmpty()) grid.horizontalScrollBar()->setValue(0);
    if (grid.CellRect(row, column).isEmpty()) grid.verticalScrollBar()->setValue(0);
    EXPECT_FALSE(grid.CellRect(row, column).isEmpty()) << row << "," << column;
    return grid.CellRect(row, column).center();
}

void DesktopTest::ClickCell(GridWidget& grid, int row, int column) {
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, PlaceOf(grid, row, column));
}

void DesktopTest::DoubleClickCell(GridWidget& grid, int row, int column) {
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, PlaceOf(grid, row, column));
    QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, PlaceOf(grid, row, column));
}

void DesktopTest::ClickOn(QWidget& widget, QPoint place, Qt::MouseButton button) {
    QWindow* window = widget.window()->windowHandle();
    QTest::mouseClick(window, button, {}, widget.mapTo(widget.window(), place));
}

void DesktopTest::PressInWindow(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(desktop.mainWindow->windowHandle(), key, modifiers);
}

QString DesktopTest::Sample(const QString& name) const { return ToQt(sourcePath("samples/" + FromQt(name))); }

std::string DesktopTest::BytesOf(const QString& path) const {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "(no file)";
}

} // namespace dorvan::test
