#include "files/diagram_file.h"

#include "distance/distance.h"
#include "files/binary_cursor.h"
#include "files/label_sizes.h"
#include "files/line_cursor.h"
#include "files/line_writer.h"
#include "numbers/text.h"

#include <fmt/format.h>

#include <utility>

namespace dorvan {

namespace {

constexpr std::string_view Pattern = "###0.000";

struct CountLines {
    HeaderCount Records;
    HeaderCount Variables;
};

CountLines ReadHeader(SectionReader& reader, DiagramHeader& header) {
    header.Type = reader.Count("Type").Value;
    header.Description = reader.Text("Description");
    const HeaderCount records = reader.Count("RecCount");
    const HeaderCount variables = reader.Count("VarCount");
    header.RecCount = records.Value;
    header.VarCount = variables.Value;
    for (int k = 1; k <= 4; ++k) header.SectionLimits(k) = reader.Limit(fmt::format("SecLimit_{}", k));
    header.DistType = reader.Count("DistType").Value;
    header.DiagType = reader.Count("DiagType").Value;
    header.Par_R = reader.Count("Par_R").Value;
    header.Par_P = reader.Count("Par_P").Value;
    return {records, variables};
}

void ReadData(SectionReader& reader, std::int32_t records, std::int32_t variables, DocumentTables& tables) {
    tables.DataValues = FloatTable();
    reader.ExpectRoomFor(records, variables);
    tables.DataValues = FloatTable(records, variables);
    for (std::int32_t i = 1; i <= records; ++i) {
        float* row = tables.DataValues.Row(i);
        reader.Row(variables, [&](std::int32_t j, std::string_view field) {
            const bool missing = TrimSpaces(field) == NaText;
            row[j - 1] = missing ? NaValue : reader.Number(field);
            if (missing) tables.RecordHasNA(i) = tables.DataHasNA = true;
        });
    }
}

void ReadDistances(SectionReader& reader, std::int32_t records, FloatTable& distances) {
    distances = FloatTable();
    reader.ExpectRoomFor(records, records);
    distances = FloatTable(records, records);
    for (std::int32_t i = 1; i <= records; ++i) {
        float* row = distances.Row(i);
        reader.Row(records,
                   [&](std::int32_t j, std::string_view field) { row[j - 1] = reader.Number(field); });
    }
}

void WriteHeader(LineWriter& writer, const DiagramDocument& document, std::string_view description) {
    const bool customized = document.DistType == DistanceType::Customized;
    writer.Begin("DIAGRAM");
    writer.Value("Type", document.NoData ? 1 : 0);
    writer.Value("Description", ReplaceAll(TrimSpaces(description), ",", ";"));
    writer.Value("RecCount", document.RecCount);
    writer.Value("VarCount", document.VarCount);
    for (int k = 1; k <= 4; ++k)
        writer.Value(fmt::format("SecLimit_{}", k), document.SectionLimits(k), Pattern);
    writer.Value("DistType", document.DistType);
    writer.Value("DiagType", document.DiagType);
    writer.Value("Par_R", customized ? document.Par_R : 0);
    writer.Value("Par_P", customized ? document.Par_P : 0);
}

void WriteData(LineWriter& writer, const DiagramDocument& document) {
    writer.Section("VARIABLE_LABEL");
    if (document.NoData) writer.Line(NaText);
    for (std::int32_t j = 1; !document.NoData && j <= document.VarCount; ++j)
        writer.Line(TrimSpaces(document.VariableNames(j)));
    writer.Section("DATA");
    if (document.NoData) return writer.Line(NaText);
    for (std::int32_t i = 1; i <= document.RecCount; ++i) {
        for (std::int32_t j = 1; j <= document.VarCount; ++j) {
            const float value = document.Data(i, j);
            if (value == NaValue)
                writer.Field(NaText);
            else
                writer.Field(value, Pattern);
        }
        writer.EndRow();
    }
}

} // namespace

bool IsCurrentDiagramFile(std::string_view bytes) {
    return LineCursor(bytes).Next().starts_with("Dorvan DIAGRAM");
}

DiagramHeader ParseDiagramFile(std::string_view bytes, const FileText& text, DocumentTables& tables) {
    DiagramHeader header;
    SectionReader reader(bytes, text);
    reader.FirstLine();
    reader.ExpectSection("HEADER");
    const CountLines counts = ReadHeader(reader, header);
    const bool withData = header.Type == 0;
    reader.ExpectSection("RECORD_LABEL");
    reader.Labels(counts.Records, RecordLabelSize, tables.RecordNames);
    reader.ExpectSection("VARIABLE_LABEL");
    if (withData)
        reader.Labels(counts.Variables, VariableLabelSize, tables.VariableNames);
    else
        reader.ExpectNothing("VARIABLE_LABEL");
    reader.ExpectSection("DATA");
    tables.RecordHasNA = Flags(header.RecCount, false);
    if (withData)
        ReadData(reader, header.RecCount, header.VarCount, tables);
    else
        reader.ExpectNothing("DATA");
    reader.ExpectSection("MATRIX");
    ReadDistances(reader, header.RecCount, tables.DistanceValues);
    return header;
}

DiagramHeader ParseOldDiagramFile(std::string_view bytes, const FileText& text, DocumentTables& tables) {
    DiagramHeader header;
    BinaryCursor cursor(bytes, text.Codes);
    header.Description = TrimSpaces(cursor.Text(OldDescriptionSize));
    const std::int32_t variables = header.VarCount = cursor.Count();
    cursor.MoveTo(55);
    const std::int32_t records = header.RecCount = cursor.Count();
    cursor.MoveTo(59);
    for (int k = 1; k <= 4; ++k) header.SectionLimits(k) = cursor.Float();
    const std::int64_t step = 15 + std::int64_t(4) * variables;
    cursor.ExpectRoomFor(75 + records * step - 4, 4 + std::int64_t(8) * variables + 2);

    tables.RecordNames = Names(records);
    tables.VariableNames = Names(variables);
    tables.DataValues = FloatTable(records, variables);
    tables.RecordHasNA = Flags(records, false);
    for (std::int32_t i = 1; i <= records; ++i) {
        cursor.MoveTo(75 + (i - 1) * step);
        tables.RecordNames(i) = TrimSpaces(cursor.Text(RecordLabelSize));
        for (std::int32_t j = 1; j <= variables; ++j) {
            tables.DataValues(i, j) = cursor.Float();
            if (tables.DataValues(i, j) == NaValue) tables.RecordHasNA(i) = tables.DataHasNA = true;
        }
    }
    for (std::int32_t j = 1; j <= variables; ++j)
        tables.VariableNames(j) = TrimSpaces(cursor.Text(VariableLabelSize));
    header.DistType = cursor.Int16();
    if (header.DistType == DistanceType::Customized) {
        header.Par_R = cursor.Int16();
        header.Par_P = cursor.Int16();
    }
    return header;
}

DiagramDocument DiagramOf(const DiagramHeader& header, DocumentTables tables) {
    DiagramDocument document;
    document.RecCount = header.RecCount;
    document.VarCount = header.VarCount;
    document.DistType = header.DistType;
    document.DiagType = header.DiagType;
    document.Par_P = header.Par_P;
    document.Par_R = header.Par_R;
    document.NoData = header.Type != 0;
    document.SectionLimits = header.SectionLimits;
    document.Matrix = std::move(tables.DistanceValues);
    document.RecordNames = std::move(tables.RecordNames);
    document.RecordHasNA = std::move(tables.RecordHasNA);
    if (!document.NoData) {
        document.Data = std::move(tables.DataValues);
        document.VariableNames = std::move(tables.VariableNames);
    }
    return document;
}

std::string ComposeDiagramFile(const DiagramDocument& document, std::string_view description,
                               const FileText& text) {
    LineWriter writer(text);
    WriteHeader(writer, document, description);
    writer.Section("RECORD_LABEL");
    for (std::int32_t i = 1; i <= document.RecCount; ++i) writer.Line(TrimSpaces(document.RecordNames(i)));
    WriteData(writer, document);
    writer.Section("MATRIX");
    for (std::int32_t i = 1; i <= document.RecCount; ++i) {
        for (std::int32_t j = 1; j <= document.RecCount; ++j) writer.Field(document.Matrix(i, j), Pattern);
        writer.EndRow();
    }
    return writer.Take();
}

} // namespace dorvan
