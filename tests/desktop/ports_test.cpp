#include "desktop_test.h"

#include "desktop/qt_text.h"
#include "support/golden.h"

#include <QComboBox>
#include <QFileDialog>
#include <QHeaderView>
#include <QScreen>
#include <QSettings>
#include <QTreeView>

namespace dorvan::test {

using PortsTest = DesktopTest;

TEST_F(PortsTest, SettingsAreKeptPerUserAndListedByKey) {
    auto& settings = desktop.ports.settings;
    EXPECT_EQ(settings.read("Recent Files", "RecentFile1", "none"), "none");
    settings.write("Recent Files", "RecentFile2", "/home/ann/b ą.mtx");
    settings.write("Recent Files", "RecentFile1", "/home/ann/a.mdt");
    const std::vector<std::pair<std::string, std::string>> expected = {{"RecentFile1", "/home/ann/a.mdt"},
                                                                       {"RecentFile2", "/home/ann/b ą.mtx"}};
    EXPECT_EQ(settings.readSection("Recent Files"), expected);
    EXPECT_EQ(QtSettings().read("Recent Files", "RecentFile1", ""), "/home/ann/a.mdt");
}

TEST_F(PortsTest, TheScreenIsMeasuredInTwips) {
    EXPECT_EQ(desktop.ports.screen.width(),
              QGuiApplication::primaryScreen()->availableGeometry().width() * 15);
    EXPECT_EQ(desktop.ports.screen.height(),
              QGuiApplication::primaryScreen()->availableGeometry().height() * 15);
}

TEST_F(PortsTest, PendingEventsCountTheOpenWindows) {
    for (int step = 0; step < 1000; ++step) EXPECT_EQ(desktop.ports.events.run(), 1);
    desktop.mainWindow->hide();
    QTest::qWait(10);
    EXPECT_EQ(desktop.ports.events.run(), 0);
}

TEST_F(PortsTest, TheWaitCursorComesAndGoesOnce) {
    auto& signals = desktop.ports.signals;
    signals.setCursor(Cursor::Wait);
    signals.setCursor(Cursor::Wait);
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    signals.setCursor(Cursor::Default);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    signals.setCursor(Cursor::Default);
}

TEST_F(PortsTest, AFileDialogShowsTitleFiltersAndTheSamples) {
    InDialog([](QDialog& dialog) {
        auto& files = dynamic_cast<QFileDialog&>(dialog);
        EXPECT_EQ(files.windowTitle(), "Dorvan - Select mdt file");
        EXPECT_EQ(files.nameFilters(), QStringList({"mdt file (*.mdt) (*.mdt)", "all (*.*) (*)"}));
        const auto shown = files.findChild<QComboBox*>("fileTypeCombo");
        ASSERT_NE(shown, nullptr);
        EXPECT_EQ(shown->itemText(0).trimmed(), "mdt file (*.mdt)");
        EXPECT_EQ(shown->itemText(1).trimmed(), "all (*.*)");
        EXPECT_EQ(files.directory().absolutePath(), QDir(ToQt(sourcePath("samples"))).absolutePath());
        files.reject();
    });
    Click("mnuFData");
    EXPECT_TRUE(desktop.session.Children.empty());
}

TEST_F(PortsTest, AFileDialogStartsInTheFolderUsedLast) {
    writeFile(FromQt(Path("notes")), "no document");
    ChooseFile(Path("notes"));
    AnswerNext("OK"); // it counts as an older file
    AnswerNext("OK"); // and is none
    Click("mnuFMatrix");
    InDialog([this](QDialog& dialog) {
        auto& files = dynamic_cast<QFileDialog&>(dialog);
        EXPECT_EQ(files.directory().canonicalPath(), QDir(Path("")).canonicalPath());
        files.reject();
    });
    Click("mnuFData");
}

TEST_F(PortsTest, AllFilesAreAlsoThoseWithoutADot) {
    writeFile(FromQt(Path("notes")), "no document");
    InDialog([this](QDialog& dialog) {
        auto& files = dynamic_cast<QFileDialog&>(dialog);
        files.setDirectory(Path(""));
        files.selectNameFilter(files.nameFilters().at(1));
        auto& names = *files.findChild<QTreeView*>("treeView");
        EXPECT_TRUE(QTest::qWaitFor([&] { return names.model()->rowCount(names.rootIndex()) == 1; }));
        int width = 0;
        for (int column = 0; column < names.header()->count(); ++column)
            width += names.header()->sectionSize(column);
        EXPECT_LE(width, names.viewport()->width());
        files.reject();
    });
    Click("mnuFData");
}

TEST_F(PortsTest, TheSaveDialogAddsTheExtensionThatIsWrittenWithAStar) {
    ChooseFile(Path("matrix"));
    EXPECT_EQ(desktop.ports.files.toSave({"Save", {{"mtx file (*.mtx)", "*.mtx"}}, "*.mtx", ""}),
              FromQt(Path("matrix.mtx")));
    ChooseFile(Path("matrix.txt"));
    EXPECT_EQ(desktop.ports.files.toSave({"Save", {{"mtx file (*.mtx)", "*.mtx"}}, "mtx", ""}),
              FromQt(Path("matrix.txt")));
}

TEST_F(PortsTest, TheSaveDialogAsksBeforeItOverwrites) {
    QFile file(Path("there.mdt"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    ChooseFile(Path("there.mdt"));
    InDialog([](QDialog& question) { // over the file dialog
        EXPECT_NE(qobject_cast<QMessageBox*>(&question), nullptr);
        question.reject();
        QTimer::singleShot(0, [] {
            if (auto* files = qobject_cast<QDialog*>(QApplication::activeModalWidget())) files->reject();
        });
    });
    EXPECT_EQ(desktop.ports.files.toSave({"Save", {{"mdt file (*.mdt)", "*.mdt"}}, "mdt", ""}), "");
}

TEST_F(PortsTest, QuestionsShowTheirIconAndDefaultButton) {
    InDialog([](QDialog& dialog) {
        auto& box = dynamic_cast<QMessageBox&>(dialog);
        EXPECT_EQ(box.windowTitle(), "Delete");
        EXPECT_EQ(box.icon(), QMessageBox::Question);
        EXPECT_EQ(box.text(), "One\nTwo");
        EXPECT_EQ(box.defaultButton(), box.button(QMessageBox::No));
        EXPECT_EQ(box.button(QMessageBox::Cancel), nullptr);
        QTest::keyClick(&box, Qt::Key_Escape);
    });
    EXPECT_EQ(desktop.ports.messages.show({.Text = "One\r\nTwo",
                                           .Icon = MessageIcon::Question,
                                           .Buttons = MessageButtons::YesNo,
                                           .Title = "Delete",
                                           .Default = Answer::No}),
              Answer::No);
}

TEST_F(PortsTest, AFileOfTheCommandLineOpensByItsExtension) {
    desktop.Open(FromQt(Sample("iris.mdt")));
    EXPECT_EQ(Face().windowTitle().toStdString(), "[DATA]: " + FromQt(Sample("iris.mdt").toLower()));
    AnswerNext("OK", "Error! This file is not acceptable for Dorvan.");
    desktop.Open(FromQt(Sample("README.md")));
    EXPECT_EQ(desktop.session.Children.size(), 1u);
}

TEST_F(PortsTest, AFailureInAnEventEndsTheRunAndAllElseGoesOn) {
    desktop.dispatch.Run([] { throw std::runtime_error("too bad"); });
    EXPECT_EQ(ended, "too bad");
    ended.clear();
    bool ran = false;
    desktop.dispatch.Run([&ran] { ran = true; });
    EXPECT_TRUE(ran);
    EXPECT_EQ(desktop.dispatch.Depth(), 0);
}

} // namespace dorvan::test
