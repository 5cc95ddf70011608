#include "desktop/picture_widget.h"

#include "painting/raster_player.h"

#include <QPaintEvent>
#include <QPainter>

namespace dorvan {

PictureWidget::PictureWidget(const Picture& picture, Kind kind, QWidget* parent)
    : QWidget(parent), picture_(picture), kind_(kind) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void PictureWidget::Mirror() {
    if (mirrored_ == picture_.Revision()) return;
    mirrored_ = picture_.Revision();
    update();
}

double PictureWidget::WantedScale() const { return kind_ == Kind::Graph ? devicePixelRatioF() : 1.0; }

void PictureWidget::Draw() {
    if (drawn_ == picture_.Revision() && scale_ == WantedScale()) return;
    drawn_ = picture_.Revision();
    scale_ = WantedScale();
    image_ = painting::ImageOf(picture_.Shown(), scale_);
}

void PictureWidget::paintEvent(QPaintEvent* event) {
    Draw();
    QPainter painter(this);
    const QRect exposed = event->rect();
    painter.fillRect(exposed, Qt::white);
    const QRectF source(exposed.x() * scale_, exposed.y() * scale_, exposed.width() * scale_,
                        exposed.height() * scale_);
    painter.drawImage(QRectF(exposed), image_, source);
}

} // namespace dorvan
