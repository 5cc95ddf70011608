#include "files/data_file.h"

#include "files/binary_cursor.h"
#include "files/label_sizes.h"
#include "files/line_cursor.h"
#include "files/line_writer.h"
#include "numbers/number_text.h"
#include "numbers/runtime_failure.h"
#include "numbers/text.h"

namespace dorvan {

namespace {

constexpr std::string_view Pattern = "#0.000";

void ReadValues(SectionReader& reader, DocumentTables& tables, EmptyFields empty) {
    const std::int32_t records = tables.RecordNames.Count();
    const std::int32_t variables = tables.VariableNames.Count();
    tables.DataValues = FloatTable();
    reader.ExpectRoomFor(records, variables, empty);
    tables.DataValues = FloatTable(records, variables);
    for (std::int32_t i = 1; i <= records; ++i) {
        float* row = tables.DataValues.Row(i);
        reader.Row(variables, [&](std::int32_t j, std::string_view field) {
            row[j - 1] = reader.NumberOrMissing(field, empty);
        });
    }
}

void WriteCell(LineWriter& writer, std::string_view cell, const FileText& text) {
    if (cell == NaText) return writer.Field(NaText);
    try {
        writer.Field(ParseSheetNumber(cell, text.DecimalSeparator), Pattern);
    } catch (const RuntimeFailure&) {
        writer.Field("");
    }
}

} // namespace

bool IsCurrentDataFile(std::string_view bytes) { return LineCursor(bytes).Next().starts_with("Dorvan DATA"); }

std::string ParseDataFile(std::string_view bytes, const FileText& text, DocumentTables& tables,
                          EmptyFields empty) {
    SectionReader reader(bytes, text);
    reader.FirstLine();
    reader.ExpectSection("HEADER");
    const std::string description = reader.Text("Description");
    const HeaderCount records = reader.Count("RecCount");
    const HeaderCount variables = reader.Count("VarCount");
    reader.ExpectSection("RECORD_LABEL");
    reader.Labels(records, RecordLabelSize, tables.RecordNames);
    reader.ExpectSection("VARIABLE_LABEL");
    reader.Labels(variables, VariableLabelSize, tables.VariableNames);
    reader.ExpectSection("DATA");
    ReadValues(reader, tables, empty);
    return std::string(TrimSpaces(description));
}

std::string ParseOldDataFile(std::string_view bytes, const FileText& text, DocumentTables& tables) {
    BinaryCursor cursor(bytes, text.Codes);
    const std::string description = cursor.Text(OldDescriptionSize);
    const std::int32_t variables = cursor.Count();
    cursor.MoveTo(55);
    const std::int32_t records = cursor.Count();

    const std::int64_t start = 59 + std::int64_t(8) * variables; // of the records
    const std::int64_t step = 15 + std::int64_t(4) * variables;
    cursor.ExpectRoomFor(start + records * step - 4, 4);

    tables.VariableNames = Names(variables);
    for (std::int32_t j = 1; j <= variables; ++j) {
        cursor.MoveTo(59 + 8 * std::int64_t(j - 1));
        tables.VariableNames(j) = cursor.Text(VariableLabelSize);
    }
    tables.RecordNames = Names(records);
    tables.DataValues = FloatTable(records, variables);
    for (std::int32_t i = 1; i <= records; ++i) {
        cursor.MoveTo(start + (i - 1) * step);
        tables.RecordNames(i) = TrimSpaces(cursor.Text(RecordLabelSize));
        for (std::int32_t j = 1; j <= variables; ++j) tables.DataValues(i, j) = cursor.Float();
    }
    return std::string(TrimSpaces(description));
}

std::string ComposeDataFile(const SheetTable& sheet, std::string_view description, const FileText& text) {
    LineWriter writer(text);
    writer.Begin("DATA");
    writer.Value("Description", TrimSpaces(description));
    writer.Value("RecCount", sheet.RecordCount());
    writer.Value("VarCount", sheet.VariableCount());
    writer.Section("RECORD_LABEL");
    for (const auto& name : sheet.RecordNames.Cells()) writer.Line(TrimSpaces(name));
    writer.Section("VARIABLE_LABEL");
    for (const auto& name : sheet.VariableNames.Cells()) writer.Line(TrimSpaces(name));
    writer.Section("DATA");
    for (std::int32_t record = 1; record <= sheet.RecordCount(); ++record) {
        for (std::int32_t variable = 1; variable <= sheet.VariableCount(); ++variable)
            WriteCell(writer, TrimSpaces(sheet.Cells(record, variable)), text);
        writer.EndRow();
    }
    return writer.Take();
}

} // namespace dorvan
