#include "program/document_copies.h"

#include "distance/frmMacierz.h"
#include "files/data_file.h"
#include "files/diagram_file.h"
#include "files/document_bytes.h"
#include "files/matrix_file.h"
#include "numbers/number_text.h"
#include "numbers/runtime_failure.h"
#include "numbers/text.h"
#include "session/registry.h"
#include "sheet/expression.h"
#include "sheet/frmNotePad.h"
#include "view/frmDiagram.h"

#include <exception>
#include <utility>

namespace dorvan {

namespace {

bool Reads(const std::string& cell, char decimalSeparator) {
    if (TrimSpaces(cell) == NaText) return true;
    try {
        ParseSheetNumber(TrimSpaces(cell), decimalSeparator);
        return true;
    } catch (const RuntimeFailure&) {
        return false;
    }
}

// The sheet with every value cell a number or "N/A".
SheetTable ReadableSheet(SheetTable sheet, char decimalSeparator) {
    for (std::string& cell : sheet.Cells.Cells()) {
        if (Reads(cell, decimalSeparator)) continue;
        const double value = EvaluateCellText(ReplaceAll(cell, ",", ".")).Value;
        cell = FormatPattern(value, "###0.000", decimalSeparator);
    }
    return sheet;
}

SheetTable SheetOf(const DocumentTables& tables, char decimalSeparator) {
    SheetTable sheet(tables.RecordNames.Count(), tables.VariableNames.Count());
    sheet.RecordNames = tables.RecordNames;
    sheet.VariableNames = tables.VariableNames;
    for (int i = 1; i <= sheet.RecordCount(); ++i)
        for (int j = 1; j <= sheet.VariableCount(); ++j)
            sheet.Cells(i, j) = CellText(tables.DataValues(i, j), decimalSeparator);
    return sheet;
}

// The documents of files, as a run that opened them would have them.
std::string SavedAgain(const SheetTable&, const std::string& bytes, const FileText& text) {
    DocumentTables tables;
    const std::string description = IsCurrentDataFile(bytes)
                                        ? ParseDataFile(bytes, text, tables, EmptyFields::Taken)
                                        : ParseOldDataFile(bytes, text, tables);
    return ComposeDataFile(SheetOf(tables, text.DecimalSeparator), description, text);
}

std::string SavedAgain(const DistanceMatrix&, const std::string& bytes, const FileText& text) {
    DistanceMatrix matrix;
    if (!IsCurrentMatrixFile(bytes)) {
        const std::string description = ParseOldMatrixFile(bytes, text, matrix);
        return ComposeMatrixFile(matrix, description, text);
    }
    MatrixFileReader reader(bytes, text);
    reader.ReadInto(matrix);
    return ComposeMatrixFile(matrix, reader.Description(), text);
}

// An older file holds no distances, so that it never holds a diagram.
std::string SavedAgain(const DiagramDocument&, const std::string& bytes, const FileText& text) {
    DocumentTables tables;
    const DiagramHeader header = ParseDiagramFile(bytes, text, tables);
    return ComposeDiagramFile(DiagramOf(header, std::move(tables)), header.Description, text);
}

std::string Composed(const SheetTable& sheet, const DocumentSnapshot& document) {
    return ComposeDataFile(sheet, document.Description, document.Text);
}

std::string Composed(const DistanceMatrix& matrix, const DocumentSnapshot& document) {
    return ComposeMatrixFile(matrix, document.Description, document.Text);
}

std::string Composed(const DiagramDocument& diagram, const DocumentSnapshot& document) {
    return ComposeDiagramFile(diagram, document.Description, document.Text);
}

} // namespace

std::optional<DocumentSnapshot> SnapshotOf(const Session& session, const ChildWindow& window) {
    DocumentSnapshot document;
    document.Caption = window.Caption;
    document.Path = CaptionPath(window.Caption);
    document.Text = FileTextOf(session);
    if (const auto* sheet = dynamic_cast<const frmNotePad*>(&window)) {
        document.Kind = DocumentKind::Data;
        document.Path = sheet->NamedFile();
        document.Description = sheet->OpisText.Text;
        document.Content = sheet->Table();
    } else if (const auto* matrix = dynamic_cast<const frmMacierz*>(&window)) {
        document.Kind = DocumentKind::Matrix;
        document.Description = matrix->BottomText.Text;
        document.Content = session.MatrixDocuments.at(std::size_t(window.Index));
    } else if (const auto* diagram = dynamic_cast<const frmDiagram*>(&window)) {
        document.Kind = DocumentKind::Diagram;
        document.Description = diagram->BottomText.Text;
        document.Content = session.DiagramDocuments.at(std::size_t(window.Index));
    } else {
        return {};
    }
    if (IsUntitled(window.Caption)) document.Path.clear();
    return document;
}

std::string_view ExtensionOf(const DocumentSnapshot& document) {
    constexpr std::string_view extensions[] = {"mdt", "mtx", "dgr"}; // as the alternatives of the content
    return extensions[document.Content.index()];
}

std::string ComposeAsSaved(const DocumentSnapshot& document) {
    return std::visit([&](const auto& content) { return Composed(content, document); }, document.Content);
}

std::string ComposeReadable(const DocumentSnapshot& document) {
    if (const auto* sheet = std::get_if<SheetTable>(&document.Content))
        return Composed(ReadableSheet(*sheet, document.Text.DecimalSeparator), document);
    return ComposeAsSaved(document);
}

bool IsHeldByFile(const DocumentSnapshot& document) {
    if (document.Path.empty()) return false;
    try {
        const std::string saved = ComposeAsSaved(document);
        const std::string bytes = LoadDocument(document.Path, document.Text.Codes);
        if (bytes == saved) return true;
        return std::visit(
            [&](const auto& content) { return SavedAgain(content, bytes, document.Text) == saved; },
            document.Content);
    } catch (const std::exception&) {
        return false;
    }
}

} // namespace dorvan
