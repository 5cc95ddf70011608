#include "desktop/grid_widget.h"

#include "desktop/bindings.h"
#include "desktop/grid_accessibility.h"
#include "desktop/qt_text.h"
#include "platform/keys.h"
#include "platform/twips.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <cmath>

namespace dorvan {

namespace {

constexpr int TextMargin = 3; // pixels at a ratio of 1
constexpr float MarkedShare = 0.3F;
constexpr int NarrowestElidedCell = 40; // in narrower ones three dots would take all the room

int DevicePixels(int twips, double ratio) { return int(std::lround(twips * ratio / TwipsPerPixel)); }

QColor Blend(const QColor& one, const QColor& other, double share) {
    return QColor::fromRgbF(float(one.redF() * (1 - share) + other.redF() * share),
                            float(one.greenF() * (1 - share) + other.greenF() * share),
                            float(one.blueF() * (1 - share) + other.blueF() * share));
}

// Which of `count` pixels the place of a line of `side` pixels shows. The second half mirrors the first, so
// that a symmetric picture stays so where the scale is no whole number.
int SourcePixel(int place, int side, int count) {
    if (place >= side / 2) return count - 1 - (2 * (side - 1 - place) + 1) * count / (2 * side);
    return (2 * place + 1) * count / (2 * side);
}

// Enlarged without any new colour: each pixel becomes one or more.
QImage ScaledBySpreading(const QImage& image, double ratio) {
    if (image.isNull()) return image;
    QImage scaled(int(std::lround(image.width() * ratio)), int(std::lround(image.height() * ratio)),
                  QImage::Format_RGB32);
    for (int y = 0; y < scaled.height(); ++y)
        for (int x = 0; x < scaled.width(); ++x)
            scaled.setPixel(x, y,
                            image.pixel(SourcePixel(x, scaled.width(), image.width()),
                                        SourcePixel(y, scaled.height(), image.height())));
    return scaled;
}

Qt::Alignment ToQt(Alignment alignment) {
    switch (alignment) {
    case Alignment::Right: return Qt::AlignRight | Qt::AlignVCenter;
    case Alignment::Centre: return Qt::AlignCenter;
    default: return Qt::AlignLeft | Qt::AlignVCenter;
    }
}

// The number of a column of tiles is one digit wider than the column in some fonts: it is drawn narrower
// then, and does not touch its neighbours.
class NarrowedFont {
public:
    NarrowedFont(QPainter& painter, const QString& text, int room)
        : painter_(painter), font_(painter.font()) {
        const int width = painter.fontMetrics().horizontalAdvance(text);
        if (room >= NarrowestElidedCell || width < room - 1) return;
        QFont narrow = font_;
        narrow.setStretch(std::max(50, 100 * (room - 2) / std::max(1, width)));
        painter_.setFont(narrow);
        changed_ = true;
    }
    ~NarrowedFont() {
        if (changed_) painter_.setFont(font_);
    }
    NarrowedFont(const NarrowedFont&) = delete;
    NarrowedFont& operator=(const NarrowedFont&) = delete;

private:
    QPainter& painter_;
    QFont font_;
    bool changed_ = false;
};

} // namespace

int GridWidget::Axis::Start(int cell) const {
    if (cell < fixed) return edges[std::size_t(cell)];
    return FixedEnd() + edges[std::size_t(cell)] - edges[std::size_t(first)];
}

int GridWidget::Axis::CellAt(int place) const {
    if (place < 0 || Count() <= 0) return -1;
    const int unscrolled = place < FixedEnd() ? place : place - FixedEnd() + edges[std::size_t(first)];
    const auto behind = std::upper_bound(edges.begin(), edges.end(), unscrolled);
    return behind == edges.end() ? -1 : int(behind - edges.begin()) - 1;
}

int GridWidget::Axis::LastFirst(int room) const {
    int cell = Count();
    while (cell > fixed && edges.back() - edges[std::size_t(cell) - 1] <= room - FixedEnd()) --cell;
    return std::clamp(cell, fixed, std::max(fixed, Count() - 1));
}

int GridWidget::Axis::CellsIn(int room) const {
    int cells = 0;
    while (first + cells < Count() && Start(first + cells) + Size(first + cells) <= room) ++cells;
    return std::max(1, cells);
}

int GridWidget::Axis::FirstThatShows(int cell, int room) const {
    if (cell < fixed) return first;
    if (cell < first) return cell;
    int shown = first;
    while (shown < cell && FixedEnd() + edges[std::size_t(cell) + 1] - edges[std::size_t(shown)] > room)
        ++shown;
    return shown;
}

struct GridWidget::CellPaint {
    QPainter& painter;
    QPen gridPen;
    QColor fixedBack;
    int margin;
    QRect rect; // of the cell, in device pixels
};

GridWidget::GridWidget(Grid& grid, EventDispatch& dispatch, QWidget* parent)
    : QAbstractScrollArea(parent), grid_(&grid), dispatch_(dispatch) {
    InstallGridAccessibility();
    setFocusPolicy(Qt::TabFocus); // a click takes the focus by its own hand
    setFrameShape(QFrame::NoFrame);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_InputMethodEnabled); // see GridTyping
}

