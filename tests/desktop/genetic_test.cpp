#include "desktop_test.h"

#include <QComboBox>
#include <QMdiArea>
#include <QProgressBar>
#include <QRadioButton>

namespace dorvan::test {

// Runs of the two searches that would take minutes, with their progress window on the screen.
class GeneticTest : public DesktopTest {
protected:
    GeneticTest() {
        ChooseFile(Sample("quakes250.mdt"));
        Click("mnuFData");
    }

    // Make Diagram by the ordering of that option, its own dialog answered by `dialog`; `atWork` is called
    // again and again while the progress window of that name is up, until it says that it is done.
    void Run(const QString& option, Script dialog, const QString& window,
             std::function<bool(QDialog&)> atWork) {
        InDialog([this, option, dialog](QDialog& options) {
            Find<QRadioButton>(options, option).click();
            InDialog(dialog);
            Find<QPushButton>(options, "Command3").click();
        });
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, [&] {
            for (QWidget* top : QApplication::topLevelWidgets())
                if (top->objectName() == window && top->isVisible()) {
                    seen = true;
                    if (atWork(dynamic_cast<QDialog&>(*top))) look.stop();
                }
        });
        look.start(5);
        Item("mnuAnalysisDiagram").trigger();
        EXPECT_TRUE(seen);
    }

    void ClickCancel(QDialog& window) {
        QTest::mouseClick(&Find<QPushButton>(window, "Command1"), Qt::LeftButton);
    }

    bool seen = false;
};

TEST_F(GeneticTest, TheSimpleSearchShowsItsProgressAndEndsAtItsCancelButton) {
    bool cancelled = false;
    Run(
        "Option8",
        [this](QDialog& dialog) {
            EXPECT_EQ(dialog.windowTitle(), "Simple genetic algorithm");
            EXPECT_EQ(Find<QComboBox>(dialog, "cboGen").currentText(), "250");
            EXPECT_EQ(Find<QComboBox>(dialog, "cboVar").currentText(), "30");
            Find<QComboBox>(dialog, "cboGen").setCurrentIndex(0);
            Find<QComboBox>(dialog, "cboVar").setCurrentIndex(4);
            Find<QPushButton>(dialog, "Command1").click();
        },
        "frmWork",
        [&](QDialog& window) {
            if (Find<QLabel>(window, "lblFunkcja").text().isEmpty()) return false;
            EXPECT_EQ(window.windowTitle(), "At work...");
            EXPECT_TRUE(window.windowFlags() & Qt::WindowStaysOnTopHint);
            EXPECT_FALSE(window.isModal());
            EXPECT_TRUE(Find<QLabel>(window, "InfoString").text().endsWith(" %"));
            EXPECT_FALSE(Find<QLabel>(window, "InfoTime").text().isEmpty());
            const auto& bar = Find<QProgressBar>(window, "Procent1");
            EXPECT_LT(bar.value(), bar.maximum());
            cancelled = true;
            ClickCancel(window);
            return true;
        });
    ASSERT_TRUE(cancelled);
    EXPECT_EQ(Face().windowTitle(), "[DIAGRAM]: Untitled:1"); // made with the best order so far
    EXPECT_EQ(desktop.session.DiagramBusy, 0);
}

TEST_F(GeneticTest, DuringTheRavelinSearchTheMainWindowRespondsAndRefuses) {
    bool cancelled = false;
    Run(
        "Option9",
        [this](QDialog& dialog) {
            EXPECT_EQ(dialog.windowTitle(), "Ravelin");
            auto& generations = Find<QLineEdit>(dialog, "Text10");
            EXPECT_EQ(generations.text(), "10");
            generations.selectAll();
            QTest::keyClicks(&generations, "3a2000");
            EXPECT_EQ(generations.text(), "32000");
            Find<QPushButton>(dialog, "Command1").click();
        },
        "frmWorkUM",
        [&](QDialog& window) {
            if (Find<QLabel>(window, "BestUm").text().isEmpty()) return false; // the first generation
            for (const auto* figure : {"Generacje", "lblChangesG", "Mutacje", "lblChangeM", "lblFunkcja",
                                       "lblActualUM", "BestUm", "InfoTime"})
                EXPECT_FALSE(Find<QLabel>(window, figure).text().isEmpty()) << figure;
            Item("mnuFNew").trigger(); // would show a dialog; refused with a beep
            Item("mnuAbout").trigger();
            EXPECT_EQ(desktop.session.Children.size(), 1u);
            EXPECT_EQ(desktop.session.DiagramBusy, 1);
            // The sheet was read cell by cell, and is still where its user left it.
            EXPECT_FALSE(ActiveGrid().CellRect(1, 1).isEmpty());
            cancelled = true;
            ClickCancel(window);
            return true;
        });
    ASSERT_TRUE(cancelled);
    EXPECT_EQ(Face().windowTitle(), "[DIAGRAM]: Untitled:1");
}

TEST_F(GeneticTest, EscAndTheCloseControlOfTheProgressWindowCancel) {
    int round = 0;
    const auto accept = [this](QDialog& dialog) {
        auto& generations = Find<QLineEdit>(dialog, "Text10");
        generations.selectAll();
        QTest::keyClicks(&generations, "32000");
        Find<QPushButton>(dialog, "Command1").click();
    };
    const auto leave = [&round](QDialog& window) {
        if (round++ == 0)
            QTest::keyClick(&window, Qt::Key_Escape);
        else
            window.close();
        return true;
    };
    Run("Option9", accept, "frmWorkUM", leave);
    EXPECT_EQ(Face().windowTitle(), "[DIAGRAM]: Untitled:1");
    desktop.mainWindow->Area().setActiveSubWindow(
        desktop.ports.children.FaceOf(*desktop.session.DataWindows.at(1)));
    QCoreApplication::processEvents();
    Run("Option9", accept, "frmWorkUM", leave);
    EXPECT_EQ(Face().windowTitle(), "[DIAGRAM]: Untitled:2");
}

TEST_F(GeneticTest, ARunThatEndsByItselfClosesItsWindow) {
    Run(
        "Option8",
        [this](QDialog& dialog) {
            Find<QComboBox>(dialog, "cboGen").setCurrentIndex(6);
            Find<QComboBox>(dialog, "cboVar").setCurrentIndex(4);
            Find<QPushButton>(dialog, "Command1").click();
        },
        "frmWork", [](QDialog&) { return true; });
    EXPECT_EQ(Face().windowTitle(), "[DIAGRAM]: Untitled:1");
    for (QWidget* top : QApplication::topLevelWidgets()) {
        EXPECT_FALSE(top->objectName() == "frmWork" && top->isVisible());
    }
}

TEST_F(GeneticTest, CancelOfTheSearchDialogReturnsToTheOptions) {
    InDialog([this](QDialog& options) {
        Find<QRadioButton>(options, "Option8").click();
        InDialog([this](QDialog& dialog) { Find<QPushButton>(dialog, "Command2").click(); });
        Find<QPushButton>(options, "Command3").click();
        EXPECT_TRUE(options.isVisible());
        options.reject();
    });
    Click("mnuAnalysisDiagram");
    EXPECT_EQ(desktop.session.Children.size(), 1u);
}

} // namespace dorvan::test
