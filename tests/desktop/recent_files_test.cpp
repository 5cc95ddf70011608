#include "desktop_test.h"

#include "session/menus.h"
#include "session/recent_files.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QMenu>
#include <QSettings>

namespace dorvan::test {

class RecentFilesTest : public DesktopTest {
protected:
    QAction& Recent(int index) { return Item(ToQt(RecentFileItem(index))); }

    // A sample under another name, opened through the dialog.
    QString OpenCopy(const QString& name) {
        const QString path = Path(name);
        QDir().mkpath(QFileInfo(path).path());
        EXPECT_TRUE(QFile::copy(Sample("Townships.mdt"), path));
        ChooseFile(path);
        Click("mnuFData");
        return path;
    }
    QStringList Shown() {
        QStringList texts;
        for (int index = 0; index < RecentFileItems; ++index)
            if (Recent(index).isVisible()) texts << Recent(index).toolTip();
        return texts;
    }
};

TEST_F(RecentFilesTest, OpenedFilesStandAtTheEndOfTheMenuTheNewestFirst) {
    EXPECT_EQ(Shown(), QStringList());
    const QString first = OpenCopy("first.mdt");
    EXPECT_EQ(Shown(), QStringList{first});
    EXPECT_FALSE(Recent(0).isSeparator());
    const QString second = OpenCopy("second.mdt");
    EXPECT_EQ(Shown(), (QStringList{second, first}));
    const QList<QAction*> all = desktop.mainWindow->findChild<QMenu*>("mnuFile")->actions();
    EXPECT_EQ(all.back()->objectName(), "mnuRecentFile(4)");
    EXPECT_GT(all.indexOf(&Recent(0)), all.indexOf(&Item("mnuSeparator")));
}

TEST_F(RecentFilesTest, AClickOpensTheFileAndKeepsTheOrder) {
    const QString first = OpenCopy("first.mdt");
    const QString second = OpenCopy("second.mdt");
    Click("mnuRecentFile(1)");
    EXPECT_EQ(Face().windowTitle(), "[DATA]: " + first.toLower());
    EXPECT_EQ(desktop.session.Children.size(), 3u);
    EXPECT_EQ(Shown(), (QStringList{second, first}));
}

TEST_F(RecentFilesTest, TheNewestOpenedAgainStandsInTwoPlaces) {
    const QString path = OpenCopy("first.mdt");
    ChooseFile(path);
    Click("mnuFData");
    EXPECT_EQ(Shown(), (QStringList{path, path}));
}

TEST_F(RecentFilesTest, TheListOutlivesTheRunInTheUsersConfiguration) {
    const QString path = OpenCopy("first.mdt");
    QSettings stored(QSettings::IniFormat, QSettings::UserScope, "Dorvan", "Dorvan");
    EXPECT_TRUE(stored.fileName().startsWith(folder_.path())) << "a folder of this test";
    EXPECT_EQ(stored.value("Recent Files/RecentFile1").toString(), path);
    Session next(desktop.ports.platform);
    StartSession(next, 1, "");
    EXPECT_EQ(RecentFilePath(next, 0), path.toStdString());
}

TEST_F(RecentFilesTest, OddPathsStayReadableAndOpen) {
    for (const QString name :
         {"a & b.mdt", "two  blanks.mdt", "żółw 日本.mdt", "50% of; it,.mdt", "&&.mdt"}) {
        const QString path = OpenCopy(name);
        EXPECT_EQ(Recent(0).toolTip(), path);
        EXPECT_TRUE(Recent(0).text().replace("&&", "&").endsWith(name.right(8))) << name.toStdString();
        Click("mnuRecentFile(0)");
        EXPECT_EQ(Face().windowTitle(), "[DATA]: " + path.toLower());
    }
}

TEST_F(RecentFilesTest, ALongPathIsShortenedInTheMiddleOnTheScreenOnly) {
    const QString path = OpenCopy(QString(90, 'd') + "/" + QString(90, 'e') + "/the end.mdt");
    const QString text = Recent(0).text();
    EXPECT_TRUE(text.contains(QChar(0x2026))) << text.toStdString();
    EXPECT_TRUE(text.startsWith(path.left(5)));
    EXPECT_TRUE(text.endsWith("the end.mdt"));
    EXPECT_LT(text.size(), path.size());
    EXPECT_EQ(Recent(0).toolTip(), path);
    EXPECT_TRUE(desktop.mainWindow->findChild<QMenu*>("mnuFile")->toolTipsVisible());
    EXPECT_EQ(RecentFilePath(desktop.session, 0), path.toStdString());
    Click("mnuRecentFile(0)");
    EXPECT_EQ(Face().windowTitle(), "[DATA]: " + path.toLower());
}

TEST_F(RecentFilesTest, AnAmpersandIsDoubledBehindTheShortening) {
    const QString path = OpenCopy(QString(120, 'd') + "/" + QString(90, '&') + ".mdt");
    QString text = Recent(0).text();
    EXPECT_EQ(text.count('&') % 2, 0);
    EXPECT_TRUE(path.endsWith(text.replace("&&", "&").right(20)));
}

TEST_F(RecentFilesTest, AFileThatIsGoneIsOneMessage) {
    const QString path = OpenCopy("gone.mdt");
    QFile::remove(path);
    AnswerNext("OK", "The file cannot be read: No such file or directory. File: " + path);
    Click("mnuRecentFile(0)");
}

} // namespace dorvan::test
