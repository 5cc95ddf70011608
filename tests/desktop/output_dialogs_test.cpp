#include "desktop_test.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QFontDatabase>
#include <QGroupBox>
#include <QRadioButton>

#include <algorithm>

namespace dorvan::test {

// The dialogs in front of text exports and prints.
class OutputDialogsTest : public DesktopTest {
protected:
    void MakeSheet() {
        NewSheet(3, 2);
        for (int row = 1; row <= 3; ++row) Sheet().Grid1.SetText(row, 1, "R" + std::to_string(row));
        for (int row = 1; row <= 3; ++row)
            for (int column = 2; column <= 3; ++column)
                Sheet().Grid1.SetText(row, column, std::to_string(row * column));
    }

    void MakeMatrix() {
        MakeSheet();
        InDialog([this](QDialog& dialog) { Find<QPushButton>(dialog, "Command2").click(); });
        Click("mnuAnalysisMatrix");
    }

    void OpenDiagram() {
        ChooseFile(Sample("USArrests.mdt"));
        Click("mnuFData");
        InDialog([this](QDialog& dialog) { Find<QPushButton>(dialog, "Command3").click(); });
        Click("mnuAnalysisDiagram");
    }

    QStringList OptionTexts(QDialog& dialog) {
        QStringList texts;
        for (const char* name : {"Option1", "Option2", "Option3"})
            texts << Find<QRadioButton>(dialog, name).text();
        return texts;
    }

