#include "desktop_test.h"
#include "platform/twips.h"

#include "desktop/qt_text.h"
#include "session/children.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QRadioButton>
#include <QToolBar>

#include <algorithm>
#include <string>
#include <vector>

namespace dorvan::test {

class DiagramTest : public DesktopTest {
protected:
    DiagramTest() {
        ChooseFile(Sample("Townships.mdt"));
        Click("mnuFData");
        sheet = desktop.session.ActiveWindow;
        InDialog([this](QDialog& dialog) { Find<QPushButton>(dialog, "Command3").click(); });
        Click("mnuAnalysisDiagram");
    }

    std::string Name(int row) { return Diagram().Siatka.Text(row, 1); }

    ChildWindow* sheet = nullptr;
};

TEST_F(DiagramTest, OpensAtItsUpperLeftCornerWithItsOwnToolbar) {
    EXPECT_EQ(Face().windowTitle(), "[DIAGRAM]: Untitled:1");
    EXPECT_FALSE(ActiveGrid().CellRect(1, 2).isEmpty());
    EXPECT_TRUE(Find<QToolBar>(*desktop.mainWindow, "toolDiagram").isVisible());
    EXPECT_FALSE(Item("toolDiagram.Up").isEnabled());
    EXPECT_TRUE(Item("mnuEditUp").isEnabled());
}

// The townships have a perfect order; the distances are those of Euclid, whose order the sheet's is not.
TEST_F(DiagramTest, TheBestOrderStandsOnTheScreenAndIsToldInTheStatusBar) {
    QLabel& status = Find<QLabel>(*desktop.mainWindow, "StatusText");
    EXPECT_EQ(status.text(), "");
    EXPECT_EQ(Item("mnuExtrasBestOrder").text(), "&Best order");
    ASSERT_TRUE(Item("mnuExtrasBestOrder").isEnabled());
    std::vector<std::string> before;
    for (int row = 1; row < Diagram().Siatka.Rows(); ++row) before.push_back(Name(row));
    Click("mnuExtrasBestOrder");
    EXPECT_TRUE(status.isVisible());
    EXPECT_TRUE(status.text().startsWith(QString::fromUtf8("Best order: 2-SUM / n² = ")))
        << status.text().toStdString();
    std::vector<std::string> after;
    for (int row = 1; row < Diagram().Siatka.Rows(); ++row) after.push_back(Name(row));
    EXPECT_NE(after, before);
    EXPECT_TRUE(std::is_permutation(after.begin(), after.end(), before.begin(), before.end()));
    Click("mnuExtrasBestOrder");
    EXPECT_TRUE(status.text().startsWith("No better order was found")) << status.text().toStdString();
    for (int row = 1; row < Diagram().Siatka.Rows(); ++row) EXPECT_EQ(Name(row), after[std::size_t(row - 1)]);
}

TEST_F(DiagramTest, TheBestOrderIsOffForOtherWindows) {
    ActivateChild(desktop.session, *sheet);
    desktop.mainWindow->Mirror();
    EXPECT_FALSE(Item("mnuExtrasBestOrder").isEnabled());
}

TEST_F(DiagramTest, TheGridFillsTheWindowUnderTheDescription) {
    QWidget& content = *Face().widget();
    const auto& panel = Find<QWidget>(content, "BottomPanel");
    const auto& label = Find<QLabel>(content, "Label1");
    const auto& field = Find<QLineEdit>(content, "BottomText");
    EXPECT_EQ(label.text(), "Description:");
    for (const QSize size : {QSize(700, 500), QSize(900, 400)}) {
        Face().resize(size);
        QCoreApplication::processEvents();
        EXPECT_EQ(panel.geometry().topLeft(), QPoint(0, 0));
        EXPECT_EQ(panel.width(), content.width());
        EXPECT_EQ(ActiveGrid().geometry(),
                  QRect(0, panel.height(), content.width(), content.height() - panel.height()));
        EXPECT_GT(field.x(), label.geometry().right());
        EXPECT_EQ(content.width() - field.geometry().right() - 1, PixelsOf(100));
    }
}

TEST_F(DiagramTest, ADoubleClickSelectsARowAndTheButtonsMoveIt) {
    const std::string second = Name(2);
    const std::string last = Name(Diagram().Siatka.Rows() - 1);
    DoubleClickCell(ActiveGrid(), 2, 1);
    EXPECT_EQ(Diagram().SelectedRow, 2);
    for (const auto* key : {"Home", "Up", "Down", "End", "Insert"})
        EXPECT_TRUE(Item(QString("toolDiagram.") + key).isEnabled()) << key;
    Click("toolDiagram.Up");
    EXPECT_EQ(Name(1), second);
    Click("toolDiagram.End");
    EXPECT_EQ(Name(Diagram().Siatka.Rows() - 1), second);
    EXPECT_EQ(Name(Diagram().Siatka.Rows() - 2), last);
    Click("toolDiagram.Home");
    EXPECT_EQ(Name(1), second);
    Click("toolDiagram.Down");
    EXPECT_EQ(Name(2), second);
    ClickCell(ActiveGrid(), 5, 1);
    Click("toolDiagram.Insert");
    EXPECT_EQ(Name(5), second);
    EXPECT_EQ(Diagram().SelectedRow, 5);
    DoubleClickCell(ActiveGrid(), 5, 1);
    EXPECT_EQ(Diagram().RowSelected, 0);
    EXPECT_FALSE(Item("toolDiagram.Up").isEnabled());
}

TEST_F(DiagramTest, TheGridFillsWhatTheDescriptionLeavesAtEverySize) {
    const auto expectLayout = [this] {
        const QWidget& inner = *Face().widget();
        const auto& panel = Find<QWidget>(Face(), "BottomPanel");
        const auto& field = Find<QLineEdit>(Face(), "BottomText");
        EXPECT_EQ(panel.geometry().topLeft(), QPoint(0, 0));
        EXPECT_EQ(panel.height(), std::max(390 / 15, field.sizeHint().height() + 2));
        EXPECT_EQ(panel.width(), inner.width());
        EXPECT_EQ(ActiveGrid().geometry(),
                  QRect(0, panel.height(), inner.width(), inner.height() - panel.height()));
        EXPECT_EQ(field.width(), inner.width() - field.mapTo(&inner, QPoint()).x() - 7); // 100 twips
    };
    expectLayout();
    Face().resize(700, 350);
    QCoreApplication::processEvents();
    expectLayout();
    Face().showMaximized();
    QCoreApplication::processEvents();
    expectLayout();
    desktop.mainWindow->Area().setActiveSubWindow(desktop.ports.children.FaceOf(*sheet));
    QCoreApplication::processEvents();
    InDialog([this](QDialog& dialog) { Find<QPushButton>(dialog, "Command2").click(); });
    Click("mnuAnalysisMatrix");
    expectLayout();
}

TEST_F(DiagramTest, ADoubleClickOnTheFixedRowLeavesTheSelectionAsItIs) {
    ClickCell(ActiveGrid(), 2, 1);
    DoubleClickCell(ActiveGrid(), 0, 3);
    EXPECT_EQ(Diagram().RowSelected, 0);
    EXPECT_EQ(Diagram().Siatka.Row(), 2);
    DoubleClickCell(ActiveGrid(), 2, 0);
    EXPECT_EQ(Diagram().SelectedRow, 2);
    DoubleClickCell(ActiveGrid(), 0, 1);
    EXPECT_EQ(Diagram().SelectedRow, 2);
}

TEST_F(DiagramTest, TheMovingButtonsFollowTheWindowInFront) {
    DoubleClickCell(ActiveGrid(), 2, 1);
    auto* selected = desktop.ports.children.FaceOf(*desktop.session.ActiveWindow);
    desktop.mainWindow->Area().setActiveSubWindow(desktop.ports.children.FaceOf(*sheet));
    QCoreApplication::processEvents();
    InDialog([this](QDialog& dialog) { Find<QPushButton>(dialog, "Command3").click(); });
    Click("mnuAnalysisDiagram");
    EXPECT_FALSE(Item("toolDiagram.Up").isEnabled());
    desktop.mainWindow->Area().setActiveSubWindow(selected);
    QCoreApplication::processEvents();
    EXPECT_TRUE(Item("toolDiagram.Up").isEnabled());
}

TEST_F(DiagramTest, KeysReachTheTargetOfAnInsertion) {
    const std::string third = Name(3);
    ClickCell(ActiveGrid(), 3, 1);
    Click("mnuEditSelect");
    EXPECT_EQ(QApplication::focusWidget(), &ActiveGrid());
    Press(Qt::Key_Down);
    Press(Qt::Key_Down);
    EXPECT_EQ(Diagram().Siatka.Row(), 5);
    Click("mnuEditInsert");
    EXPECT_EQ(Name(5), third);
}

TEST_F(DiagramTest, SavedAndReopenedItIsTheSame) {
    DoubleClickCell(ActiveGrid(), 2, 1);
    Click("toolDiagram.Home");
    const std::string first = Name(1);
    ChooseFile(Path("towns.dgr"));
    Click("mnuSave");
    const std::string bytes = BytesOf(Path("towns.dgr"));
    EXPECT_EQ(bytes.substr(0, 18), "Dorvan DIAGRAM 3.3");
    EXPECT_EQ(FromQt(Face().windowTitle()), "[DIAGRAM]: " + FromQt(Path("towns.dgr")));
    AnswerNext("No"); // a save leaves the diagram changed
    Click("mnuFileClose");
    ChooseFile(Path("towns.dgr"));
    Click("mnuFDiagram");
    EXPECT_EQ(Name(1), first);
    ChooseFile(Path("again.dgr"));
    Click("mnuSaveAs");
    EXPECT_EQ(BytesOf(Path("again.dgr")), bytes);
}

TEST_F(DiagramTest, ARunTimeFailureReachesTheEndOfTheRun) {
    Click("mnuEditDown"); // without a selected row
    EXPECT_EQ(ended.substr(0, 46), "Run-time error '9': Subscript out of range");
    ended.clear();
}

TEST_F(DiagramTest, CancelInTheQuestionKeepsTheDiagram) {
    AnswerNext("Cancel", "The diagram in [Untitled:1] has changed.\nDo you want to save the changes?");
    Face().close();
    EXPECT_EQ(desktop.session.Children.size(), 2u);
}

TEST_F(DiagramTest, WhileADiagramIsMadeCommandsOnlyBeep) {
    desktop.session.DiagramBusy = 1;
    Click("mnuFNew"); // no dialog comes
    desktop.session.DiagramBusy = 0;
    EXPECT_EQ(desktop.session.Children.size(), 2u);
}

} // namespace dorvan::test
