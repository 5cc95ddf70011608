#pragma once

#include "files/data_file.h"
#include "files/diagram_file.h"
#include "files/file_fault.h"
#include "files/matrix_file.h"
#include "numbers/number_text.h"
#include "ways.h"

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

// What has to hold for a reader and any bytes: it gives a document or a FileFault and nothing else; and the
// document, written and read twice, is written the same again. Any other end is an exception.
// The fuzzers and the tests of their seeds share these.
namespace dorvan::fuzz {

inline void require(bool holds, const char* what) {
    if (!holds) throw std::logic_error(what);
}

// `rewrite(bytes)` reads a current file and writes it again.
template <class Rewrite> void requireStable(const std::string& written, const Rewrite& rewrite) {
    const std::string again = rewrite(written);
    require(rewrite(again) == again, "a document changes as it is written and read");
}

// Does `read` for the two kinds of locale; a FileFault is a good end.
template <class Read> void forEachLocale(Ways& ways, const Read& read) {
    for (const FileText& text : {FileText{CodePage(1252), '.', {}}, FileText{CodePage(1250), ',', {}}}) try {
            if (ways.Take()) read(text);
        } catch (const FileFault& fault) {
            require(!fault.Describe("f").empty(), "a fault without a message");
        }
}

inline std::string composeSheet(const DocumentTables& tables, const std::string& description,
                                const FileText& text) {
    SheetTable sheet(tables.RecordNames.Count(), tables.VariableNames.Count());
    sheet.RecordNames = tables.RecordNames;
    sheet.VariableNames = tables.VariableNames;
    for (int i = 1; i <= sheet.RecordCount(); ++i)
        for (int j = 1; j <= sheet.VariableCount(); ++j) {
            const float value = tables.DataValues(i, j);
            sheet.Cells(i, j) = IsEmptyValue(value) ? std::string()
                                : value == NaValue  ? std::string(NaText)
                                                    : FormatPattern(value, "###0.000", text.DecimalSeparator);
        }
    return ComposeDataFile(sheet, description, text);
}

inline std::string parseSheet(std::string_view bytes, const FileText& text, DocumentTables& tables) {
    return ParseDataFile(bytes, text, tables);
}

inline std::string parseSheetWithEmptyCells(std::string_view bytes, const FileText& text,
                                            DocumentTables& tables) {
    return ParseDataFile(bytes, text, tables, EmptyFields::Taken);
}

inline void checkDataFile(std::string_view bytes, Ways& ways) {
    for (const auto parse : {parseSheet, parseSheetWithEmptyCells, ParseOldDataFile})
        forEachLocale(ways, [&](const FileText& text) {
            IsCurrentDataFile(bytes);
            DocumentTables tables;
            const std::string description = parse(bytes, text, tables);
            requireStable(composeSheet(tables, description, text), [&](const std::string& written) {
                DocumentTables again;
                const std::string same = parseSheetWithEmptyCells(written, text, again);
                return composeSheet(again, same, text);
            });
        });
}

inline std::string readCurrentMatrix(std::string_view bytes, const FileText& text, DistanceMatrix& matrix) {
    MatrixFileReader reader(bytes, text);
    reader.ReadInto(matrix);
    return reader.Description();
}

inline void checkMatrixFile(std::string_view bytes, Ways& ways) {
    for (const auto parse : {readCurrentMatrix, ParseOldMatrixFile})
        forEachLocale(ways, [&](const FileText& text) {
            IsCurrentMatrixFile(bytes);
            DistanceMatrix matrix;
            const std::string description = parse(bytes, text, matrix);
            requireStable(ComposeMatrixFile(matrix, description, text), [&](const std::string& written) {
                DistanceMatrix again;
                const std::string same = readCurrentMatrix(written, text, again);
                return ComposeMatrixFile(again, same, text);
            });
        });
}

inline std::string composeDiagram(const DiagramHeader& header, const DocumentTables& tables,
                                  const FileText& text) {
    return ComposeDiagramFile(DiagramOf(header, tables), header.Description, text);
}

// The older format holds no distances: they stay 0 here.
inline DiagramHeader parseOldDiagram(std::string_view bytes, const FileText& text, DocumentTables& tables) {
    const DiagramHeader header = ParseOldDiagramFile(bytes, text, tables);
    tables.DistanceValues = FloatTable(header.RecCount, header.RecCount);
    return header;
}

inline void checkDiagramFile(std::string_view bytes, Ways& ways) {
    for (const auto parse : {ParseDiagramFile, parseOldDiagram})
        forEachLocale(ways, [&](const FileText& text) {
            IsCurrentDiagramFile(bytes);
            DocumentTables tables;
            const DiagramHeader header = parse(bytes, text, tables);
            requireStable(composeDiagram(header, tables, text), [&](const std::string& written) {
                DocumentTables again;
                const DiagramHeader same = ParseDiagramFile(written, text, again);
                return composeDiagram(same, again, text);
            });
        });
}

} // namespace dorvan::fuzz