void GridWidget::SetPictures(GridPictures pictures) {
    pictures_ = std::move(pictures);
    scaledTiles_.clear();
    viewport()->update();
}

GridWidget::Axis GridWidget::RowAxis() const {
    Axis axis;
    axis.edges.assign(1, 0);
    for (int row = 0; row < grid_->Rows(); ++row)
        axis.edges.push_back(axis.edges.back() + DevicePixels(grid_->RowHeight(row), Ratio()));
    axis.fixed = std::min(grid_->FixedRows, grid_->Rows());
    axis.first = std::clamp(rows_.first, axis.fixed, std::max(axis.fixed, grid_->Rows() - 1));
    return axis;
}

GridWidget::Axis GridWidget::ColumnAxis() const {
    Axis axis;
    axis.edges.assign(1, 0);
    for (int column = 0; column < grid_->Columns(); ++column)
        axis.edges.push_back(axis.edges.back() + DevicePixels(grid_->ColumnWidth(column), Ratio()));
    axis.fixed = std::min(grid_->FixedColumns, grid_->Columns());
    axis.first = std::clamp(columns_.first, axis.fixed, std::max(axis.fixed, grid_->Columns() - 1));
    return axis;
}

void GridWidget::Measure() {
    if (!grid_) return;
    if (measuredRatio_ != Ratio()) scaledTiles_.clear();
    measuredRatio_ = Ratio();
    rows_ = RowAxis();
    columns_ = ColumnAxis();
    UpdateScrollBars();
}

void GridWidget::UpdateScrollBars() {
    const auto update = [](QScrollBar* bar, const Axis& axis, int room) {
        bar->setRange(0, std::max(0, axis.LastFirst(room) - axis.fixed));
        bar->setPageStep(axis.Count() > axis.fixed ? axis.CellsIn(room) : 1);
        bar->setSingleStep(1);
    };
    update(verticalScrollBar(), rows_, int(viewport()->height() * Ratio()));
    update(horizontalScrollBar(), columns_, int(viewport()->width() * Ratio()));
}

void GridWidget::Mirror() {
    if (!grid_) return;
    if (revision_ == grid_->Revision() && measuredRatio_ == Ratio()) return;
    revision_ = grid_->Revision();
    Measure();
    const QPoint current(grid_->Column(), grid_->Row());
    if (current != shownCurrent_) {
        // A document opens at its upper left corner, wherever its filling left the current cell.
        const bool opening = shownCurrent_.x() < 0;
        shownCurrent_ = current;
        leftBehind_ = opening || grid_->Passed() || (follows && !follows());
        if (!leftBehind_) FollowCurrent();
        TellCurrent();
    }
    movedByHand_ = false;
    viewport()->update();
}

void GridWidget::FollowCurrent() {
    const bool sideways = followsRulesSideways || movedByHand_;
    leftBehind_ = !sideways;
    if (grid_->Rows() > 0 && grid_->Columns() > 0)
        ScrollTo(grid_->Row(), sideways ? grid_->Column() : columns_.first);
}

void GridWidget::ScrollTo(int row, int column) {
    verticalScrollBar()->setValue(rows_.FirstThatShows(row, int(viewport()->height() * Ratio())) -
                                  rows_.fixed);
    horizontalScrollBar()->setValue(columns_.FirstThatShows(column, int(viewport()->width() * Ratio())) -
                                    columns_.fixed);
}

