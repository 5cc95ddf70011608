#include "desktop/child_faces.h"
#include "desktop/picture_widget.h"
#include "platform/twips.h"
#include "view/frmBMP.h"

#include <QCoreApplication>
#include <QPushButton>
#include <QScrollBar>
#include <QWheelEvent>

namespace dorvan {

namespace {

QRect PlaceOf(const Area& area) {
    const auto pixels = [](int twips) { return twips < 0 ? -PixelsOf(-twips) : PixelsOf(twips); };
    return {pixels(area.Left), pixels(area.Top), (area.Width + TwipsPerPixel - 1) / TwipsPerPixel,
            (area.Height + TwipsPerPixel - 1) / TwipsPerPixel};
}

// The wheel over the picture moves the bars: the upright one, or with Alt or a sidewards turn the other.
class WheelToBars : public QObject {
public:
    WheelToBars(QWidget* picture, QScrollBar* sidewards, QScrollBar* upright)
        : QObject(picture), sidewards_(sidewards), upright_(upright) {
        picture->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::Wheel) return false;
        const QPoint turn = static_cast<QWheelEvent*>(event)->angleDelta();
        QCoreApplication::sendEvent(qAbs(turn.x()) > qAbs(turn.y()) ? sidewards_ : upright_, event);
        return true;
    }

private:
    QScrollBar* sidewards_;
    QScrollBar* upright_;
};

QScrollBar* AddBar(ChildFace& face, const ChildContext& context, Qt::Orientation orientation,
                   ScrollBar& control, const Area& area, std::function<void()> change) {
    auto* bar = new QScrollBar(orientation, face.widget());
    bar->setFocusPolicy(Qt::StrongFocus);
    face.Binder().Plain(bar, control, orientation == Qt::Horizontal ? "Sidewards" : "Up and down");
    QObject::connect(bar, &QScrollBar::valueChanged, bar, [&context, &control, change](int value) {
        control.Value = value;
        context.dispatch.Run(change);
    });
    face.Binder().Also([bar, &control, &area] {
        const QSignalBlocker blocker(bar);
        bar->setGeometry(PlaceOf(area));
        bar->setRange(0, control.Max);
        bar->setSingleStep(control.SmallChange);
        bar->setPageStep(control.LargeChange);
        bar->setValue(control.Value);
    });
    return bar;
}

void LayOut(ChildFace& face, frmBMP& window, const ChildContext& context) {
    auto& binder = face.Binder();
    auto* picture = new PictureWidget(window.Bmp, PictureWidget::Kind::Bitmap, face.widget());
    binder.Plain(picture, window.Bmp, "Bitmap of a diagram");
    binder.Also([picture, &window] {
        if (const QRect place = PlaceOf(window.BmpArea); picture->geometry() != place)
            picture->setGeometry(place);
        picture->Mirror();
    });
    auto* sidewards = AddBar(face, context, Qt::Horizontal, window.HScroll1, window.HScroll1Area,
                             [&window] { window.HScroll1_Change(); });
    auto* upright = AddBar(face, context, Qt::Vertical, window.VScroll1, window.VScroll1Area,
                           [&window] { window.VScroll1_Change(); });
    auto* corner = new QWidget(face.widget());
    corner->setAutoFillBackground(true);
    binder.Plain(corner, window.Picture1);
    binder.Also([corner, &window] { corner->setGeometry(PlaceOf(window.Picture1Area)); });
    binder.Button(new QPushButton(face.widget()), window.Command4, {});
    new WheelToBars(picture, sidewards, upright);
    picture->setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(picture, &QWidget::customContextMenuRequested, picture,
                     [picture, context](QPoint place) {
                         context.dispatch.Run([&] {
                             context.popUp(std::string(DocumentKind::Bitmap), picture->mapToGlobal(place));
                         });
                     });
    window.SetFocus(window.VScroll1);
}

const FaceOfChild<frmBMP> registered(LayOut);

} // namespace

} // namespace dorvan
