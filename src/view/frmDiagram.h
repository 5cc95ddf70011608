#pragma once

#include "session/grid_window.h"
#include "view/diagram_zoom.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace dorvan {

// The window that shows one diagram: a square of symbols with the records' numbers and names along its edge.
// The diagram itself is `DiagramDocuments(Index)`; the grid is only its picture.
//
// For n records the grid has n + 1 rows and n + 2 columns: row 0 holds the places 1 to n, column 0 as well,
// column 1 the names, and cell (i, j + 1) the `Tile` of `Classes(i, j)`.
//
// A move of a row carries its record and the selection to another place. It beeps and changes nothing where
// it is not possible, or while a diagram is being made. It never touches `Dirty`. `Down`, `EndRow` and
// `Insert` without a selected row fail with SubscriptOutOfRange.
class frmDiagram : public GridWindow {
public:
    static constexpr std::string_view Kind = DocumentKind::Diagram;

    explicit frmDiagram(Session& session);

    std::int16_t SelectedRow = 0;  // the selected grid row, 0 when none
    std::int16_t RowSelected = 0;  // 1 while a row is selected
    Array1<std::int16_t> RowOrder; // the permutation that the next reorder applies

    DiagramDocument& Document();

    // Lays the grid out for the document of the slot and fills it; shows the description, cut to the 150
    // characters of its field.
    void Present(const std::string& description);

    // Selects the grid's current row, or takes the selection back, from any current row.
    void SelectThisRow();
    // The same by the mouse; the selection is taken back only by a double click on the selected row.
    void Siatka_DblClick();

    // Repaint the row and the column of one record, 1 to n, in the selected or the plain tiles. The current
    // cell ends on the record's own cell, on the diagonal.
    void SelectRow(std::int16_t& row);
    void UnSelectRow(std::int16_t& row);

    void Home();
    void Up();
    void Down();
    void EndRow();
    void Insert(); // to the grid's current row

    // The best order, all records at once: the one at place `order(k)` goes to place k, and the selection
    // with its record.
    void TakeOrder(const Array1<std::int16_t>& order);

    // The same as a step of the history, which is no new one.
    void Reorder(const Array1<std::int16_t>& order);
    // Classifies and repaints all where it stands; a selected row keeps its cross.
    void Refresh();

    // Permutes matrix, names and missing-value marks: place k takes what stands at place `RowOrder(k)`; then
    // classifies and repaints all. `Data` keeps its order. Fails with SubscriptOutOfRange for an order that
    // names a place outside 1 to n.
    void ApplyRowOrder();

    // A histogram of the distances; its OK sets the section limits. The linear graph of the order. The choice
    // of another type. None of them marks the document as changed.
    void Histogram();
    void Linear();
    void DiagramType();

    // Open a new document: a sheet of the data as they stand, a matrix in the diagram's order, a bitmap,
    // which ends the run with SubscriptOutOfRange where a cell has no section.
    void DataOrder();
    void Matrix();
    void BITMAP();

    // How large the diagram is shown. A step tells itself in the status line.
    DiagramZoom Zoom;
    void ZoomIn();
    void ZoomOut();
    void ZoomActual();
    void ZoomFit();
    void TakeRoom(const DiagramRoom& room); // what the screen has for its boxes

    // Asks for a path and writes the dots form of the diagram as a placeable metafile over the start of that
    // file, of which a longer one keeps its tail.
    void Metafile();

    // Switches the five moving buttons of toolDiagram.
    void SetIcons(bool enabled);

    void BottomText_Change(); // after any change of the text
    void BottomText_KeyPress(int& keyAscii);

    // Saves under the path, an empty one asking for it, and puts it into the caption of the active window,
    // also when the file could not be written.
    void SaveDiagram(const std::string& path);
    // Writes the file, after turning each "," of the description on the screen into ";" (a change of the
    // text). Says nothing and leaves `Dirty`; the result tells whether the file was written.
    bool SaveDiagramNew(const std::string& path);

    void ExportDiagramToExcel();
    void PrintDiagram();

    void Form_Load() override;
    void Form_Activate() override;
    void Form_Deactivate() override;
    bool Form_QueryUnload() override;
    void Form_Unload() override;
    void Form_Resize() override;

private:
    DiagramBoxes Boxes() const;
    void TellZoom();
    void LayOut();
    void PaintNames();
    void PaintCells();
    void PaintCell(int row, int record, bool selected);
    void PaintCross(std::int16_t row, bool selected);

    void Beep(const char* reason);
    void RepaintInPlace();
    void RefreshActiveWindow();
    void SelectCurrentRow();
    void DropSelection();
    void StartOrder();
    void TakeOut(std::int32_t place);
    void MakeRoom(std::int32_t place);
    void Exchange(std::int16_t neighbour, const char* direction);
    std::string NameOfMove(const char* how) const;
    void LandOn(std::int16_t place);
};

frmDiagram& DiagramWindow(Session& session, std::int16_t slot);

} // namespace dorvan