// The user's keys go on from what is seen, where a rule has left the current cell out of sight.
void GridWidget::StartInSight() {
    if (!std::exchange(leftBehind_, false) || grid_->Rows() == 0 || grid_->Columns() == 0) return;
    const bool rowHidden =
        rows_.Scrolled(grid_->Row()) || rows_.Start(grid_->Row()) >= int(viewport()->height() * Ratio());
    const bool columnHidden = columns_.Scrolled(grid_->Column()) ||
                              columns_.Start(grid_->Column()) >= int(viewport()->width() * Ratio());
    if (rowHidden || columnHidden)
        grid_->SetCurrent(rowHidden ? rows_.first : grid_->Row(),
                          columnHidden ? columns_.first : grid_->Column());
}

void GridWidget::TellCurrent() {
    if (!QAccessible::isActive() || !hasFocus()) return;
    QAccessibleEvent event(this, QAccessible::Focus);
    event.setChild(grid_->Row() * grid_->Columns() + grid_->Column());
    QAccessible::updateAccessibility(&event);
}

QRect GridWidget::CellRect(int row, int column) const {
    if (!grid_ || row < 0 || column < 0 || row >= rows_.Count() || column >= columns_.Count() ||
        rows_.Scrolled(row) || columns_.Scrolled(column))
        return {};
    const double ratio = Ratio();
    const QRectF rect(columns_.Start(column) / ratio, rows_.Start(row) / ratio, columns_.Size(column) / ratio,
                      rows_.Size(row) / ratio);
    return rect.toAlignedRect() & viewport()->rect();
}

QPoint GridWidget::CellAt(QPoint place) const {
    return {columns_.CellAt(int(place.x() * Ratio())), rows_.CellAt(int(place.y() * Ratio()))};
}

QString GridWidget::CellReading(int row, int column) const {
    if (!grid_ || row < 0 || row >= grid_->Rows() || column < 0 || column >= grid_->Columns()) return {};
    if (const auto& text = grid_->Text(row, column); !text.empty()) return dorvan::ToQt(text).trimmed();
    const auto picture = grid_->Picture(row, column);
    return picture != 0 && pictures_.description ? pictures_.description(picture) : QString();
}

const QImage& GridWidget::ScaledTile(std::uint8_t picture) const {
    const auto found = scaledTiles_.find(picture);
    if (found != scaledTiles_.end()) return *found;
    const QImage image = pictures_.image ? pictures_.image(picture) : QImage();
    return *scaledTiles_.insert(picture, ScaledBySpreading(image, Ratio()));
}

void GridWidget::PaintCell(CellPaint& paint, int row, int column) const {
    QPainter& painter = paint.painter;
    const QRect& rect = paint.rect;
    const bool fixed = row < grid_->FixedRows || column < grid_->FixedColumns;
    const auto picture = grid_->Picture(row, column);
    // A tile has its own colours in every theme, and so has the spare pixel around it.
    painter.fillRect(rect, fixed          ? paint.fixedBack
                           : picture != 0 ? QColor(Qt::white)
                                          : palette().color(QPalette::Base));
    if (picture != 0)
        if (const QImage& tile = ScaledTile(picture); !tile.isNull())
            painter.drawImage(rect.left() + (rect.width() - tile.width()) / 2,
                              rect.top() + (rect.height() - tile.height()) / 2, tile);
    if (const auto& text = grid_->Text(row, column); !text.empty()) {
        const QRect inner =
            rect.width() < 4 * paint.margin ? rect : rect.adjusted(paint.margin, 0, -paint.margin, 0);
        QString shown = dorvan::ToQt(text);
        if (rect.width() >= NarrowestElidedCell)
            shown = painter.fontMetrics().elidedText(shown, Qt::ElideRight, inner.width());
        const Alignment alignment =
            row < grid_->FixedRows ? grid_->HeaderAlignment(column) : grid_->ColumnAlignment(column);
        painter.setPen(palette().color(fixed ? QPalette::ButtonText : QPalette::Text));
        const NarrowedFont narrowed(painter, shown, rect.width());
        painter.drawText(inner, int(ToQt(alignment)) | Qt::TextSingleLine | Qt::TextDontClip, shown);
    }
    if (grid_->GridLines) {
        painter.setPen(paint.gridPen);
        painter.drawLine(rect.topRight(), rect.bottomRight());
        painter.drawLine(rect.bottomLeft(), rect.bottomRight());
    }
}

