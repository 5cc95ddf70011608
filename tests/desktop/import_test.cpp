#include "desktop_test.h"

#include "desktop/child_face.h"
#include "import/dbase_bytes.h"
#include "support/golden.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QRadioButton>

namespace dorvan::test {

class ImportTest : public DesktopTest {
protected:
    QString FileOf(const QString& name, std::string_view bytes) {
        writeFile(Path(name).toStdString(), bytes);
        return Path(name);
    }
    // Chooses the file through the dialog's Browse.
    void Browse(QDialog& dialog, const QString& button, const QString& path) {
        ChooseFile(path);
        Find<QPushButton>(dialog, button).click();
    }
    static QStringList TextsOf(const QListWidget& list) {
        QStringList texts;
        for (int row = 0; row < list.count(); ++row) texts << list.item(row)->text();
        return texts;
    }
    static void ClickItem(QListWidget& list, int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, modifiers,
                          list.visualItemRect(list.item(row)).center());
    }
    static void DoubleClickItem(QListWidget& list, int row) {
        const QPoint place = list.visualItemRect(list.item(row)).center();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, place);
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, place);
    }
    // Walks on with Tab from the widget that has the focus.
    static QString Tabbed(QDialog& dialog) {
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
        return dialog.focusWidget()->objectName();
    }
    static DBaseBytes Letters() {
        DBaseBytes table({{"A", 'N', 3}, {"B", 'N', 3}, {"C", 'N', 3}, {"D", 'N', 3}, {"NAME", 'C', 6}});
        return table.record({"1", "2", "3", "4", "one"}).record({"5", "6", "7", "8", "two"});
    }
};

TEST_F(ImportTest, ATextFileBecomesASheet) {
    const QString path = FileOf("towns.csv", "town\tLength\nŁódź\t1,5\n");
    InDialog([&](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Import data from text file");
        EXPECT_TRUE(Find<QRadioButton>(dialog, "Option1").isChecked());
        EXPECT_TRUE(Find<QCheckBox>(dialog, "Check1").isChecked());
        EXPECT_TRUE(Find<QCheckBox>(dialog, "Check2").isChecked());
        Find<QRadioButton>(dialog, "Option3").click();
        Browse(dialog, "Command3", path);
        EXPECT_EQ(Find<QLabel>(dialog, "Label1").toolTip(), path);
        EXPECT_TRUE(Find<QPushButton>(dialog, "Command2").isDefault());
        Find<QPushButton>(dialog, "Command2").click();
    });
    Click("mnuImportTextFile");
    EXPECT_EQ(Face().windowTitle(), "[DATA]: Untitled1");
    EXPECT_EQ(Sheet().Grid1.Text(1, 1), "Łódź");
    EXPECT_EQ(Sheet().Grid1.Text(1, 2), "1.500");
}

TEST_F(ImportTest, TheButtonForTextDoesNothing) {
    Click("toolMain.ImportTXT");
    EXPECT_TRUE(desktop.session.Children.empty());
}

TEST_F(ImportTest, AFaultOfATextFileIsOneMessage) {
    const QString path = FileOf("faulty.csv", "c;a\nr;x\n");
    InDialog([&](QDialog& dialog) {
        Browse(dialog, "Command3", path);
        AnswerNext("OK", "Line 2, field 2: \"x\" is not a number. File: " + path);
        Find<QPushButton>(dialog, "Command2").click();
    });
    Click("mnuImportTextFile");
    EXPECT_TRUE(desktop.session.Children.empty());
}

TEST_F(ImportTest, OkWithoutAFileStaysAndEscCancels) {
    InDialog([&](QDialog& dialog) {
        AnswerNext("OK", "Select file to import");
        Find<QPushButton>(dialog, "Command2").click();
        EXPECT_TRUE(dialog.isVisible());
        QTest::keyClick(&dialog, Qt::Key_Escape);
        EXPECT_FALSE(dialog.isVisible());
    });
    Click("mnuImportTextFile");
    EXPECT_EQ(desktop.session.DialogOutcome, -99);
}

TEST_F(ImportTest, ALongPathIsShortenedInTheMiddleOfTheDialogOnly) {
    QDir(folder_.path()).mkpath(QString(120, 'd') + "/" + QString(100, 'e'));
    const QString path = FileOf(QString(120, 'd') + "/" + QString(100, 'e') + "/t.csv", "c;a\nr;1\n");
    InDialog([&](QDialog& dialog) {
        Browse(dialog, "Command3", path);
        auto& label = Find<QLabel>(dialog, "Label1");
        EXPECT_NE(label.text(), path);
        EXPECT_TRUE(label.text().endsWith("/t.csv"));
        EXPECT_TRUE(label.text().contains(QChar(0x2026)));
        EXPECT_EQ(label.toolTip(), path);
        EXPECT_EQ(label.accessibleName(), path);
        EXPECT_LT(dialog.width(), 700);
        Find<QPushButton>(dialog, "Command2").click();
    });
    Click("mnuImportTextFile");
    EXPECT_EQ(Sheet().RecordCount(), 1);
}