    // 1 to 3.
    int Chosen(QDialog& dialog) {
        for (int number = 1; number <= 3; ++number)
            if (Find<QRadioButton>(dialog, QString("Option%1").arg(number)).isChecked()) return number;
        return 0;
    }
};

TEST_F(OutputDialogsTest, TextOfASheetAsksForSeparatorAndNames) {
    MakeSheet();
    InDialog([this](QDialog& dialog) {
        EXPECT_EQ(dialog.objectName(), "frmExportOptions");
        EXPECT_EQ(dialog.windowTitle(), "Export to text file options");
        EXPECT_EQ(Find<QGroupBox>(dialog, "Frame1").title(), "Separator:");
        EXPECT_EQ(OptionTexts(dialog), QStringList({"&semicolon (;)", "&comma (,)", "&tab separator"}));
        EXPECT_EQ(Chosen(dialog), 1);
        EXPECT_EQ(Find<QCheckBox>(dialog, "Check1").text(), "&Insert variable names");
        EXPECT_TRUE(Find<QCheckBox>(dialog, "Check1").isChecked());
        EXPECT_EQ(Find<QPushButton>(dialog, "Command2").text(), "O&K");
        EXPECT_TRUE(Find<QPushButton>(dialog, "Command2").isDefault());
        Find<QRadioButton>(dialog, "Option3").click();
        EXPECT_EQ(Chosen(dialog), 3);
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    ChooseFile(Path("names.txt"));
    Click("mnuExportText");
    EXPECT_EQ(BytesOf(Path("names.txt")), "VAR  1\tVAR  2\r\nR1\t2\t3\r\nR2\t4\t6\r\nR3\t6\t9\r\n");

    InDialog([this](QDialog& dialog) {
        EXPECT_EQ(Chosen(dialog), 3);
        Find<QCheckBox>(dialog, "Check1").click();
        Find<QRadioButton>(dialog, "Option2").click();
        Find<QPushButton>(dialog, "Command2").click();
    });
    ChooseFile(Path("plain.txt"));
    Click("mnuExportText");
    EXPECT_EQ(BytesOf(Path("plain.txt")), "R1,2,3\r\nR2,4,6\r\nR3,6,9\r\n");
}

TEST_F(OutputDialogsTest, EscEndsTheExportBeforeAFileIsAskedFor) {
    MakeSheet();
    InDialog([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    Click("mnuExportText");
    EXPECT_EQ(desktop.session.OutputDialogOutcome, -99);
}

// A narrow dialog is as wide as its title, with the buttons of its frame.
TEST_F(OutputDialogsTest, TheWholeTitleHasRoom) {
    MakeSheet();
    InDialog([](QDialog& dialog) {
        QFont font = QApplication::font("QMdiSubWindowTitleBar");
        font.setBold(true);
        EXPECT_GT(dialog.width(), QFontMetrics(font).horizontalAdvance(dialog.windowTitle()) + 60);
        EXPECT_EQ(dialog.size(), dialog.minimumSize());
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    Click("mnuExportText");
}

TEST_F(OutputDialogsTest, TextThatCannotBeWrittenIsToldForASheet) {
    MakeSheet();
    InDialog([this](QDialog& dialog) { Find<QPushButton>(dialog, "Command2").click(); });
    ChooseFile(Path("none/sheet.txt"));
    InDialog([](QDialog& dialog) {
        auto* box = qobject_cast<QMessageBox*>(&dialog);
        ASSERT_NE(box, nullptr);
        EXPECT_EQ(box->icon(), QMessageBox::Warning);
        EXPECT_EQ(box->windowTitle(), "Dorvan");
        box->accept();
    });
    Click("mnuExportText");
}

TEST_F(OutputDialogsTest, TextOfAMatrixHasASeparatorOfItsOwn) {
    MakeMatrix();
    desktop.session.DataTextSeparator = 3;
    InDialog([this](QDialog& dialog) {
        EXPECT_EQ(dialog.objectName(), "frmTextOptions");
        EXPECT_EQ(dialog.windowTitle(), "Export text options");
        EXPECT_EQ(OptionTexts(dialog), QStringList({"semicolon (;)", "comma (,)", "&tab separator"}));
        EXPECT_EQ(Chosen(dialog), 1);
        Find<QRadioButton>(dialog, "Option2").click();
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    ChooseFile(Path("matrix.txt"));
    Click("mnuExportText");
    EXPECT_EQ(BytesOf(Path("matrix.txt")).substr(0, 5), "R1,0,");
    EXPECT_EQ(desktop.session.MatrixTextSeparator, 2);
    EXPECT_EQ(desktop.session.DataTextSeparator, 3);
}

TEST_F(OutputDialogsTest, AMatrixIsPrintedToAFile) {
    MakeMatrix();
    InDialog([this](QDialog& dialog) {
        EXPECT_EQ(dialog.objectName(), "frmPrintMatrix");
        EXPECT_EQ(dialog.windowTitle(), "Print matrix");
        EXPECT_EQ(Find<QPushButton>(dialog, "Command1").text(), "OK");
        EXPECT_EQ(Find<QPushButton>(dialog, "Command2").text(), "Cancel");
        EXPECT_EQ(Find<QPushButton>(dialog, "Command3").text(), "&Printer options");
        EXPECT_TRUE(Find<QPushButton>(dialog, "Command1").isDefault());
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    ChooseFile(Path("matrix.pdf"));
    Click("mnuFilePrint");
    EXPECT_EQ(BytesOf(Path("matrix.pdf")).substr(0, 5), "%PDF-");
}

TEST_F(OutputDialogsTest, EscAsksForNoFileToPrintTo) {
    MakeMatrix();
    InDialog([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    Click("mnuFilePrint");
    EXPECT_EQ(desktop.session.OutputDialogOutcome, 0);
}

TEST_F(OutputDialogsTest, ThePrintersOwnDialogLeavesTheFirstOneOpen) {
    MakeMatrix();
    InDialog([this](QDialog& dialog) {
        InDialog([](QDialog& options) {
            EXPECT_EQ(options.objectName(), "PrinterDialog");
            EXPECT_EQ(options.windowTitle(), "Printer options");
            options.reject();
        });
        Find<QPushButton>(dialog, "Command3").click();
        EXPECT_TRUE(dialog.isVisible());
        Find<QPushButton>(dialog, "Command2").click();
    });
    Click("mnuFilePrint");
}

TEST_F(OutputDialogsTest, ADiagramIsPrintedInAFontAndASize) {
    OpenDiagram();
    InDialog([this](QDialog& dialog) {
        EXPECT_EQ(dialog.objectName(), "frmOpisDiagramu");
        EXPECT_EQ(dialog.windowTitle(), "Print setup");
        EXPECT_EQ(Find<QGroupBox>(dialog, "Frame1").title(), "Diagram size:");
        EXPECT_EQ(OptionTexts(dialog), QStringList({"Normal", "Small", "Large"}));
        EXPECT_EQ(Chosen(dialog), 1);
        const auto& fonts = Find<QComboBox>(dialog, "Combo1");
        const auto families = QFontDatabase::families();
        EXPECT_EQ(fonts.count(), std::count_if(families.begin(), families.end(), [](const QString& family) {
                      return !QFontDatabase::isPrivateFamily(family);
                  }));
        EXPECT_EQ(fonts.currentIndex(), 0);
        Find<QRadioButton>(dialog, "Option2").click();
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    ChooseFile(Path("small.pdf"));
    Click("mnuFilePrint");
    EXPECT_EQ(BytesOf(Path("small.pdf")).substr(0, 5), "%PDF-");

    InDialog([this](QDialog& dialog) {
        EXPECT_EQ(Chosen(dialog), 2);
        Find<QRadioButton>(dialog, "Option3").click();
        Find<QPushButton>(dialog, "Command1").click();
    });
    ChooseFile(Path("large.pdf"));
    Click("mnuFilePrint");
    EXPECT_NE(BytesOf(Path("small.pdf")), BytesOf(Path("large.pdf")));
}

} // namespace dorvan::test
