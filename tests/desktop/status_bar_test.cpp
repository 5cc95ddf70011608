#include "desktop_test.h"

#include "desktop/legend_widget.h"
#include "desktop/qt_text.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QToolTip>

namespace dorvan::test {

class StatusBarTest : public DesktopTest {
protected:
    QString Shown(const char* label) {
        auto& found = Find<QLabel>(*desktop.mainWindow, label);
        return found.isVisible() ? found.text() : "(hidden)";
    }
    void MakeDiagram() {
        ChooseFile(Sample("Townships.mdt"));
        Click("mnuFData");
        InDialog([this](QDialog& dialog) { Find<QPushButton>(dialog, "Command3").click(); });
        Click("mnuAnalysisDiagram");
    }
    void MoveOver(int row, int column) {
        const QPoint place = PlaceOf(ActiveGrid(), row, column);
        QMouseEvent move(QEvent::MouseMove, place, ActiveGrid().viewport()->mapToGlobal(place), Qt::NoButton,
                         Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(ActiveGrid().viewport(), &move);
    }
};

TEST_F(StatusBarTest, TellsTheCellUnderThePointerThenTheCurrentOne) {
    NewSheet(3, 2);
    EXPECT_EQ(Shown("StatusCell"), "Record 1, record 1");
    EXPECT_EQ(Shown("StatusWindow"), "3 records, 2 variables");
    MoveOver(2, 3);
    EXPECT_EQ(Shown("StatusCell"), "Record 2, VAR  2: 0.000");
    Press(Qt::Key_Right);
    EXPECT_EQ(Shown("StatusCell"), "Record 2, VAR  2: 0.000");
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(ActiveGrid().viewport(), &leave);
    EXPECT_EQ(Shown("StatusCell"), "Record 1, VAR  1: 0.000");
}

TEST_F(StatusBarTest, ADiagramHasItsLegendAndWords) {
    NewSheet(3, 2);
    auto& legend = Find<LegendWidget>(*desktop.mainWindow, "StatusLegend");
    EXPECT_FALSE(legend.isVisible());
    MakeDiagram();
    EXPECT_TRUE(legend.isVisible());
    EXPECT_TRUE(legend.accessibleDescription().startsWith("class 5: 0 - "))
        << legend.accessibleDescription().toStdString();
    EXPECT_TRUE(Shown("StatusWindow").contains(", dots, UM ")) << Shown("StatusWindow").toStdString();
    // Black discs on white: the first symbol is the largest.
    const QImage picture = legend.grab().toImage();
    EXPECT_LT(qGray(picture.pixel(8, picture.height() / 2)), 60);
}

TEST_F(StatusBarTest, TheReasonOfABeepStandsInPlaceOfTheCell) {
    MakeDiagram();
    Click("mnuEditUp");
    EXPECT_EQ(Shown("StatusText"), "No record is selected: select one by a double click on its row.");
    EXPECT_EQ(Shown("StatusCell"), "(hidden)");
    Click("mnuEditSelect");
    EXPECT_EQ(Shown("StatusText"), "(hidden)");
    EXPECT_TRUE(Shown("StatusWindow").contains("selected: "));
}

TEST_F(StatusBarTest, AToolTipAndAScreenReaderSayTheSameOfACell) {
    MakeDiagram();
    const std::string names = Diagram().Siatka.Text(2, 1) + " – " + Diagram().Siatka.Text(3, 1) + ": ";
    const QPoint place = PlaceOf(ActiveGrid(), 2, 4);
    QHelpEvent help(QEvent::ToolTip, place, ActiveGrid().viewport()->mapToGlobal(place));
    QApplication::sendEvent(ActiveGrid().viewport(), &help);
    EXPECT_TRUE(QToolTip::text().startsWith(ToQt(names))) << QToolTip::text().toStdString();
    auto* cell = QAccessible::queryAccessibleInterface(&ActiveGrid())->tableInterface()->cellAt(2, 4);
    EXPECT_EQ(cell->text(QAccessible::Description), QToolTip::text());
}

TEST_F(StatusBarTest, ANarrowWindowCutsTheTextsAndStaysNarrow) {
    MakeDiagram();
    desktop.mainWindow->resize(500, 400);
    QCoreApplication::processEvents();
    EXPECT_EQ(desktop.mainWindow->width(), 500);
    desktop.dispatch.Mirror();
    EXPECT_FALSE(Find<LegendWidget>(*desktop.mainWindow, "StatusLegend").isVisible())
        << "the cell comes first";
}

} // namespace dorvan::test