TEST_F(ImportTest, ATextMatrixBecomesAMatrix) {
    const QString path = FileOf("m.txt", "a;0;1.26\nb;1.26;0\n");
    InDialog([&](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Import matrix");
        EXPECT_TRUE(Find<QRadioButton>(dialog, "optDist").isChecked());
        auto& precision = Find<QLineEdit>(dialog, "txtPrecision");
        EXPECT_EQ(precision.text(), "3");
        precision.setFocus();
        precision.selectAll();
        QTest::keyClicks(&precision, "-1.x");
        EXPECT_EQ(precision.text(), "1");
        QTest::keyClick(&precision, Qt::Key_Return);
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_TRUE(Find<QPushButton>(dialog, "Command1").hasFocus());
        Find<QRadioButton>(dialog, "optSimilar").click();
        EXPECT_TRUE(Find<QRadioButton>(dialog, "optSep1").isChecked()) << "another group";
        Browse(dialog, "Command3", path);
        Find<QPushButton>(dialog, "Command1").click();
    });
    Click("toolMain.ImportMatrix");
    EXPECT_EQ(Face().windowTitle(), "[MATRIX]: Imported matrix");
    EXPECT_EQ(ActiveGrid().Shown()->Text(1, 3), "1.300");
}

TEST_F(ImportTest, ATableIsShownAndItsSelectedFieldsAreRead) {
    const QString path = FileOf("Letters.DBF", Letters().bytes());
    InDialog([&](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Import DBF");
        Browse(dialog, "cmdBrowse", path);
        EXPECT_EQ(Find<QLabel>(dialog, "Label1").toolTip(), path.toLower());
        EXPECT_EQ(Find<QLabel>(dialog, "lblDate").text(), "07.03.2004");
        EXPECT_EQ(Find<QLabel>(dialog, "lblRec").text(), "2");
        auto& available = Find<QListWidget>(dialog, "AList");
        auto& selected = Find<QListWidget>(dialog, "SList");
        EXPECT_EQ(TextsOf(available), (QStringList{"A", "B", "C", "D"}));
        EXPECT_EQ(Find<QComboBox>(dialog, "cmbString").currentText(), "NAME");
        ClickItem(available, 1);
        ClickItem(available, 3, Qt::ControlModifier);
        Find<QPushButton>(dialog, "cmdCopyToRight").click();
        EXPECT_EQ(TextsOf(available), (QStringList{"A", "C"}));
        EXPECT_EQ(TextsOf(selected), (QStringList{"B", "D"}));
        DoubleClickItem(available, 0);
        EXPECT_EQ(TextsOf(selected), (QStringList{"B", "D", "A"}));
        ClickItem(selected, 1);
        Find<QPushButton>(dialog, "cmdCopyToLeft").click();
        EXPECT_EQ(TextsOf(available), (QStringList{"C", "D"}));
        Find<QPushButton>(dialog, "cmdOK").click();
    });
    Click("toolMain.ImportDBF");
    EXPECT_EQ(Face().windowTitle(), "[DATA]: Untitled:1");
    EXPECT_EQ(Sheet().Grid1.Text(0, 2), "B");
    EXPECT_EQ(Sheet().Grid1.Text(0, 3), "A");
    EXPECT_EQ(Sheet().Grid1.Text(2, 1), "two");
    EXPECT_EQ(Sheet().Grid1.Text(2, 2), "6.000");
}

TEST_F(ImportTest, TheListsAreWorkedByKeys) {
    const QString path = FileOf("letters.dbf", Letters().bytes());
    InDialog([&](QDialog& dialog) {
        Browse(dialog, "cmdBrowse", path);
        auto& available = Find<QListWidget>(dialog, "AList");
        auto& selected = Find<QListWidget>(dialog, "SList");
        QApplication::setActiveWindow(&dialog); // the file dialog had it
        available.setFocus();
        QTest::keyClick(&available, Qt::Key_Home);
        QTest::keyClick(&available, Qt::Key_Down, Qt::ShiftModifier);
        QTest::keyClick(&available, Qt::Key_Down, Qt::ShiftModifier);
        QTest::keyClick(&available, Qt::Key_Right);
        EXPECT_EQ(TextsOf(selected), (QStringList{"A", "B", "C"}));
        EXPECT_EQ(dialog.focusWidget(), &available);
        selected.setFocus();
        QTest::keyClick(&selected, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&selected, Qt::Key_Left);
        EXPECT_EQ(TextsOf(available), (QStringList{"D", "A", "B", "C"}));
        EXPECT_TRUE(TextsOf(selected).isEmpty());
        available.setFocus();
        QTest::keyClick(&available, Qt::Key_C); // typing finds the item
        QTest::keyClick(&available, Qt::Key_Right);
        EXPECT_EQ(TextsOf(selected), QStringList{"C"});
        AnswerNext("OK", "No item selected.");
        Find<QPushButton>(dialog, "cmdCopyToRight").click();
        dialog.reject();
    });
    Click("mnuImportDBase");
}

TEST_F(ImportTest, TabGoesFromTheFileOverTheListsToTheButtons) {
    const QString path = FileOf("letters.dbf", Letters().bytes());
    InDialog([&](QDialog& dialog) {
        Browse(dialog, "cmdBrowse", path);
        Find<QPushButton>(dialog, "cmdBrowse").setFocus();
        QStringList order;
        for (int step = 0; step < 8; ++step) order << Tabbed(dialog);
        EXPECT_EQ(order, (QStringList{"AList", "cmdCopyToRight", "cmdCopyToLeft", "SList", "cmbString",
                                      "cmdOK", "cmdCancel", "cmdBrowse"}));
        dialog.reject();
    });
    Click("mnuImportDBase");
}

TEST_F(ImportTest, ATableThatIsNoneIsToldByItsNumber) {
    const QString path = FileOf("none.dbf", std::string(64, '\x05'));
    InDialog([&](QDialog& dialog) {
        ChooseFile(path);
        AnswerNext("OK", "Error in file: DBError = 7");
        Find<QPushButton>(dialog, "cmdBrowse").click();
        EXPECT_EQ(Find<QLabel>(dialog, "Label1").text(), "");
        Find<QPushButton>(dialog, "cmdCancel").click();
    });
    Click("mnuImportDBase");
}

} // namespace dorvan::test
