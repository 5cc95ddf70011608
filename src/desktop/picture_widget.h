#pragma once

#include "platform/controls.h"

#include <QImage>
#include <QWidget>

namespace dorvan {

// Shows the drawing of a picture control, on white paper in every theme. A graph is drawn at the screen's own
// density; a bitmap keeps its pixels, which a denser screen shows larger.
class PictureWidget : public QWidget {
public:
    enum class Kind { Graph, Bitmap };

    PictureWidget(const Picture& picture, Kind kind, QWidget* parent);

    void Mirror();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    double WantedScale() const;
    void Draw();

    const Picture& picture_;
    Kind kind_;
    QImage image_;
    std::uint64_t mirrored_ = 0; // revisions of the picture
    std::uint64_t drawn_ = 0;
    double scale_ = 0; // of image_
};

} // namespace dorvan
