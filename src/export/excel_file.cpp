#include "export/excel_file.h"

#include "numbers/number_text.h"
#include "numbers/rounding.h"
#include "numbers/runtime_failure.h"

#include <fmt/format.h>

#include <bit>
#include <limits>
#include <new>
#include <utility>

namespace dorvan {

namespace {

constexpr std::int16_t TwipsPerPoint = 20;

namespace Opcode {
constexpr std::int16_t IntegerCell = 2;
constexpr std::int16_t NumberCell = 3;
constexpr std::int16_t TextCell = 4;
constexpr std::int16_t RowHeight = 8;
constexpr std::int16_t BeginOfFile = 9;
constexpr std::int16_t EndOfFile = 10;
constexpr std::int16_t Protect = 18;
constexpr std::int16_t Header = 20;
constexpr std::int16_t Footer = 21;
constexpr std::int16_t HorizontalPageBreaks = 27;
constexpr std::int16_t Format = 30;
constexpr std::int16_t FormatCount = 31;
constexpr std::int16_t ColumnWidth = 36;
constexpr std::int16_t DefaultRowHeight = 37;
constexpr std::int16_t GridLines = 43;
constexpr std::int16_t FilePassword = 47;
constexpr std::int16_t Font = 49;
} // namespace Opcode

constexpr std::string_view DefaultFormats[] = {"General",
                                               "0",
                                               "0.00",
                                               "#,##0",
                                               "#,##0.00",
                                               "#,##0\\ \"$\";\\-#,##0\\ \"$\"",
                                               "#,##0\\ \"$\";[Red]\\-#,##0\\ \"$\"",
                                               "#,##0.00\\ \"$\";\\-#,##0.00\\ \"$\"",
                                               "#,##0.00\\ \"$\";[Red]\\-#,##0.00\\ \"$\"",
                                               "0%",
                                               "0.00%",
                                               "0.00E+00",
                                               "dd/mm/yy",
                                               "dd/\\ mmm\\ yy",
                                               "dd/\\ mmm",
                                               "mmm\\ yy",
                                               "h:mm\\ AM/PM",
                                               "h:mm:ss\\ AM/PM",
                                               "hh:mm",
                                               "hh:mm:ss",
                                               "dd/mm/yy\\ hh:mm",
                                               "##0.0E+0",
                                               "mm:ss",
                                               "@"};

// Fails with Overflow.
std::uint8_t ByteOf(std::int64_t value) {
    if (value < 0 || value > std::numeric_limits<std::uint8_t>::max())
        throw RuntimeFailure(Failure::Overflow);
    return static_cast<std::uint8_t>(value);
}

// The fields of a record, one behind the other without padding.
class Fields {
public:
    Fields& Byte(std::int64_t value) {
        bytes_ += static_cast<char>(ByteOf(value));
        return *this;
    }
    Fields& Word(std::int16_t value) { return Little(static_cast<std::uint16_t>(value), 2); }
    Fields& Double(double value) { return Little(std::bit_cast<std::uint64_t>(value), 8); }
    Fields& Text(std::string_view text) {
        bytes_ += text;
        return *this;
    }
    // A text with its length, at most 255, in a byte before it.
    Fields& CountedText(std::string_view text) {
        return Byte(static_cast<std::int64_t>(text.size())).Text(text);
    }
    const std::string& Bytes() const { return bytes_; }

private:
    Fields& Little(std::uint64_t value, int count) {
        for (int place = 0; place < count; ++place) bytes_ += static_cast<char>(value >> (8 * place));
        return *this;
    }

