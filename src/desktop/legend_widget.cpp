#include "desktop/legend_widget.h"

#include "desktop/qt_text.h"
#include "desktop/tile_pictures.h"

#include <QPainter>
#include <QStringList>

#include <algorithm>

namespace dorvan {

namespace {

constexpr int Gap = 4;       // pixels between a symbol and its text
constexpr int EntryGap = 10; // between two entries

} // namespace

LegendWidget::LegendWidget(QWidget* parent) : QWidget(parent) {
    setObjectName("StatusLegend");
    setAccessibleName("Legend");
    hide();
}

void LegendWidget::Show(std::vector<LegendEntry> entries) {
    if (entries == entries_) return;
    entries_ = std::move(entries);
    QStringList spoken;
    for (const auto& entry : entries_) spoken << ToQt(DescribeTile(entry.Symbol)) + ": " + ToQt(entry.Text);
    setAccessibleDescription(spoken.join(", "));
    setToolTip(spoken.join("\n"));
    setVisible(!entries_.empty());
    updateGeometry();
    update();
}

int LegendWidget::WidthOf(const LegendEntry& entry) const {
    return TileSide + Gap + fontMetrics().horizontalAdvance(ToQt(entry.Text)) + EntryGap;
}

QSize LegendWidget::sizeHint() const {
    int width = 0;
    for (const auto& entry : entries_) width += WidthOf(entry);
    return {width, std::max(TileSide + 2, fontMetrics().height())};
}

void LegendWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const GridPictures pictures = TilePictures();
    int left = 0;
    for (const auto& entry : entries_) {
        painter.drawImage(left, (height() - TileSide) / 2,
                          pictures.image(static_cast<std::uint8_t>(entry.Symbol), TileSide));
        painter.drawText(QRect(left + TileSide + Gap, 0, width(), height()), Qt::AlignVCenter,
                         ToQt(entry.Text));
        left += WidthOf(entry);
    }
}

} // namespace dorvan
