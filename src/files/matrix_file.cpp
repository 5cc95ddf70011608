#include "files/matrix_file.h"

#include "files/binary_cursor.h"
#include "files/label_sizes.h"
#include "files/line_writer.h"
#include "numbers/number_text.h"
#include "numbers/text.h"

namespace dorvan {

bool IsCurrentMatrixFile(std::string_view bytes) {
    return LineCursor(bytes).Next().starts_with("Dorvan MATRIX");
}

MatrixFileReader::MatrixFileReader(std::string_view bytes, const FileText& text) : reader_(bytes, text) {
    reader_.FirstLine();
    reader_.ExpectSection("HEADER");
    description_ = TrimSpaces(reader_.Text("Description"));
    size_ = reader_.Count("RecCount");
}

void MatrixFileReader::ReadInto(DistanceMatrix& document) {
    document = DistanceMatrix();
    SectionReader::ExpectPositive(size_);
    document.Size = size_.Value;
    reader_.ExpectSection("RECORD_LABEL");
    reader_.Labels(size_, RecordLabelSize, document.Names);
    reader_.ExpectSection("MATRIX");
    const std::int32_t n = size_.Value;
    reader_.ExpectRoomFor(n, n);
    document.Cells = Array2<std::string>(n, n);
    for (std::int32_t i = 1; i <= n; ++i) {
        std::string* row = document.Cells.Row(i);
        reader_.Row(n, [&](std::int32_t j, std::string_view field) {
            row[j - 1] = PlainText(reader_.Number(field), reader_.Style().DecimalSeparator);
        });
    }
}

std::string ParseOldMatrixFile(std::string_view bytes, const FileText& text, DistanceMatrix& document) {
    BinaryCursor cursor(bytes, text.Codes);
    const std::string description = cursor.Text(OldDescriptionSize);
    const std::int16_t n = cursor.Count();
    const std::int64_t step = 15 + std::int64_t(4) * n;
    cursor.ExpectRoomFor(55 + n * step - 4, 4);

    document = DistanceMatrix{Array1<std::string>(n), Array2<std::string>(n, n), n};
    for (std::int32_t i = 1; i <= n; ++i) {
        cursor.MoveTo(55 + (i - 1) * step);
        document.Names(i) = TrimSpaces(cursor.Text(RecordLabelSize));
        for (std::int32_t j = 1; j <= n; ++j)
            document.Cells(i, j) = PlainText(cursor.Float(), text.DecimalSeparator);
    }
    return std::string(TrimSpaces(description));
}

std::string ComposeMatrixFile(const DistanceMatrix& document, std::string_view description,
                              const FileText& text) {
    LineWriter writer(text);
    writer.Begin("MATRIX");
    writer.Value("Description", description);
    writer.Value("RecCount", document.Size);
    writer.Section("RECORD_LABEL");
    for (std::int32_t i = 1; i <= document.Size; ++i) writer.Line(document.Names(i));
    writer.Section("MATRIX");
    for (std::int32_t i = 1; i <= document.Size; ++i) {
        for (std::int32_t j = 1; j <= document.Size; ++j)
            writer.Field(ParseSheetNumber(document.Cells(i, j), text.DecimalSeparator), "#0.000");
        writer.EndRow();
    }
    return writer.Take();
}

} // namespace dorvan
