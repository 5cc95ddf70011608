#include "desktop_test.h"

#include "distance/frmCustomized.h"
#include "making/frmPrzedzal.h"
#include "sheet/frmNowy.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>

namespace dorvan::test {

using DialogsTest = DesktopTest;

TEST_F(DialogsTest, ANewSheetTakesItsSizeFromTheDialog) {
    InDialog([this](QDialog& dialog) {
        EXPECT_EQ(dialog.objectName(), "frmNowy");
        EXPECT_EQ(dialog.windowTitle(), "New data ");
        EXPECT_EQ(Find<QLineEdit>(dialog, "txtRecords").text(), "10");
        EXPECT_EQ(Find<QLineEdit>(dialog, "txtLiczba").text(), "5");
        EXPECT_TRUE(Find<QPushButton>(dialog, "Command1").isDefault());
        Find<QPushButton>(dialog, "Command1").click();
    });
    Click("mnuFNew");
    EXPECT_EQ(Sheet().RecordCount(), 10);
    EXPECT_EQ(Sheet().VariableCount(), 5);
}

TEST_F(DialogsTest, CancelEscAndTheCloseControlOpenNoSheet) {
    InDialog([this](QDialog& dialog) { Find<QPushButton>(dialog, "Command2").click(); });
    Click("mnuFNew");
    InDialog([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    Click("mnuFNew");
    InDialog([](QDialog& dialog) { dialog.close(); });
    Click("mnuFNew");
    EXPECT_TRUE(desktop.session.Children.empty());
}

TEST_F(DialogsTest, NumberFieldsTakeDigitsOnlyAndEnterMovesOn) {
    InDialog([this](QDialog& dialog) {
        auto& records = Find<QLineEdit>(dialog, "txtRecords");
        EXPECT_TRUE(records.hasFocus());
        records.selectAll();
        QTest::keyClicks(&records, "a1-2 3");
        EXPECT_EQ(records.text(), "123");
        QTest::keyClick(&records, Qt::Key_Return);
        EXPECT_TRUE(Find<QLineEdit>(dialog, "txtLiczba").hasFocus());
        EXPECT_TRUE(dialog.isVisible());
        QTest::keyClick(&Find<QLineEdit>(dialog, "txtLiczba"), Qt::Key_Return);
        EXPECT_TRUE(Find<QPushButton>(dialog, "Command1").hasFocus());
        QTest::keyClick(&Find<QPushButton>(dialog, "Command1"), Qt::Key_Tab);
        EXPECT_TRUE(Find<QPushButton>(dialog, "Command2").hasFocus());
        dialog.reject();
    });
    Click("mnuFNew");
}

TEST_F(DialogsTest, ARefusalIsShownOverTheDialogWhichStays) {
    InDialog([this](QDialog& dialog) {
        auto& variables = Find<QLineEdit>(dialog, "txtLiczba");
        variables.selectAll();
        QTest::keyClicks(&variables, "101");
        AnswerNext("OK", "Too many variables - max. 100");
        Find<QPushButton>(dialog, "Command1").click();
        EXPECT_TRUE(dialog.isVisible());
        Find<QPushButton>(dialog, "Command2").click();
    });
    Click("mnuFNew");
    EXPECT_TRUE(desktop.session.Children.empty());
}

TEST_F(DialogsTest, TheMeasuresFollowTheKindOfData) {
    NewSheet(3, 2);
    InDialog([this](QDialog& dialog) {
        EXPECT_EQ(dialog.objectName(), "frmOpcjeMacierzy");
        EXPECT_EQ(dialog.windowTitle(), "Matrix");
        auto& kinds = Find<QComboBox>(dialog, "cboData");
        auto& measures = Find<QComboBox>(dialog, "Combo1");
        EXPECT_EQ(kinds.currentText(), "numerical data");
        EXPECT_EQ(measures.currentText(), "Euclidean");
        kinds.setCurrentIndex(2);
        EXPECT_EQ(measures.count(), 4);
        EXPECT_EQ(measures.currentText(), "DfDD Distance");
        kinds.setCurrentIndex(1);
        EXPECT_EQ(measures.count(), 2);
        measures.setCurrentIndex(1);
        Find<QPushButton>(dialog, "Command2").click();
    });
    Click("mnuAnalysisMatrix");
    EXPECT_EQ(desktop.session.CurrentDistType, 2);
    EXPECT_EQ(Face().windowTitle(), "[MATRIX]: Untitled:1");
}

TEST_F(DialogsTest, TheCustomizedMeasureAsksAndEnterSelectsTheNextField) {
    NewSheet(3, 2);
    InDialog([this](QDialog& dialog) {
        Find<QComboBox>(dialog, "Combo1").setCurrentIndex(3);
        InDialog([this](QDialog& customized) {
            EXPECT_EQ(customized.windowTitle(), "Customized distance");
            auto& p = Find<QLineEdit>(customized, "Text1");
            auto& r = Find<QLineEdit>(customized, "Text2");
            p.setFocus();
            p.selectAll();
            QTest::keyClicks(&p, "3");
            QTest::keyClick(&p, Qt::Key_Return);
            EXPECT_TRUE(r.hasFocus());
            EXPECT_EQ(r.selectedText(), "2");
            Find<QPushButton>(customized, "Command1").click();
        });
        Find<QPushButton>(dialog, "Command2").click();
    });
    Click("mnuAnalysisMatrix");
    EXPECT_EQ(desktop.session.CurrentDistType, 6);
    EXPECT_EQ(desktop.session.Par_P, 3);
    EXPECT_EQ(desktop.session.Par_R, 2);
}

TEST_F(DialogsTest, TheFieldsKeepTheirTextsForTheNextShowing) {
    NewSheet(3, 2);
    const auto showAndType = [this](const QString& expected, const QString& typed, const QString& button) {
        InDialog([=, this](QDialog& dialog) {
            Find<QComboBox>(dialog, "Combo1").setCurrentIndex(3);
            InDialog([=, this](QDialog& customized) {
                auto& p = Find<QLineEdit>(customized, "Text1");
                EXPECT_EQ(p.text(), expected);
                p.setFocus();
                p.selectAll();
                QTest::keyClicks(&p, typed);
                Find<QPushButton>(customized, button).click();
            });
            Find<QPushButton>(dialog, "Command2").click();
            dialog.reject();
        });
        desktop.mainWindow->Area().setActiveSubWindow(
            desktop.ports.children.FaceOf(*desktop.session.DataWindows.at(1)));
        QCoreApplication::processEvents();
        Click("mnuAnalysisMatrix");
    };
    showAndType("2", "31", "Command2"); // cancelled, and kept all the same
    showAndType("31", "32", "Command1");
    showAndType("32", "33", "Command2");
    EXPECT_EQ(desktop.session.Par_P, 32);
}

TEST_F(DialogsTest, CancelOfTheCustomizedMeasureLeavesTheMatrixDialogOpen) {
    NewSheet(3, 2);
    InDialog([this](QDialog& dialog) {
        Find<QComboBox>(dialog, "Combo1").setCurrentIndex(3);
        InDialog([this](QDialog& customized) { Find<QPushButton>(customized, "Command2").click(); });
        Find<QPushButton>(dialog, "Command2").click();
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(Find<QComboBox>(dialog, "Combo1").currentText(), "Customized");
        dialog.reject();
    });
    Click("mnuAnalysisMatrix");
    EXPECT_EQ(desktop.session.Children.size(), 1u);
}

TEST_F(DialogsTest, DiagramOptionsBindAllTheirControls) {
    NewSheet(6, 2);
    InDialog([this](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Czekanowski");
        EXPECT_TRUE(Find<QGroupBox>(dialog, "Frame1").isVisible());
        EXPECT_TRUE(Find<QRadioButton>(dialog, "Option2").isChecked());
        EXPECT_TRUE(Find<QRadioButton>(dialog, "Option6").isChecked());
        auto& automatic = Find<QCheckBox>(dialog, "chkAuto");
        EXPECT_TRUE(automatic.isChecked());
        auto& first = Find<QLineEdit>(dialog, "Text1");
        EXPECT_FALSE(first.isEnabled());
        EXPECT_EQ(first.text(), "15");
        automatic.click();
        EXPECT_TRUE(first.isEnabled());
        EXPECT_TRUE(first.hasFocus());
        first.selectAll();
        QTest::keyClicks(&first, "1,a2");
        EXPECT_EQ(first.text(), "12");
        Find<QRadioButton>(dialog, "Option3").click();
        EXPECT_FALSE(Find<QRadioButton>(dialog, "Option2").isChecked());
        EXPECT_TRUE(Find<QRadioButton>(dialog, "Option6").isChecked()); // another group
        Find<QRadioButton>(dialog, "Option7").click();
        Find<QPushButton>(dialog, "Command3").click();
    });
    Click("mnuAnalysisDiagram");
    EXPECT_EQ(desktop.session.CurrentDiagType, 3);
    EXPECT_EQ(desktop.session.CurrentOrderMethod, 2);
    EXPECT_EQ(Face().windowTitle(), "[DIAGRAM]: Untitled:1");
}

TEST_F(DialogsTest, FromAMatrixTheDistanceFrameIsHiddenAndTheDialogLower) {
    NewSheet(6, 2);
    int tall = 0;
    InDialog([this, &tall](QDialog& dialog) {
        tall = dialog.height();
        Find<QPushButton>(dialog, "Command2").click();
    });
    Click("mnuAnalysisDiagram");
    InDialog([this](QDialog& dialog) { Find<QPushButton>(dialog, "Command2").click(); });
    Click("mnuAnalysisMatrix");
    InDialog([this, tall](QDialog& dialog) {
        EXPECT_FALSE(Find<QGroupBox>(dialog, "Frame1").isVisible());
        EXPECT_LT(dialog.height(), tall);
        Find<QPushButton>(dialog, "Command2").click();
    });
    Click("toolMain.MakeDiagram");
}

TEST_F(DialogsTest, EveryControlOfADialogHasItsNameAndAnAccessibleName) {
    NewSheet(6, 2);
    InDialog([](QDialog& dialog) {
        for (const auto* type : {"QLineEdit", "QComboBox", "QCheckBox", "QRadioButton", "QPushButton"})
            for (auto* widget : dialog.findChildren<QWidget*>()) {
                if (QString(widget->metaObject()->className()) != type) continue;
                EXPECT_FALSE(widget->objectName().isEmpty()) << type;
                EXPECT_FALSE(widget->accessibleName().isEmpty()) << widget->objectName().toStdString();
            }
        dialog.reject();
    });
    Click("mnuAnalysisDiagram");
}

TEST_F(DialogsTest, DialogsFitOnASmallScreen) {
    NewSheet(6, 2);
    InDialog([](QDialog& dialog) {
        EXPECT_LE(dialog.width(), 1366);
        EXPECT_LE(dialog.height(), 700);
        dialog.reject();
    });
    Click("mnuAnalysisDiagram");
}

} // namespace dorvan::test
