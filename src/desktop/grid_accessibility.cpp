#include "desktop/grid_accessibility.h"

#include "desktop/grid_widget.h"
#include "desktop/qt_text.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QHash>
#include <QPointer>

namespace dorvan {

namespace {

// One cell. It looks everything up when asked, so it never grows stale; it is invalid once its grid has gone
// or shrunk.
class CellReader : public QAccessibleInterface,
                   public QAccessibleTableCellInterface,
                   public QAccessibleActionInterface {
public:
    CellReader(GridWidget& widget, int row, int column) : widget_(&widget), row_(row), column_(column) {}

    bool isValid() const override {
        return widget_ && widget_->Shown() && row_ < widget_->Shown()->Rows() &&
               column_ < widget_->Shown()->Columns();
    }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(widget_); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QRect rect() const override {
        if (!isValid()) return {};
        const QRect cell = widget_->CellRect(row_, column_);
        return {widget_->viewport()->mapToGlobal(cell.topLeft()), cell.size()};
    }
    QString text(QAccessible::Text kind) const override {
        if (isValid() && kind == QAccessible::Description && widget_->words)
            return widget_->words(row_, column_);
        return isValid() && (kind == QAccessible::Name || kind == QAccessible::Value)
                   ? widget_->CellReading(row_, column_)
                   : QString();
    }
    void setText(QAccessible::Text, const QString&) override {}
    QAccessible::Role role() const override {
        if (!isValid()) return QAccessible::Cell;
        if (row_ < widget_->Shown()->FixedRows) return QAccessible::ColumnHeader;
        return column_ < widget_->Shown()->FixedColumns ? QAccessible::RowHeader : QAccessible::Cell;
    }
    QAccessible::State state() const override {
        QAccessible::State state;
        state.focusable = true;
        state.selectable = true;
        state.readOnly = true;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        state.invisible = widget_->CellRect(row_, column_).isEmpty();
        state.offscreen = state.invisible;
        state.selected = isSelected();
        state.focused = isSelected() && widget_->hasFocus();
        return state;
    }
    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::TableCellInterface) return static_cast<QAccessibleTableCellInterface*>(this);
        if (type == QAccessible::ActionInterface) return static_cast<QAccessibleActionInterface*>(this);
        return nullptr;
    }

    bool isSelected() const override {
        return isValid() && widget_->Shown()->Row() == row_ && widget_->Shown()->Column() == column_;
    }
    QList<QAccessibleInterface*> columnHeaderCells() const override { return Header(0, column_); }
    QList<QAccessibleInterface*> rowHeaderCells() const override { return Header(row_, 0); }
    int columnIndex() const override { return column_; }
    int rowIndex() const override { return row_; }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface* table() const override { return parent(); }

    QStringList actionNames() const override { return {setFocusAction()}; }
    void doAction(const QString& name) override {
        if (isValid() && name == setFocusAction()) widget_->MakeCurrent(row_, column_);
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    QList<QAccessibleInterface*> Header(int row, int column) const {
        QAccessibleInterface* grid = isValid() ? parent() : nullptr;
        if (!grid || (row == row_ && column == column_)) return {};
        return {grid->tableInterface()->cellAt(row, column)};
    }

    QPointer<GridWidget> widget_;
    int row_;
    int column_;
};

class GridReader : public QAccessibleWidget, public QAccessibleTableInterface {
public:
    explicit GridReader(GridWidget& widget) : QAccessibleWidget(&widget, QAccessible::Table) {}
    ~GridReader() override { Forget(); }

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::TableInterface) return static_cast<QAccessibleTableInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    // The cells are the children, row by row, the fixed ones among them.
    int childCount() const override { return rowCount() * columnCount(); }
    QAccessibleInterface* child(int index) const override {
        return columnCount() > 0 && index >= 0 ? cellAt(index / columnCount(), index % columnCount())
                                               : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        auto* cell = const_cast<QAccessibleInterface*>(child)->tableCellInterface();
        return cell ? cell->rowIndex() * columnCount() + cell->columnIndex() : -1;
    }
    QAccessibleInterface* childAt(int x, int y) const override {
        const QPoint cell = Widget().CellAt(Widget().viewport()->mapFromGlobal(QPoint(x, y)));
        return cellAt(cell.y(), cell.x());
    }
    QAccessibleInterface* focusChild() const override {
        const Grid* grid = Widget().Shown();
        return grid && Widget().hasFocus() ? cellAt(grid->Row(), grid->Column()) : nullptr;
    }

    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }
    QAccessibleInterface* cellAt(int row, int column) const override {
        if (row < 0 || column < 0 || row >= rowCount() || column >= columnCount()) return nullptr;
        if (columns_ != columnCount()) Forget(); // the places have changed
        columns_ = columnCount();
        const int place = row * columns_ + column;
        const auto known = cells_.find(place);
        if (known != cells_.end()) return QAccessible::accessibleInterface(*known);
        auto* cell = new CellReader(Widget(), row, column);
        cells_.insert(place, QAccessible::registerAccessibleInterface(cell));
        return cell;
    }
    int selectedCellCount() const override { return childCount() > 0 ? 1 : 0; }
    QList<QAccessibleInterface*> selectedCells() const override {
        const Grid* grid = Widget().Shown();
        auto* cell = grid ? cellAt(grid->Row(), grid->Column()) : nullptr;
        return cell ? QList<QAccessibleInterface*>{cell} : QList<QAccessibleInterface*>();
    }
    QString columnDescription(int column) const override { return Widget().CellReading(0, column); }
    QString rowDescription(int row) const override { return Widget().CellReading(row, 0); }
    int selectedColumnCount() const override { return 0; }
    int selectedRowCount() const override { return 0; }
    int columnCount() const override { return Widget().Shown() ? Widget().Shown()->Columns() : 0; }
    int rowCount() const override { return Widget().Shown() ? Widget().Shown()->Rows() : 0; }
    QList<int> selectedColumns() const override { return {}; }
    QList<int> selectedRows() const override { return {}; }
    bool isColumnSelected(int) const override { return false; }
    bool isRowSelected(int) const override { return false; }
    bool selectRow(int) override { return false; }
    bool selectColumn(int) override { return false; }
    bool unselectRow(int) override { return false; }
    bool unselectColumn(int) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent*) override { Forget(); }

private:
    GridWidget& Widget() const { return *static_cast<GridWidget*>(object()); }
    void Forget() const {
        for (const auto id : std::as_const(cells_)) QAccessible::deleteAccessibleInterface(id);
        cells_.clear();
    }

    mutable QHash<int, QAccessible::Id> cells_; // by place
    mutable int columns_ = 0;
};

QAccessibleInterface* MakeReader(const QString&, QObject* object) {
    auto* widget = qobject_cast<GridWidget*>(object);
    return widget ? new GridReader(*widget) : nullptr;
}

} // namespace

void InstallGridAccessibility() {
    static const bool installed = (QAccessible::installFactory(MakeReader), true);
    static_cast<void>(installed);
}

} // namespace dorvan