    std::string bytes_;
};

std::string RecordOf(std::int16_t opcode, const Fields& fields) {
    const std::string& bytes = fields.Bytes();
    return Fields().Word(opcode).Word(NarrowToInt16(std::int64_t(bytes.size()))).Text(bytes).Bytes();
}

void BubbleSort(std::vector<std::int16_t>& values) {
    for (std::size_t last = values.size(); last-- > 0;)
        for (std::size_t place = 1; place <= last; ++place)
            if (values[place - 1] > values[place]) std::swap(values[place - 1], values[place]);
}

} // namespace

std::int16_t RecordPlace(std::int32_t place) {
    constexpr std::int32_t FirstThatWraps = 32768;
    return NarrowToInt16(place < FirstThatWraps ? std::int64_t(place) - 1
                                                : std::int64_t(place) - 2 * FirstThatWraps);
}

// 10 is no type that the published format knows (a worksheet has 16); it is this program's.
ExcelFile::ExcelFile(const FileText& text)
    : BeginRecord(RecordOf(Opcode::BeginOfFile, Fields().Word(2).Word(10))),
      EndRecord(RecordOf(Opcode::EndOfFile, Fields())), text_(text) {}

// Does the work of one operation; a failure ends it, and its number is the result.
template <class Work> int ExcelFile::Caught(const Work& work) {
    try {
        work();
        return 0;
    } catch (const FileError& error) {
        diskFailure_ = error.what();
        return FailureOfWriting(error, path_).Number();
    } catch (const RuntimeFailure& failure) {
        return failure.Number();
    } catch (const std::bad_alloc&) {
        return static_cast<int>(Failure::OutOfMemory);
    }
}

void ExcelFile::Write(std::string_view record) {
    if (FileNumber == 0) throw RuntimeFailure(Failure::BadFileNameOrNumber);
    bytes_ += record;
}

void ExcelFile::WriteText(std::int16_t opcode, const std::string& text) {
    Write(RecordOf(opcode, Fields().CountedText(text_.Codes.FromUtf8(text))));
}

int ExcelFile::CreateFile(const std::string& path) {
    return Caught([&] {
        FileNumber = 0;
        file_.reset();
        path_ = path;
        bytes_.clear();
        diskFailure_.clear();
        auto file = std::make_unique<NewFile>(path);
        file->DeleteFormer();
        file_ = std::move(file);
        FileNumber = 1;
        Write(BeginRecord);
        WriteDefaultFormats();
        PageBreakRows.assign(1, 0);
        PageBreakCount = 0;
    });
}

int ExcelFile::CloseFile() {
    return Caught([&] {
        if (FileNumber == 0) return;
        if (PageBreakCount >= 1) WritePageBreaks();
        Write(EndRecord);
        FileNumber = 0;
        const auto file = std::move(file_);
        file->TakeThePlace(std::exchange(bytes_, {}));
    });
}

// The first element is not written: after the sort that is the lowest, be it the one that stood there before
// any break or a row that wrapped below 0.
void ExcelFile::WritePageBreaks() {
    BubbleSort(PageBreakRows);
    const std::int16_t length = AddInt16(MultiplyInt16(PageBreakCount, 2), 2);
    BreakHeader = Fields().Word(Opcode::HorizontalPageBreaks).Word(length).Word(PageBreakCount).Bytes();
    Write(BreakHeader);
    for (std::size_t place = 1; place < PageBreakRows.size(); ++place) Write(MKI(PageBreakRows[place]));
}

int ExcelFile::InsertHorizPageBreak(std::int32_t row) {
    return Caught([&] {
        const std::int16_t place = RecordPlace(row);
        PageBreakCount = AddInt16(PageBreakCount, 1);
        PageBreakRows.resize(std::size_t(PageBreakCount) + 1);
        PageBreakRows[std::size_t(PageBreakCount)] = place;
    });
}

std::int16_t ExcelFile::IntegerOf(const CellValue& value) const {
    if (const auto* text = std::get_if<std::string>(&value))
        return StrictInt16(*text, text_.DecimalSeparator);
    if (const auto* number = std::get_if<double>(&value)) return RoundToInt16(*number);
    return NarrowToInt16(std::get<std::int32_t>(value));
}

double ExcelFile::NumberOf(const CellValue& value) const {
    if (const auto* text = std::get_if<std::string>(&value))
        return StrictDouble(*text, text_.DecimalSeparator);
    if (const auto* number = std::get_if<double>(&value)) return *number;
    return std::get<std::int32_t>(value);
}

std::string ExcelFile::TextOf(const CellValue& value) const {
    if (const auto* text = std::get_if<std::string>(&value)) return text_.Codes.FromUtf8(*text);
    if (const auto* number = std::get_if<std::int32_t>(&value)) return fmt::format("{}", *number);
    std::string digits = fmt::format("{:.15G}", std::get<double>(value));
    if (const auto point = digits.find('.'); point != std::string::npos)
        digits[point] = text_.DecimalSeparator;
    return digits;
}

int ExcelFile::WriteValue(std::int32_t type, std::int32_t font, std::int32_t alignment,
                          std::int32_t hiddenLocked, std::int32_t row, std::int32_t column,
                          const CellValue& value, std::int32_t format) {
    return Caught([&] {
        if (type < CellType::Integer || type > CellType::Text) return;
        Fields fields;
        fields.Word(RecordPlace(row)).Word(RecordPlace(column));
        fields.Byte(hiddenLocked).Byte(std::int64_t(font) + format).Byte(alignment);
        if (type == CellType::Integer) Write(RecordOf(Opcode::IntegerCell, fields.Word(IntegerOf(value))));
        if (type == CellType::Number) Write(RecordOf(Opcode::NumberCell, fields.Double(NumberOf(value))));
        if (type == CellType::Text) Write(RecordOf(Opcode::TextCell, fields.CountedText(TextOf(value))));
    });
}

int ExcelFile::SetMargin(std::int16_t code, double value) {
    return Caught([&] { Write(RecordOf(code, Fields().Double(value))); });
}

int ExcelFile::SetColumnWidth(std::int32_t firstColumn, std::int32_t lastColumn, std::int16_t width) {
    constexpr std::int16_t UnitsPerCharacter = 256;
    return Caught([&] {
        Fields fields;
        fields.Byte(ByteOf(firstColumn) - 1).Byte(ByteOf(lastColumn) - 1);
        Write(RecordOf(Opcode::ColumnWidth, fields.Word(MultiplyInt16(width, UnitsPerCharacter))));
    });
}

int ExcelFile::SetFont(const std::string& name, std::int16_t height, std::int32_t attributes) {
    return Caught([&] {
        const Fields fields = Fields()
                                  .Word(MultiplyInt16(height, TwipsPerPoint))
                                  .Byte(attributes)
                                  .Byte(0)
                                  .CountedText(text_.Codes.FromUtf8(name));
        Write(RecordOf(Opcode::Font, fields));
    });
}

int ExcelFile::SetHeader(const std::string& text) {
    return Caught([&] { WriteText(Opcode::Header, text); });
}

int ExcelFile::SetFooter(const std::string& text) {
    return Caught([&] { WriteText(Opcode::Footer, text); });
}

// Without a length of its own.
int ExcelFile::SetFilePassword(const std::string& text) {
    return Caught([&] { Write(RecordOf(Opcode::FilePassword, Fields().Text(text_.Codes.FromUtf8(text)))); });
}

int ExcelFile::PrintGridLines(bool flag) {
    return Caught([&] { Write(RecordOf(Opcode::GridLines, Fields().Word(flag ? 1 : 0))); });
}

int ExcelFile::ProtectSpreadsheet(bool flag) {
    return Caught([&] { Write(RecordOf(Opcode::Protect, Fields().Word(flag ? 1 : 0))); });
}

// The count is the index of the last of the formats, one below their number.
int ExcelFile::WriteDefaultFormats() {
    return Caught([&] {
        Write(RecordOf(Opcode::FormatCount, Fields().Word(std::size(DefaultFormats) - 1)));
        for (const std::string_view format : DefaultFormats) WriteText(Opcode::Format, std::string(format));
    });
}

std::string ExcelFile::MKI(std::int16_t value) { return Fields().Word(value).Bytes(); }

int ExcelFile::SetDefaultRowHeight(std::int16_t height) {
    return Caught([&] {
        Write(RecordOf(Opcode::DefaultRowHeight, Fields().Word(MultiplyInt16(height, TwipsPerPoint))));
    });
}

int ExcelFile::SetRowHeight(std::int32_t row, std::int16_t height) {
    constexpr std::int16_t PastLastColumn = 256;
    return Caught([&] {
        Fields fields;
        fields.Word(RecordPlace(row)).Word(0).Word(PastLastColumn);
        fields.Word(MultiplyInt16(height, TwipsPerPoint)).Word(0).Byte(0).Word(0).Byte(0).Byte(0).Byte(0);
        Write(RecordOf(Opcode::RowHeight, fields));
    });
}

} // namespace dorvan
