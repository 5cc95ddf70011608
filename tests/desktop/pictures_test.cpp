#include "desktop_test.h"

#include "desktop/picture_widget.h"
#include "painting/raster_player.h"
#include "view/frmBMP.h"
#include "view/frmHistogram.h"
#include "view/frmLiniowy.h"

#include <QAction>
#include <QClipboard>
#include <QPalette>
#include <QRadioButton>
#include <QScrollBar>
#include <QWheelEvent>

namespace dorvan::test {

class PicturesTest : public DesktopTest {
protected:
    PicturesTest() {
        ChooseFile(Sample("USArrests.mdt"));
        Click("mnuFData");
        InDialog([this](QDialog& dialog) { Find<QPushButton>(dialog, "Command3").click(); });
        Click("mnuAnalysisDiagram");
    }

    void TypeSize(QDialog& dialog, const char* percent) {
        auto& field = Find<QLineEdit>(dialog, "Text1");
        field.selectAll();
        QTest::keyClicks(&field, percent);
    }

    frmBMP& Bitmap() { return dynamic_cast<frmBMP&>(*desktop.session.ActiveWindow); }

    // What the widget shows, at the density of the screen.
    static QImage Shown(QWidget& widget) {
        return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
    }

    // The drawing at that density, as far as the widget shows it.
    static void ExpectShows(QWidget& widget, const Drawing& drawing) {
        const QImage shown = Shown(widget);
        const QImage drawn = painting::ImageOf(drawing, widget.devicePixelRatioF());
        const QSize common = shown.size().boundedTo(drawn.size());
        QImage left = shown.copy(QRect(QPoint(), common));
        QImage right = drawn.copy(QRect(QPoint(), common));
        left.setDevicePixelRatio(1);
        right.setDevicePixelRatio(1);
        EXPECT_TRUE(left == right);
    }
};

TEST_F(PicturesTest, HistogramShowsItsChartAndLimits) {
    InDialog([this](QDialog& dialog) {
        EXPECT_EQ(dialog.objectName(), "frmHistogram");
        EXPECT_EQ(dialog.windowTitle(), "Histogram");
        auto& form = desktop.session.forms.Load<frmHistogram>(desktop.session);
        EXPECT_TRUE(Find<QRadioButton>(dialog, "Option1").isChecked());
        EXPECT_EQ(Find<QLineEdit>(dialog, "Text4").text().toStdString(), form.Text4.Text);
        EXPECT_EQ(Find<QLabel>(dialog, "Label7").text(), "more...");
        ExpectShows(Find(dialog, "Picture1"), form.Picture1.Shown());
        dialog.reject();
    });
    Click("mnuEditHistogram");
}

TEST_F(PicturesTest, LimitsOfTheHistogramAreTypedCheckedAndTaken) {
    InDialog([this](QDialog& dialog) {
        const char* names[] = {"Text1", "Text2", "Text3", "Text4"};
        const char* texts[] = {"1a0", "2 0", "3,0", "4x00"};
        for (int number = 0; number < 4; ++number) {
            auto& field = Find<QLineEdit>(dialog, names[number]);
            field.selectAll();
            QTest::keyClicks(&field, texts[number]);
            QTest::keyClick(&field, Qt::Key_Return);
            EXPECT_TRUE(dialog.isVisible());
        }
        EXPECT_EQ(Find<QLineEdit>(dialog, "Text4").text(), "400");
        const QImage before = Shown(Find(dialog, "Picture1"));
        Find<QRadioButton>(dialog, "Option2").click();
        EXPECT_EQ(Shown(Find(dialog, "Picture1")), before);
        Find<QPushButton>(dialog, "Command3").click();
        EXPECT_NE(Shown(Find(dialog, "Picture1")), before);
        Find<QPushButton>(dialog, "Command1").click();
    });
    Click("toolDiagram.Histogram");
    EXPECT_EQ(Diagram().Document().SectionLimits.Cells(), (std::vector<float>{10, 20, 30, 400}));
}

TEST_F(PicturesTest, GraphsAreOnWhitePaperInADarkTheme) {
    const QPalette before = QApplication::palette();
    QPalette dark(Qt::black);
    QApplication::setPalette(dark);
    InDialog([this](QDialog& dialog) {
        EXPECT_EQ(Shown(Find(dialog, "Picture1")).pixelColor(2, 2), QColor(Qt::white));
        dialog.reject();
    });
    Click("mnuEditHistogram");
    QApplication::setPalette(before);
}

TEST_F(PicturesTest, LinearGraphIsDrawnOnceAndClosed) {
    InDialog([this](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Linear graph");
        auto& form = desktop.session.forms.Load<frmLiniowy>(desktop.session);
        EXPECT_EQ(form.GraphPending, 0);
        EXPECT_EQ(form.Picture1.Revision(), 1U);
        ExpectShows(Find(dialog, "Picture1"), form.Picture1.Shown());
        EXPECT_EQ(Find(dialog, "Picture1").size(), QSize(337, 201));
        EXPECT_EQ(Find<QLabel>(dialog, "Label1").text(), "Distance between following records in diagram.");
        Find<QPushButton>(dialog, "Command1").click();
    });
    Click("mnuEditLinear");
    EXPECT_EQ(ended, "");
}

TEST_F(PicturesTest, TypeIsChosenFromThree) {
    InDialog([this](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Select diagram type");
        EXPECT_TRUE(Find<QRadioButton>(dialog, "Option2").isChecked());
        Find<QRadioButton>(dialog, "Option3").click();
        Find<QPushButton>(dialog, "OKButton").click();
    });
    Click("toolDiagram.DiagramType");
    EXPECT_EQ(Diagram().Document().DiagType, 3);
}

TEST_F(PicturesTest, DerivedDocumentsOpenInFront) {
    auto* diagram = desktop.session.ActiveWindow;
    Click("toolDiagram.DataOrder");
    EXPECT_EQ(Face().windowTitle(), "[DATA]: Untitled:2");
    EXPECT_EQ(Sheet().RecordCount(), 50);
    desktop.session.platform.children.show(*diagram);
    QCoreApplication::processEvents();
    Click("mnuEditCreateMatrix");
    EXPECT_EQ(Face().windowTitle(), "[MATRIX]: Untitled:1");
}

TEST_F(PicturesTest, BitmapOpensWithItsBarsAtTheEdges) {
    Click("mnuExportBitmap");
    QCoreApplication::processEvents();
    EXPECT_EQ(Face().windowTitle(), "[BITMAP]: Untitled:1");
    QWidget& content = *Face().widget();
    auto& sidewards = Find<QScrollBar>(content, "HScroll1");
    auto& upright = Find<QScrollBar>(content, "VScroll1");
    EXPECT_EQ(upright.geometry().right(), content.rect().right());
    EXPECT_EQ(sidewards.geometry().bottom(), content.rect().bottom());
    EXPECT_EQ(Find(content, "Bmp").pos(), QPoint(0, 0));
    EXPECT_EQ(Find(content, "Bmp").size(), QSize(1124, 1080)); // 16850 x 16200 twips
    EXPECT_FALSE(Find(content, "Command4").isVisible());
}

TEST_F(PicturesTest, BitmapScrollsToItsEnds) {
    Click("mnuExportBitmap");
    QCoreApplication::processEvents();
    QWidget& content = *Face().widget();
    auto& picture = Find(content, "Bmp");
    auto& sidewards = Find<QScrollBar>(content, "HScroll1");
    auto& upright = Find<QScrollBar>(content, "VScroll1");
    sidewards.setValue(sidewards.maximum());
    upright.setValue(upright.maximum());
    EXPECT_NEAR(picture.geometry().right() + 1, upright.x(), 1);
    EXPECT_NEAR(picture.geometry().bottom() + 1, sidewards.y(), 1);
    const QPoint before = picture.pos();
    QWheelEvent wheel(QPointF(20, 20), picture.mapToGlobal(QPointF(20, 20)), QPoint(), QPoint(0, 120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&picture, &wheel);
    EXPECT_GT(picture.y(), before.y());
    EXPECT_EQ(picture.x(), before.x());
}

TEST_F(PicturesTest, BitmapIsCopiedPixelForPixel) {
    Click("mnuExportBitmap");
    Click("toolBitmap.Copy");
    const QImage copied = QGuiApplication::clipboard()->image().convertToFormat(QImage::Format_RGB32);
    EXPECT_EQ(copied, painting::ImageOf(Bitmap().Bmp.Shown()));
}

TEST_F(PicturesTest, BitmapIsSavedAndClosesWithoutAQuestion) {
    Click("mnuExportBitmap");
    ChooseFile(Path("towns.png"));
    Click("mnuSaveAs");
    const QImage saved(Path("towns.png"));
    EXPECT_EQ(saved.size(), QSize(1124, 1080));
    EXPECT_EQ(saved.depth(), 8);
    const QImage drawn = painting::ImageOf(Bitmap().Bmp.Shown());
    EXPECT_EQ(saved.convertToFormat(QImage::Format_RGB32), drawn.convertToFormat(QImage::Format_RGB32));
    Face().close();
    QCoreApplication::processEvents();
    EXPECT_EQ(Face().windowTitle(), "[DIAGRAM]: Untitled:1");
}

TEST_F(PicturesTest, TheMenuSavesAPictureInEachFormat) {
    for (const auto* name : {"towns.svg", "towns.pdf", "towns.PNG"}) {
        InDialog([this](QDialog& dialog) {
            EXPECT_EQ(dialog.objectName(), "frmPicture");
            TypeSize(dialog, "50");
            Find<QPushButton>(dialog, "Command1").click();
        });
        ChooseFile(Path(name));
        Click("mnuExtrasSavePicture");
    }
    EXPECT_EQ(BytesOf(Path("towns.svg")).substr(0, 5), "<?xml");
    EXPECT_EQ(BytesOf(Path("towns.pdf")).substr(0, 5), "%PDF-");
    EXPECT_EQ(QImage(Path("towns.PNG")).size(), QSize(562, 540));
}

TEST_F(PicturesTest, TheMenuCopiesAPicture) {
    InDialog([this](QDialog& dialog) {
        Find<QRadioButton>(dialog, "Option4").click();
        TypeSize(dialog, "200");
        Find<QPushButton>(dialog, "Command1").click();
    });
    Click("mnuExtrasCopyPicture");
    EXPECT_EQ(QGuiApplication::clipboard()->image().size(), QSize(674, 402));
}

} // namespace dorvan::test
