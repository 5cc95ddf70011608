#include "desktop_test.h"
#include "numbers/random_source.h"

#include <QAction>
#include <QElapsedTimer>
#include <QProgressBar>

#include <fmt/format.h>

#include <fstream>
#include <set>

namespace dorvan::test {

// The search for the best order of a diagram that takes it seconds, with its progress window on the screen.
class BestOrderTest : public DesktopTest {
protected:
    static constexpr int Records = 500;

    BestOrderTest() {
        WriteNoise();
        ChooseFile(Path("noise.dgr"));
        Click("mnuFDiagram");
    }

    // A diagram with distances at random.
    void WriteNoise() const {
        RandomSource random(5);
        Array2<double> distances(Records, Records);
        for (int i = 1; i <= Records; ++i)
            for (int j = 1; j < i; ++j) distances(i, j) = distances(j, i) = double(random.Draw());
        std::ofstream file(FromPath("noise.dgr"), std::ios::binary);
        file << "Dorvan DIAGRAM 3.3\r\n\r\n[HEADER]\r\nType=0\r\nDescription=noise\r\nRecCount=" << Records
             << "\r\nVarCount=1\r\nSecLimit_1=0.200\r\nSecLimit_2=0.400\r\nSecLimit_3=0.600\r\n"
                "SecLimit_4=0.800\r\nDistType=3\r\nDiagType=2\r\nPar_R=0\r\nPar_P=0\r\n\r\n"
                "[RECORD_LABEL]\r\n";
        for (int i = 1; i <= Records; ++i) file << "r" << i << "\r\n";
        file << "\r\n[VARIABLE_LABEL]\r\nx\r\n\r\n[DATA]\r\n";
        for (int i = 1; i <= Records; ++i) file << "0.000\r\n";
        file << "\r\n[MATRIX]\r\n";
        for (int i = 1; i <= Records; ++i) {
            for (int j = 1; j <= Records; ++j)
                file << (j > 1 ? ";" : "") << fmt::format("{:.3f}", distances(i, j));
            file << "\r\n";
        }
    }
    std::string FromPath(const QString& name) const { return Path(name).toStdString(); }

    // Chooses the command; `atWork` is called again and again while its progress window is up, until it says
    // that it is done.
    void Run(const std::function<bool(QDialog&)>& atWork) {
        QElapsedTimer since;
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, [&] {
            for (QWidget* top : QApplication::topLevelWidgets()) {
                if (top->objectName() != "frmBestOrder" || !top->isVisible()) continue;
                if (unseenFor < 0) unseenFor = since.elapsed();
                if (atWork(dynamic_cast<QDialog&>(*top))) look.stop();
            }
        });
        look.start(5);
        since.start();
        Item("mnuExtrasBestOrder").trigger();
    }

    QString Status() { return Find<QLabel>(*desktop.mainWindow, "StatusText").text(); }

    qint64 unseenFor = -1; // milliseconds
};

TEST_F(BestOrderTest, ShowsItsProgressAfterAWhileAndEndsAtItsCancelButton) {
    double criterion = 0;
    Run([&](QDialog& window) {
        criterion = Find<QLabel>(window, "lblCriterion").text().toDouble();
        const auto& bar = Find<QProgressBar>(window, "Procent1");
        if (bar.value() == bar.minimum()) return false;
        EXPECT_LT(bar.value(), bar.maximum());
        EXPECT_EQ(window.windowTitle(), "Best order");
        EXPECT_FALSE(window.isModal());
        EXPECT_TRUE(window.windowFlags() & Qt::WindowStaysOnTopHint);
        EXPECT_EQ(Find<QLabel>(window, "Label1").text(), QString::fromUtf8("2-SUM / n² ="));
        EXPECT_EQ(desktop.session.DiagramBusy, 1);
        EXPECT_EQ(Diagram().Siatka.Text(1, 1), "r1") << "not yet in order";
        QTest::mouseClick(&Find<QPushButton>(window, "Command1"), Qt::LeftButton);
        return true;
    });
    EXPECT_GE(unseenFor, 300);
    EXPECT_EQ(desktop.session.DiagramBusy, 0);
    EXPECT_GT(criterion, 0);
    const QString start = QString::fromUtf8("Best order: 2-SUM / n² = ");
    ASSERT_TRUE(Status().startsWith(start)) << Status().toStdString();
    const QStringList told = Status().mid(start.size()).split(", ");
    ASSERT_EQ(told.size(), 2);
    EXPECT_LT(told[1].section(' ', 0, 0).toDouble(), told[0].section(' ', 0, 0).toDouble());
    EXPECT_LE(told[1].section(' ', 0, 0).toDouble(), criterion + 0.0001) << "the best so far";
    std::set<std::string> names;
    for (int row = 1; row <= Records; ++row) names.insert(Diagram().Siatka.Text(row, 1));
    EXPECT_EQ(names.size(), std::size_t(Records));
}

TEST_F(BestOrderTest, EscCancelsAndTheWindowIsGone) {
    Run([](QDialog& window) {
        QTest::keyClick(&window, Qt::Key_Escape);
        return true;
    });
    EXPECT_GE(unseenFor, 300);
    for (QWidget* top : QApplication::topLevelWidgets())
        EXPECT_FALSE(top->objectName() == "frmBestOrder" && top->isVisible());
    EXPECT_TRUE(Status().startsWith("Best order: ")) << Status().toStdString();
}

TEST_F(BestOrderTest, MeanwhileTheMainWindowRespondsAndRefuses) {
    bool tried = false;
    Run([&](QDialog& window) {
        Item("mnuFNew").trigger(); // would show a dialog; refused with a beep
        Item("mnuExtrasBestOrder").trigger();
        EXPECT_EQ(desktop.session.Children.size(), 1u);
        tried = true;
        QTest::mouseClick(&Find<QPushButton>(window, "Command1"), Qt::LeftButton);
        return true;
    });
    EXPECT_TRUE(tried);
    EXPECT_EQ(desktop.session.DiagramBusy, 0);
}

} // namespace dorvan::test