void GridWidget::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    if (!grid_ || measuredRatio_ != Ratio()) {
        painter.fillRect(event->rect(), palette().base());
        if (grid_)
            QMetaObject::invokeMethod(
                this, [this] { Mirror(); }, Qt::QueuedConnection);
        return;
    }
    // From here on a unit is a device pixel, also where the viewport begins between two of them.
    const double ratio = Ratio();
    const QTransform device = painter.deviceTransform();
    painter.setTransform(QTransform::fromTranslate(std::round(device.dx()) - device.dx(),
                                                   std::round(device.dy()) - device.dy()) *
                         QTransform::fromScale(1 / ratio, 1 / ratio));
    QFont font = this->font();
    font.setPixelSize(std::max(1, int(std::lround(grid_->FontSize * logicalDpiY() / 72.0 * ratio))));
    painter.setFont(font);
    const QColor base = palette().color(QPalette::Base);
    const QColor text = palette().color(QPalette::Text);
    CellPaint paint{painter,
                    QPen(Blend(base, text, 0.22), std::max(1, int(ratio))),
                    Blend(palette().color(QPalette::Button), text, 0.04),
                    int(std::lround(TextMargin * ratio)),
                    {}};
    const QRect exposed(int(std::floor(event->rect().left() * ratio)),
                        int(std::floor(event->rect().top() * ratio)),
                        int(std::ceil(event->rect().width() * ratio)) + 2,
                        int(std::ceil(event->rect().height() * ratio)) + 2);
    painter.fillRect(exposed, Blend(base, palette().color(QPalette::Window), 0.5));
    const auto shown = [](const Axis& axis, int from, int to, const auto& visit) {
        for (int cell = 0; cell < axis.Count(); ++cell) {
            if (cell == axis.fixed) cell = axis.first;
            if (cell >= axis.Count() || axis.Start(cell) > to) break;
            if (axis.Start(cell) + axis.Size(cell) > from) visit(cell);
        }
    };
    shown(rows_, exposed.top(), exposed.bottom(), [&](int row) {
        shown(columns_, exposed.left(), exposed.right(), [&](int column) {
            paint.rect =
                QRect(columns_.Start(column), rows_.Start(row), columns_.Size(column), rows_.Size(row));
            PaintCell(paint, row, column);
        });
    });
    PaintMarked(painter);
    const int row = grid_->Row();
    const int column = grid_->Column();
    if (row >= rows_.Count() || column >= columns_.Count() || rows_.Scrolled(row) ||
        columns_.Scrolled(column))
        return;
    const int width = std::max(1, int(std::lround((hasFocus() ? 2 : 1) * ratio)));
    painter.setPen(Qt::NoPen);
    painter.setBrush(
        palette().color(hasFocus() ? QPalette::Active : QPalette::Inactive, QPalette::Highlight));
    const QRect cell(columns_.Start(column), rows_.Start(row), columns_.Size(column), rows_.Size(row));
    painter.drawRect(cell.left(), cell.top(), cell.width(), width);
    painter.drawRect(cell.left(), cell.bottom() + 1 - width, cell.width(), width);
    painter.drawRect(cell.left(), cell.top(), width, cell.height());
    painter.drawRect(cell.right() + 1 - width, cell.top(), width, cell.height());
}

// A veil over the marked cells, in device pixels.
void GridWidget::PaintMarked(QPainter& painter) const {
    const CellRange marked = grid_->Marked();
    if (marked.IsOneCell() && marked.Has(grid_->Row(), grid_->Column())) return;
    QColor veil = palette().color(QPalette::Highlight);
    veil.setAlphaF(MarkedShare);
    for (int row = marked.Top; row <= marked.Bottom; ++row) {
        if (rows_.Scrolled(row)) continue;
        for (int column = marked.Left; column <= marked.Right; ++column)
            if (!columns_.Scrolled(column))
                painter.fillRect(columns_.Start(column), rows_.Start(row), columns_.Size(column),
                                 rows_.Size(row), veil);
    }
}

