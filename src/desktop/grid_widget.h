#pragma once

#include "desktop/event_dispatch.h"
#include "desktop/grid_text.h"
#include "platform/grid.h"

#include <QAbstractScrollArea>
#include <QHash>
#include <QImage>

class QPainter;

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace dorvan {

// What the pictures of a grid look like, and how they read.
struct GridPictures {
    std::function<QImage(std::uint8_t picture, int side)> image; // in device pixels
    std::function<QString(std::uint8_t picture)> description;
};

// What a grid's owner wants to hear of. A key handler swallows a key by setting its code to 0.
struct GridEvents {
    std::function<void(int& keyCode)> keyDown;
    std::function<void(int& keyAscii)> keyPress;
    std::function<void()> doubleClick;
    std::function<void(QPoint global)> rightButton;
};

// Shows any `Grid`: paints the visible cells, tells it keys and presses. It scrolls by whole
// cells. All edges lie on device pixels, whatever the scaling.
class GridWidget : public QAbstractScrollArea {
    Q_OBJECT

public:
    GridWidget(Grid& grid, EventDispatch& dispatch, QWidget* parent = nullptr);
    ~GridWidget() override;

    GridEvents events;

    // What is told of a cell beside its reading; empty: nothing.
    std::function<QString(int row, int column)> words;

    // Whether a new current cell is scrolled into view. Always, if not set.
    std::function<bool()> follows;

    // Whether it is scrolled sideways too where a rule, and not the user's key or click, made it current.
    bool followsRulesSideways = true;

    // How large the cells behind the labels are shown, in percent. 100, if not set. Of a grid with pictures.
    std::function<double()> zoom;

    void SetPictures(GridPictures pictures);

    // The first columns, which tell what a row is, stay in sight as long as they leave half of the room.
    void SetLabelColumns(int columns);

    // What a change of the zoom leaves in its place, as a place of the viewport; the current cell or else the
    // middle, if not set.
    std::optional<QPoint> zoomAnchor;

    // What the cells behind the labels have, in device pixels, were there no scroll bars.
    QSize RoomBehindLabels() const;

    // The grid's owner is about to go.
    void Detach() { grid_ = nullptr; }

    // Shows the grid's present state.
    void Mirror();

    // Null once the owner has gone.
    const Grid* Shown() const { return grid_; }

    // Where the cell lies in the viewport; empty when it is scrolled out.
    QRect CellRect(int row, int column) const;

    // The cell at a place of the viewport; -1 where there is none.
    QPoint CellAt(QPoint place) const; // x column, y row

    // What a screen reader says of the cell.
    QString CellReading(int row, int column) const;

    // Scrolls no further than it takes to show the cell.
    void ScrollTo(int row, int column);

    // Of the texts, in device pixels; and how many twips of a column's width a pixel shows.
    QFont TextFont() const;
    double TwipsOfPixel(int column) const;

    // How far a page key moves.
    int PageRows() const;

    // A screen reader moves the current cell, as a click would.
    void MakeCurrent(int row, int column);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;

private:
    // Sizes and places along one axis, in device pixels.
    struct Axis {
        std::vector<int> edges; // edges[i] is where cell i begins were nothing scrolled; one more at the end
        int fixed = 0;          // cells that never scroll
        int first = 0;          // the first cell shown behind the fixed ones

        int Count() const { return int(edges.size()) - 1; }
        int FixedEnd() const { return edges.empty() ? 0 : edges[std::size_t(fixed)]; }
        int Start(int cell) const;
        int Size(int cell) const { return edges[std::size_t(cell) + 1] - edges[std::size_t(cell)]; }
        bool Scrolled(int cell) const { return cell >= fixed && cell < first; }
        int CellAt(int place) const;                  // -1: behind the last one
        int LastFirst(int room) const;                // the highest `first` that fills the room
        int CellsIn(int room) const;                  // whole cells from `first` on, at least 1
        int FirstThatShows(int cell, int room) const; // the nearest `first` that shows the cell whole
        int FirstThatPuts(int cell,
                          int place) const; // the `first` that brings the cell's middle nearest to it
    };

    struct CellPaint;
    struct Anchor;

    double Ratio() const { return devicePixelRatioF(); }
    double Zoom() const { return zoom ? zoom() / 100 : 1; }
    bool ShowsPictures() const { return bool(pictures_.image); }
    double TextScale() const;
    double WidthScale(int column) const;
    double HeightScale(int row) const;
    Axis RowAxis() const;
    Axis ColumnAxis() const;
    void Measure();
    void UpdateScrollBars();
    void FollowCurrent();
    void StartInSight();
    void TakeZoom();
    Anchor AnchorOfZoom() const;

    void PaintCell(CellPaint& paint, int row, int column) const;
    QColor GroundOf(const CellPaint& paint, int row, int column) const;
    void PaintText(CellPaint& paint, int row, int column) const;
    FittedText FittedIn(const QRect& cell, const QFont& font, int row, int column) const;
    bool IsCut(int row, int column) const;
    void PaintPictures(QPainter& painter, const QRect& exposed) const;
    void PaintLabels(CellPaint& paint) const;
    void PaintEdge(CellPaint& paint) const;
    bool IsLabel(int row, int column) const { return row < rows_.fixed || column < labelColumns_; }
    bool IsMarked(int row, int column) const;
    QRect CellPlace(int row, int column) const; // in device pixels, also of one that is scrolled out
    QRect Body() const;                         // what scrolls, in device pixels
    const QImage& SidedPicture(std::uint8_t picture) const;
    void Forward(const std::function<void()>& handler);
    void ForwardLater(std::function<void()> handler);
    void TellCurrent();
    void PaintMarked(QPainter& painter) const;

    Grid* grid_;
    EventDispatch& dispatch_;
    GridPictures pictures_;
    Axis rows_;
    Axis columns_;
    int labelColumns_ = 0;
    double measuredRatio_ = 0;
    double measuredZoom_ = 1;
    int pictureSide_ = 0; // in device pixels
    // Labels stand closer than their texts need where the cells are small: every k-th has one.
    int rowLabelStep_ = 1;
    int columnLabelStep_ = 1;
    std::uint64_t revision_ = ~std::uint64_t(0);
    QPoint shownCurrent_{-1, -1};
    bool movedByHand_ = false; // since the last mirroring, by the user's key or click
    bool leftBehind_ = false;  // a rule moved the current cell, and the grid was not scrolled there
    mutable QHash<int, QImage> scaledTiles_;   // for measuredRatio_
    mutable QHash<int, QImage> sidedPictures_; // of pictureSide_
};

} // namespace dorvan
