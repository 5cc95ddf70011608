#pragma once

#include "sheet/frmNotePad.h"

#include <string>
#include <string_view>
#include <vector>

// Steps of a sheet's history: any change of its cells, its names or its shape.
namespace dorvan {

// The texts of one row from the name column on, up to its last one.
using RowTexts = std::vector<std::string>;

// A sheet's grid as a step finds or leaves it.
struct SheetState {
    struct Column {
        int Width = 0;
        Alignment Cells = Alignment::Left;
        Alignment Header = Alignment::Left;
        bool operator==(const Column&) const = default;
    };

    std::vector<RowTexts> Rows; // the header first
    std::vector<Column> Columns;
    int Row = 0; // the current cell
    int CurrentColumn = 0;
};

SheetState StateOf(const Grid& grid);

// Records what happens to a sheet from here to the end of its scope as one step, if anything does. Work that
// fails is no step.
//
//     const SheetStep step(session, sheet, "Paste 12 Cells");
class SheetStep {
public:
    SheetStep(Session& session, frmNotePad& sheet, std::string name);
    ~SheetStep() noexcept(false); // memory may end
    SheetStep(const SheetStep&) = delete;
    SheetStep& operator=(const SheetStep&) = delete;

private:
    Session& session_;
    frmNotePad& sheet_;
    std::string name_;
    SheetState before_;
    int failures_;
};

// A record's name, or "Record 3" for one without a name.
std::string RecordCalled(std::string_view name, int row);

// Records that one cell, which held `before`, was edited; nothing where it holds that now.
void RecordCellEdit(Session& session, const frmNotePad& sheet, int row, int column, std::string before);

} // namespace dorvan