void GridWidget::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    if (grid_) Measure();
}

void GridWidget::scrollContentsBy(int dx, int dy) {
    if (!grid_ || rows_.Count() < 1 || columns_.Count() < 1) return;
    const Axis oldRows = rows_;
    const Axis oldColumns = columns_;
    rows_.first = rows_.fixed + verticalScrollBar()->value();
    columns_.first = columns_.fixed + horizontalScrollBar()->value();
    const double ratio = Ratio();
    if (ratio != std::floor(ratio) || (dx != 0 && dy != 0)) {
        viewport()->update();
        return;
    }
    const int whole = int(ratio);
    if (dy != 0) {
        const int moved = oldRows.edges[std::size_t(oldRows.first)] - rows_.edges[std::size_t(rows_.first)];
        viewport()->scroll(0, moved / whole, viewport()->rect().adjusted(0, rows_.FixedEnd() / whole, 0, 0));
    }
    if (dx != 0) {
        const int moved =
            oldColumns.edges[std::size_t(oldColumns.first)] - columns_.edges[std::size_t(columns_.first)];
        viewport()->scroll(moved / whole, 0,
                           viewport()->rect().adjusted(columns_.FixedEnd() / whole, 0, 0, 0));
    }
}

void GridWidget::Forward(const std::function<void()>& handler) {
    if (grid_) dispatch_.Run(handler);
}

void GridWidget::ForwardLater(std::function<void()> handler) {
    dispatch_.Later(this, [this, run = std::move(handler)] {
        if (grid_) run();
    });
}

void GridWidget::MakeCurrent(int row, int column) {
    setFocus(Qt::OtherFocusReason);
    ForwardLater([this, row, column] {
        movedByHand_ = true;
        grid_->Press(row, column);
    });
    dispatch_.RunWaiting();
}

int GridWidget::PageRows() const {
    return std::max(1, rows_.CellsIn(int(viewport()->height() * Ratio())) - 1);
}

bool GridWidget::event(QEvent* event) {
    // Esc and the like are the grid's own while it has the focus, not a shortcut's.
    if (event->type() == QEvent::ShortcutOverride &&
        CharacterOf(static_cast<QKeyEvent&>(*event)) != key::None) {
        event->accept();
        return true;
    }
    return QAbstractScrollArea::event(event);
}

void GridWidget::keyPressEvent(QKeyEvent* event) {
    if (!grid_) return;
    int keyCode = KeyCodeOf(*event);
    if (keyCode != key::None && events.keyDown) {
        Forward([&] { events.keyDown(keyCode); });
        if (keyCode == key::None) return;
    }
    if (int character = CharacterOf(*event); character != key::None && events.keyPress) {
        Forward([&] { events.keyPress(character); });
        if (character == key::None) return;
    }
    bool moved = false;
    const bool control = event->modifiers() & Qt::ControlModifier;
    Forward([&] {
        movedByHand_ = true;
        if (keyCode >= key::PageUp && keyCode <= key::Down) StartInSight();
        moved = grid_->MoveByKey(keyCode, control, PageRows());
    });
    if (!moved) event->ignore();
}

// The field that loses the focus hears of it first, and still sees the old current cell; the click waits, and
// takes place while that field's owner lets events run.
void GridWidget::mousePressEvent(QMouseEvent* event) {
    setFocus(Qt::MouseFocusReason);
    ForwardLater([this, place = event->position().toPoint()] {
        const QPoint cell = CellAt(place);
        movedByHand_ = true;
        grid_->Press(cell.y(), cell.x());
    });
    if (event->button() == Qt::RightButton)
        ForwardLater([this, place = event->globalPosition().toPoint()] {
            if (events.rightButton) events.rightButton(place);
        });
    dispatch_.RunWaiting();
}

void GridWidget::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && events.doubleClick) Forward(events.doubleClick);
}

void GridWidget::focusInEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusInEvent(event);
    viewport()->update();
    if (grid_) TellCurrent();
}

void GridWidget::focusOutEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusOutEvent(event);
    viewport()->update();
}

void GridWidget::changeEvent(QEvent* event) {
    QAbstractScrollArea::changeEvent(event);
    viewport()->update();
}

} // namespace dorvan
