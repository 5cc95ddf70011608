#include "desktop/grid_widget.h"

#include "desktop/bindings.h"
#include "desktop/grid_accessibility.h"
#include "desktop/grid_companion.h"
#include "desktop/grid_marks.h"
#include "desktop/grid_mosaic.h"
#include "desktop/qt_text.h"
#include "platform/keys.h"
#include "platform/twips.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace dorvan {

namespace {

constexpr int TextMargin = 3;        // pixels at a ratio of 1
constexpr double StandardFont = 9;   // points of the application's font that leave a grid's sizes as they are
constexpr double SmallestFont = 0.7; // of the grid's own; no smaller where the rows are low
constexpr double LineOfFont = 1.25;  // a line's height of the font's size
constexpr int DigitsOfColumn = 3;
constexpr int NumberGap = 4;        // pixels at a ratio of 1, between the numbers of narrow columns
constexpr double EdgeShare = 0.5;   // of the text's colour in that of a diagram's edge
constexpr int ScrollStep = 17;      // pixels at a ratio of 1
constexpr float MarkedShare = 0.3F; // of the highlight over what is marked

int DevicePixels(double twips, double ratio) { return int(std::lround(twips * ratio / TwipsPerPixel)); }

// On each side of a text, in device pixels; none in the narrow columns of a diagram.
int TextMarginIn(const QRect& cell, double ratio) {
    const int margin = int(std::lround(TextMargin * ratio));
    return cell.width() < 4 * margin + int(10 * ratio) ? 0 : margin;
}

Qt::Alignment ToQt(Alignment alignment) {
    switch (alignment) {
    case Alignment::Right: return Qt::AlignRight | Qt::AlignVCenter;
    case Alignment::Centre: return Qt::AlignCenter;
    default: return Qt::AlignLeft | Qt::AlignVCenter;
    }
}

// The cells of an axis that lie between two places, the fixed ones first.
template <class Axis, class Visit> void VisitShown(const Axis& axis, int from, int to, const Visit& visit) {
    for (int cell = 0; cell < axis.Count(); ++cell) {
        if (cell == axis.fixed) cell = axis.first;
        if (cell >= axis.Count() || axis.Start(cell) > to) break;
        if (axis.Start(cell) + axis.Size(cell) > from) visit(cell);
    }
}

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

int GridWidget::Axis::FirstThatPuts(int cell, int place) const {
    if (cell < fixed) return first;
    const double middle = FixedEnd() + edges[std::size_t(cell)] + Size(cell) / 2.0;
    int best = fixed;
    const auto distance = [&](int candidate) {
        return std::abs(middle - edges[std::size_t(candidate)] - place);
    };
    for (int candidate = fixed; candidate <= cell; ++candidate)
        if (distance(candidate) < distance(best)) best = candidate;
    return best;
}

struct GridWidget::CellPaint {
    QPainter& painter;
    QFont font;
    QPen gridPen;
    QColor fixedBack;
    QRect rect; // of the cell, in device pixels
};

// A cell and where its middle lies in the viewport, in shares of it; a change of zoom keeps it there.
struct GridWidget::Anchor {
    QPoint cell;  // x column, y row
    QPoint place; // in device pixels
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

GridWidget::~GridWidget() {
    for (auto* child : QObjectList(children()))
        if (dynamic_cast<GridCompanion*>(child)) delete child;
}

void GridWidget::SetPictures(GridPictures pictures) {
    pictures_ = std::move(pictures);
    sidedPictures_.clear();
    Measure();
    viewport()->update();
}

void GridWidget::SetLabelColumns(int columns) {
    labelColumns_ = columns;
    Measure();
}

// Who has a larger font for all programs has it here too.
double GridWidget::TextScale() const {
    const double points = QFontInfo(font()).pointSizeF();
    return points > 0 ? std::clamp(points / StandardFont, 0.8, 4.0) : 1;
}

// Where the rows keep their height, the text gives way.
QFont GridWidget::TextFont() const {
    const double own = grid_->FontSize * logicalDpiY() / 72.0 * Ratio();
    double size = own * TextScale();
    if (ShowsPictures() && grid_->Rows() > grid_->FixedRows)
        size = std::min(size, std::max(own * SmallestFont, rows_.Size(grid_->FixedRows) / LineOfFont));
    QFont font = this->font();
    font.setPixelSize(std::max(1, int(std::lround(size))));
    return font;
}

double GridWidget::TwipsOfPixel(int column) const { return TwipsPerPixel / WidthScale(column); }

double GridWidget::WidthScale(int column) const {
    if (ShowsPictures() && column >= labelColumns_) return Zoom();
    return std::max(1.0, TextScale());
}

double GridWidget::HeightScale(int row) const {
    if (ShowsPictures() && row >= grid_->FixedRows) return Zoom();
    return std::max(1.0, TextScale());
}

GridWidget::Axis GridWidget::RowAxis() const {
    Axis axis;
    axis.edges.assign(1, 0);
    for (int row = 0; row < grid_->Rows(); ++row)
        axis.edges.push_back(axis.edges.back() +
                             std::max(1, DevicePixels(grid_->RowHeight(row) * HeightScale(row), Ratio())));
    axis.fixed = std::min(grid_->FixedRows, grid_->Rows());
    axis.first = std::clamp(rows_.first, axis.fixed, std::max(axis.fixed, grid_->Rows() - 1));
    return axis;
}

GridWidget::Axis GridWidget::ColumnAxis() const {
    Axis axis;
    axis.edges.assign(1, 0);
    for (int column = 0; column < grid_->Columns(); ++column)
        axis.edges.push_back(
            axis.edges.back() +
            std::max(1, DevicePixels(grid_->ColumnWidth(column) * WidthScale(column), Ratio())));
    axis.fixed = std::min(grid_->FixedColumns, grid_->Columns());
    const int labels = std::min(labelColumns_, grid_->Columns() - 1);
    if (labels > axis.fixed && 2 * axis.edges[std::size_t(labels)] <= maximumViewportSize().width() * Ratio())
        axis.fixed = labels;
    axis.first = std::clamp(columns_.first - columns_.fixed + axis.fixed, axis.fixed,
                            std::max(axis.fixed, grid_->Columns() - 1));
    return axis;
}

void GridWidget::Measure() {
    if (!grid_) return;
    measuredRatio_ = Ratio();
    measuredZoom_ = Zoom();
    rows_ = RowAxis();
    columns_ = ColumnAxis();
    if (ShowsPictures() && grid_->Rows() > grid_->FixedRows && grid_->Columns() > labelColumns_) {
        const int height = rows_.Size(grid_->FixedRows);
        const int width = columns_.Size(labelColumns_);
        if (const int side = PictureSide(std::min(height, width)); side != pictureSide_) {
            pictureSide_ = side;
            sidedPictures_.clear();
        }
        const QFont font = TextFont();
        rowLabelStep_ = LabelStep(height, int(std::lround(font.pixelSize() * 1.1)));
        const int digits = grid_->Columns() - labelColumns_ > 99 ? DigitsOfColumn : DigitsOfColumn - 1;
        columnLabelStep_ =
            LabelStep(width, QFontMetrics(font).horizontalAdvance(QString(digits, '0')) * 4 / 5 + 2);
    }
    UpdateScrollBars();
}

// The room is told from the one without bars: each bar that is shown takes room from what the other one
// scrolls, and two that went by the room of the moment could call and send each other away for ever.
void GridWidget::UpdateScrollBars() {
    auto* down = verticalScrollBar();
    auto* across = horizontalScrollBar();
    const auto pixels = [this](int room) { return int(room * Ratio()); };
    const auto scrolls = [](const Axis& axis, int room) { return axis.LastFirst(room) > axis.fixed; };
    const QSize whole = maximumViewportSize();
    QSize room = whole;
    for (int pass = 0; pass < 2; ++pass) { // the second bar may call for the first
        if (scrolls(rows_, pixels(room.height()))) room.setWidth(whole.width() - down->sizeHint().width());
        if (scrolls(columns_, pixels(room.width())))
            room.setHeight(whole.height() - across->sizeHint().height());
    }
    const auto update = [this](QScrollBar* bar, const Axis& axis, int length) {
        bar->setRange(0, std::max(0, axis.LastFirst(length) - axis.fixed));
        bar->setPageStep(axis.Count() > axis.fixed ? axis.CellsIn(length) : 1);
        const int cell = axis.Count() > axis.fixed ? axis.Size(axis.fixed) : 1;
        bar->setSingleStep(std::max(1, int(std::lround(ScrollStep * Ratio() / cell))));
    };
    update(down, rows_, pixels(room.height()));
    update(across, columns_, pixels(room.width()));
}

void GridWidget::Mirror() {
    if (!grid_) return;
    const bool zoomed = measuredZoom_ != Zoom();
    if (revision_ == grid_->Revision() && measuredRatio_ == Ratio() && !zoomed) return;
    revision_ = grid_->Revision();
    if (zoomed)
        TakeZoom();
    else
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

GridWidget::Anchor GridWidget::AnchorOfZoom() const {
    const QRect body = Body();
    const auto at = [this](QPoint place) -> Anchor {
        return {{columns_.CellAt(place.x()), rows_.CellAt(place.y())}, place};
    };
    if (zoomAnchor) return at(*zoomAnchor * Ratio());
    const QPoint current = CellPlace(grid_->Row(), grid_->Column()).center();
    if (body.contains(current) && !rows_.Scrolled(grid_->Row()) && !columns_.Scrolled(grid_->Column()))
        return {{grid_->Column(), grid_->Row()}, current};
    return at(body.center());
}

// What lies behind the last cell or under a label keeps nothing in place.
void GridWidget::TakeZoom() {
    const Anchor anchor = AnchorOfZoom();
    Measure();
    if (anchor.cell.x() >= columns_.fixed)
        horizontalScrollBar()->setValue(columns_.FirstThatPuts(anchor.cell.x(), anchor.place.x()) -
                                        columns_.fixed);
    if (anchor.cell.y() >= rows_.fixed)
        verticalScrollBar()->setValue(rows_.FirstThatPuts(anchor.cell.y(), anchor.place.y()) - rows_.fixed);
    viewport()->update();
}

QRect GridWidget::CellPlace(int row, int column) const {
    return {columns_.Start(column), rows_.Start(row), columns_.Size(column), rows_.Size(row)};
}

QRect GridWidget::Body() const {
    return {QPoint(columns_.FixedEnd(), rows_.FixedEnd()),
            QPoint(int(viewport()->width() * Ratio()) - 1, int(viewport()->height() * Ratio()) - 1)};
}

QSize GridWidget::RoomBehindLabels() const {
    const QSizeF all = QSizeF(maximumViewportSize()) * Ratio();
    if (!grid_ || columns_.Count() < labelColumns_) return all.toSize();
    return {int(all.width()) - columns_.edges[std::size_t(labelColumns_)],
            int(all.height()) - rows_.FixedEnd()};
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

const QImage& GridWidget::SidedPicture(std::uint8_t picture) const {
    const auto found = sidedPictures_.find(picture);
    if (found != sidedPictures_.end()) return *found;
    return *sidedPictures_.insert(
        picture, pictures_.image(picture, pictureSide_).convertToFormat(QImage::Format_RGB32));
}

bool GridWidget::IsMarked(int row, int column) const {
    return (row < grid_->FixedRows && column == grid_->Column()) ||
           (column < std::max(grid_->FixedColumns, labelColumns_) && row == grid_->Row() &&
            row >= grid_->FixedRows);
}

QColor GridWidget::GroundOf(const CellPaint& paint, int row, int column) const {
    const bool fixed = row < grid_->FixedRows || column < grid_->FixedColumns;
    const QColor ground = fixed ? paint.fixedBack : palette().color(QPalette::Base);
    return IsMarked(row, column) ? MarkedHead(ground, palette()) : ground;
}

void GridWidget::PaintCell(CellPaint& paint, int row, int column) const {
    QPainter& painter = paint.painter;
    const QRect& rect = paint.rect;
    if (!ShowsPictures() || IsLabel(row, column)) painter.fillRect(rect, GroundOf(paint, row, column));
    if (!IsLabel(row, column) || (column < labelColumns_ ? rowLabelStep_ : columnLabelStep_) == 1)
        PaintText(paint, row, column);
    if (grid_->GridLines) {
        painter.setPen(paint.gridPen);
        painter.drawLine(rect.topRight(), rect.bottomRight());
        painter.drawLine(rect.bottomLeft(), rect.bottomRight());
    }
}

// Numbers of narrow columns keep a gap between each other.
FittedText GridWidget::FittedIn(const QRect& cell, const QFont& font, int row, int column) const {
    const int margin = TextMarginIn(cell, Ratio());
    const int room =
        margin > 0 ? cell.width() - 2 * margin : cell.width() - int(std::lround(NumberGap * Ratio()));
    return FitText(dorvan::ToQt(grid_->Text(row, column)), font, room);
}

bool GridWidget::IsCut(int row, int column) const {
    return !grid_->Text(row, column).empty() && FittedIn(CellPlace(row, column), TextFont(), row, column).Cut;
}

void GridWidget::PaintText(CellPaint& paint, int row, int column) const {
    if (grid_->Text(row, column).empty()) return;
    const int margin = TextMarginIn(paint.rect, Ratio());
    const FittedText fitted = FittedIn(paint.rect, paint.font, row, column);
    const Alignment alignment =
        row < grid_->FixedRows ? grid_->HeaderAlignment(column) : grid_->ColumnAlignment(column);
    const bool fixed = row < grid_->FixedRows || column < grid_->FixedColumns;
    paint.painter.setFont(fitted.Font);
    paint.painter.setPen(palette().color(fixed ? QPalette::ButtonText : QPalette::Text));
    paint.painter.drawText(paint.rect.adjusted(margin, 0, -margin, 0),
                           int(ToQt(alignment)) | Qt::TextSingleLine | Qt::TextDontClip, fitted.Shown);
}

void GridWidget::PaintPictures(QPainter& painter, const QRect& exposed) const {
    const QRect part = exposed & Body();
    if (part.isEmpty()) return;
    std::vector<MosaicLine> rows;
    std::vector<MosaicLine> columns;
    const auto add = [](std::vector<MosaicLine>& lines, const Axis& axis, int cell) {
        const int start = lines.empty() ? 0 : lines.back().Start + lines.back().Size;
        lines.push_back({cell, start, axis.Size(cell)});
    };
    VisitShown(rows_, part.top(), part.bottom(), [&](int row) {
        if (row >= rows_.fixed) add(rows, rows_, row);
    });
    VisitShown(columns_, part.left(), part.right(), [&](int column) {
        if (column >= columns_.fixed && column >= labelColumns_) add(columns, columns_, column);
    });
    if (rows.empty() || columns.empty()) return;
    const QRgb empty = palette().color(QPalette::Base).rgb();
    painter.drawImage(columns_.Start(columns.front().Cell), rows_.Start(rows.front().Cell),
                      MosaicOf(*grid_, rows, columns, empty, [this](std::uint8_t picture) -> const QImage& {
                          return SidedPicture(picture);
                      }));
}

// Where only every k-th head has a label, it takes the room of its neighbours; the current one always has
// one.
void GridWidget::PaintLabels(CellPaint& paint) const {
    const int margin = int(std::lround(Ratio()));
    const int line = QFontMetrics(paint.font).height();
    const auto labelled = [](int place, int current, int step, int size, int needed) {
        if (place == current) return true;
        return place % step == 0 && std::abs(place - current) * size >= needed;
    };
    paint.painter.save();
    if (rowLabelStep_ > 1) {
        paint.painter.setClipRect(QRect(0, rows_.FixedEnd(), columns_.FixedEnd(), Body().height()));
        VisitShown(rows_, 0, Body().bottom(), [&](int row) {
            if (row < rows_.fixed || !labelled(row, grid_->Row(), rowLabelStep_, rows_.Size(row), line))
                return;
            for (int column = 0; column < std::min(labelColumns_, columns_.fixed); ++column) {
                const QRect cell = CellPlace(row, column);
                paint.rect = QRect(cell.left(), cell.center().y() - line / 2, cell.width(), line);
                if (row == grid_->Row()) paint.painter.fillRect(paint.rect, GroundOf(paint, row, column));
                PaintText(paint, row, column);
            }
        });
    }
    if (columnLabelStep_ > 1) {
        paint.painter.setClipRect(QRect(columns_.FixedEnd(), 0, Body().width(), rows_.FixedEnd()));
        VisitShown(columns_, 0, Body().right(), [&](int column) {
            const int place = column - labelColumns_ + 1; // as it is written there
            const int current = grid_->Column() - labelColumns_ + 1;
            const int width = columnLabelStep_ * columns_.Size(column);
            if (column < columns_.fixed ||
                !labelled(place, current, columnLabelStep_, columns_.Size(column), width))
                return;
            const QRect cell = CellPlace(0, column);
            paint.rect = QRect(cell.center().x() - width / 2, cell.top(), width - margin, cell.height());
            if (place == current) paint.painter.fillRect(paint.rect, GroundOf(paint, 0, column));
            PaintText(paint, 0, column);
        });
    }
    paint.painter.restore();
}

// Where the cells end, and where they go on behind the labels.
void GridWidget::PaintEdge(CellPaint& paint) const {
    const int width = std::max(1, int(std::lround(Ratio())));
    const QColor colour = Blend(palette().color(QPalette::Base), palette().color(QPalette::Text), EdgeShare);
    const int right = columns_.Start(columns_.Count() - 1) + columns_.Size(columns_.Count() - 1);
    const int bottom = rows_.Start(rows_.Count() - 1) + rows_.Size(rows_.Count() - 1);
    paint.painter.fillRect(right, 0, width, bottom + width, colour);
    paint.painter.fillRect(0, bottom, right + width, width, colour);
    if (columns_.fixed > grid_->FixedColumns && columns_.first > columns_.fixed)
        paint.painter.fillRect(columns_.FixedEnd() - width, 0, width, bottom, colour);
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
    const QColor base = palette().color(QPalette::Base);
    const QColor text = palette().color(QPalette::Text);
    CellPaint paint{painter,
                    TextFont(),
                    QPen(Blend(base, text, 0.22), std::max(1, int(ratio))),
                    Blend(palette().color(QPalette::Button), text, 0.04),
                    {}};
    const QRect exposed(int(std::floor(event->rect().left() * ratio)),
                        int(std::floor(event->rect().top() * ratio)),
                        int(std::ceil(event->rect().width() * ratio)) + 2,
                        int(std::ceil(event->rect().height() * ratio)) + 2);
    painter.fillRect(exposed, Blend(base, palette().color(QPalette::Window), 0.5));
    if (rows_.Count() < 1 || columns_.Count() < 1) return;
    if (ShowsPictures()) PaintPictures(painter, exposed);
    VisitShown(rows_, exposed.top(), exposed.bottom(), [&](int row) {
        VisitShown(columns_, exposed.left(), exposed.right(), [&](int column) {
            if (ShowsPictures() && !IsLabel(row, column) && grid_->Text(row, column).empty()) return;
            paint.rect = CellPlace(row, column);
            PaintCell(paint, row, column);
        });
    });
    PaintMarked(painter);
    PaintEdge(paint);
    if (ShowsPictures()) PaintLabels(paint);
    const int row = grid_->Row();
    const int column = grid_->Column();
    if (rows_.Scrolled(row) || columns_.Scrolled(column)) return;
    if (row >= rows_.fixed && column >= columns_.fixed) painter.setClipRect(Body());
    PaintCurrentFrame(painter, CellPlace(row, column), ratio, palette(), hasFocus());
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
    if (ratio != std::floor(ratio) || (dx != 0 && dy != 0) || Zoom() != 1) {
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

// The whole of a text that its cell cuts.
bool GridWidget::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip || !grid_) return QAbstractScrollArea::viewportEvent(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const QPoint cell = CellAt(help->pos());
    const bool cut = cell.x() >= 0 && cell.y() >= 0 && IsCut(cell.y(), cell.x());
    QToolTip::showText(help->globalPos(), cut ? CellReading(cell.y(), cell.x()) : QString(), viewport());
    return true;
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
    if (event->type() == QEvent::FontChange) Measure();
    viewport()->update();
}

} // namespace dorvan
