#include "program/status_line.h"

#include "distance/frmMacierz.h"
#include "distance/measures.h"
#include "making/order_quality.h"
#include "numbers/number_text.h"
#include "numbers/runtime_failure.h"
#include "numbers/text.h"
#include "session/status_bar.h"
#include "sheet/frmNotePad.h"
#include "view/frmDiagram.h"
#include "view/legend_texts.h"

#include <fmt/format.h>

#include <array>

namespace dorvan {

using namespace DocumentGrid;

namespace {

struct StatusValues {
    const ChildWindow* Pointed = nullptr; // for comparisons alone
    int Row = 0;
    int Column = 0;

    FloatTable Scored; // distances, and the UM coefficient of their order: 10 ms for 250 records
    std::string Um;
};

std::string Trimmed(const std::string& text) { return std::string(TrimSpaces(text)); }

std::string Pair(const std::string& one, const std::string& other) {
    return fmt::format("{} – {}", Trimmed(one), Trimmed(other));
}

// A name of a record at its place: row of column 1, or column of the header.
std::string NameAtPlace(const Grid& grid, int place) {
    return fmt::format("{}, place {}", Trimmed(grid.Text(place, NameColumn)), place);
}

const DiagramDocument& DocumentOf(const Session& session, const frmDiagram& window) {
    return session.DiagramDocuments.at(std::size_t(window.Index));
}

std::string ClassWords(const DiagramDocument& document, std::int16_t section, char separator) {
    if (section < 1 || section > 5) return "in no class";
    return fmt::format("class {} ({})", section,
                       LegendTexts(document.SectionLimits, separator)[std::size_t(5 - section)]);
}

std::string WordsOf(const Session& session, const frmDiagram& window, int row, int column) {
    const Grid& grid = window.Siatka;
    if (row == HeaderRow) return column >= FirstValueColumn ? NameAtPlace(grid, column - 1) : std::string();
    if (column < FirstValueColumn) return NameAtPlace(grid, row);
    const auto& document = DocumentOf(session, window);
    const int other = column - 1;
    return fmt::format("{}: {}, {}", Pair(grid.Text(row, NameColumn), grid.Text(other, NameColumn)),
                       FormatPattern(document.Matrix(row, other), "###0.000", session.DecimalSeparator),
                       ClassWords(document, document.Classes(row, other), session.DecimalSeparator));
}

std::string WordsOf(const Session& session, const frmMacierz& window, int row, int column) {
    const Grid& grid = window.Siatka;
    if (row == HeaderRow) return column >= FirstValueColumn ? NameAtPlace(grid, column - 1) : std::string();
    if (column < FirstValueColumn) return NameAtPlace(grid, row);
    const auto& matrix = session.MatrixDocuments.at(std::size_t(window.Index));
    return fmt::format("{}: {}", Pair(matrix.Names(row), matrix.Names(column - 1)),
                       Trimmed(matrix.Cells(row, column - 1)));
}

std::string WordsOf(const Session&, const frmNotePad& window, int row, int column) {
    const Grid& grid = window.Grid1;
    const std::string variable = Trimmed(grid.Text(HeaderRow, column));
    if (row == HeaderRow) return column >= FirstValueColumn ? variable : std::string();
    const std::string record = Trimmed(grid.Text(row, NameColumn));
    if (column < FirstValueColumn) return fmt::format("{}, record {}", record, row);
    const std::string value = Trimmed(grid.Text(row, column));
    return fmt::format("{}, {}: {}", record, variable, value.empty() ? "empty" : value);
}

const Grid* GridOf(const ChildWindow& window) {
    if (const auto* sheet = dynamic_cast<const frmNotePad*>(&window)) return &sheet->Grid1;
    if (const auto* other = dynamic_cast<const GridWindow*>(&window)) return &other->Siatka;
    return nullptr;
}

// Empty for distances that have no such coefficient.
std::string UmText(const Session& session, const DiagramDocument& document) {
    try {
        return "UM " + FormatPattern(UmOfOrder(document.Matrix), "###0.0000", session.DecimalSeparator);
    } catch (const RuntimeFailure&) {
        return {};
    }
}

Tile SymbolOf(std::int16_t type, std::int16_t section) {
    DiagramDocument cell;
    cell.DiagType = type;
    cell.Classes = Array2<std::int16_t>(1, 1, section);
    cell.RecordHasNA = Flags(1);
    return CellTile(cell, 1, 1, false);
}

std::string TypeText(std::int16_t type) {
    constexpr std::array<const char*, 3> names = {"greyscale", "dots", "classic"};
    return type >= 1 && type <= 3 ? names[std::size_t(type - 1)] : std::string();
}

std::string DiagramWords(Session& session, const frmDiagram& window) {
    const auto& document = DocumentOf(session, window);
    auto& values = session.Of<StatusValues>();
    if (values.Scored != document.Matrix) {
        values.Scored = document.Matrix;
        values.Um = UmText(session, document);
    }
    const MeasureRow* measure = FindMeasure(document.DistType);
    std::string selected;
    if (window.RowSelected == 1)
        selected = "selected: " + Trimmed(window.Siatka.Text(window.SelectedRow, NameColumn));
    std::string words;
    for (const auto& part :
         {std::string(measure ? measure->ListText : ""), TypeText(document.DiagType), values.Um, selected})
        if (!part.empty()) words += (words.empty() ? "" : ", ") + part;
    return words;
}

std::string Counted(int count, const char* what) {
    return fmt::format("{} {}{}", count, what, count == 1 ? "" : "s");
}

} // namespace

std::string CellWords(const Session& session, const ChildWindow& window, int row, int column) {
    const Grid* grid = GridOf(window);
    if (!grid || row < 0 || column < 0 || row >= grid->Rows() || column >= grid->Columns()) return {};
    if (const auto* diagram = dynamic_cast<const frmDiagram*>(&window))
        return WordsOf(session, *diagram, row, column);
    if (const auto* matrix = dynamic_cast<const frmMacierz*>(&window))
        return WordsOf(session, *matrix, row, column);
    return WordsOf(session, dynamic_cast<const frmNotePad&>(window), row, column);
}

std::string WindowWords(Session& session, const ChildWindow& window) {
    if (const auto* diagram = dynamic_cast<const frmDiagram*>(&window))
        return DiagramWords(session, *diagram);
    if (const auto* sheet = dynamic_cast<const frmNotePad*>(&window))
        return Counted(sheet->RecordCount(), "record") + ", " + Counted(sheet->VariableCount(), "variable");
    if (const auto* matrix = dynamic_cast<const frmMacierz*>(&window))
        return Counted(RecordCount(matrix->Siatka), "record");
    return {};
}

std::vector<LegendEntry> LegendOf(const Session& session, const ChildWindow& window) {
    const auto* diagram = dynamic_cast<const frmDiagram*>(&window);
    if (!diagram) return {};
    const auto& document = DocumentOf(session, *diagram);
    const auto texts = LegendTexts(document.SectionLimits, session.DecimalSeparator);
    std::vector<LegendEntry> legend;
    for (std::int16_t section = 5; section >= 1; --section)
        legend.push_back({SymbolOf(document.DiagType, section), texts[std::size_t(5 - section)]});
    return legend;
}

void PointAt(Session& session, const ChildWindow& window, int row, int column) {
    auto& values = session.Of<StatusValues>();
    values.Pointed = &window;
    values.Row = row;
    values.Column = column;
}

void PointAway(Session& session) { session.Of<StatusValues>().Pointed = nullptr; }

void RefreshStatusBar(Session& session) {
    auto& bar = session.forms.Load<StatusBar>(session);
    bar.Cell.Caption.clear();
    bar.Window.Caption.clear();
    const ChildWindow* window = session.ActiveWindow;
    if (!window) return;
    const auto& values = session.Of<StatusValues>();
    if (values.Pointed == window)
        bar.Cell.Caption = CellWords(session, *window, values.Row, values.Column);
    else if (const Grid* grid = GridOf(*window))
        bar.Cell.Caption = CellWords(session, *window, grid->Row(), grid->Column());
    bar.Window.Caption = WindowWords(session, *window);
}

} // namespace dorvan
