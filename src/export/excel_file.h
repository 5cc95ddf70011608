#pragma once

#include "files/file_text.h"
#include "files/new_file.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace dorvan {

// What a cell is given: converted to the type of the cell's record.
using CellValue = std::variant<std::int32_t, double, std::string>;

namespace CellType {
inline constexpr std::int32_t Integer = 0;
inline constexpr std::int32_t Number = 1;
inline constexpr std::int32_t Text = 2;
} // namespace CellType

// Writes a worksheet in the BIFF 2.1 format, record by record: each operation appends one, and the caller
// decides their order. Integers are little-endian; texts are in the code page, one byte a character.
//
// Every operation but MKI gives the number of the run-time error that ended it, 0 for none; it then wrote
// nothing, and later ones go on behind the last good record. The file gets its name at CloseFile and not
// before; what is closed by nobody leaves no file.
class ExcelFile {
public:
    explicit ExcelFile(const FileText& text);
    virtual ~ExcelFile() = default;

    // A file that stands under the path is deleted first.
    virtual int CreateFile(const std::string& path);
    virtual int CloseFile();
    virtual int InsertHorizPageBreak(std::int32_t row);
    // Row and column from 1; `format` is added to `font`. A type that is none writes nothing.
    virtual int WriteValue(std::int32_t type, std::int32_t font, std::int32_t alignment,
                           std::int32_t hiddenLocked, std::int32_t row, std::int32_t column,
                           const CellValue& value, std::int32_t format = 0);
    virtual int SetMargin(std::int16_t code, double value);
    // Columns from 1, both in 8 bits; the width in characters.
    virtual int SetColumnWidth(std::int32_t firstColumn, std::int32_t lastColumn, std::int16_t width);
    virtual int SetFont(const std::string& name, std::int16_t height, std::int32_t attributes); // points
    virtual int SetHeader(const std::string& text);
    virtual int SetFooter(const std::string& text);
    virtual int SetFilePassword(const std::string& text);
    virtual int PrintGridLines(bool flag);
    virtual int ProtectSpreadsheet(bool flag);
    virtual int WriteDefaultFormats();
    virtual std::string MKI(std::int16_t value); // its two bytes, the low one first
    virtual int SetDefaultRowHeight(std::int16_t height);
    virtual int SetRowHeight(std::int32_t row, std::int16_t height);

    // Why the disk did not take the file; empty while it did.
    const std::string& DiskFailure() const { return diskFailure_; }

    std::int16_t FileNumber = 0; // 0 while no file is open
    std::string BeginRecord;
    std::string EndRecord;
    std::string BreakHeader;                 // of the page breaks, made when the file is closed
    std::vector<std::int16_t> PageBreakRows; // from 0; the element 0 is there before any break
    std::int16_t PageBreakCount = 0;

private:
    template <class Work> int Caught(const Work& work);
    void Write(std::string_view record);
    void WriteText(std::int16_t opcode, const std::string& text);
    void WritePageBreaks();
    std::string TextOf(const CellValue& value) const;
    double NumberOf(const CellValue& value) const;
    std::int16_t IntegerOf(const CellValue& value) const;

    FileText text_;
    std::unique_ptr<NewFile> file_;
    std::string path_;
    std::string bytes_; // of the open file, up to now
    std::string diskFailure_;
};

// A row or column, counted from 1, as the records count it from 0. One from 32768 up wraps without the step
// from 1 to 0. Fails with Overflow beyond 16 bits.
std::int16_t RecordPlace(std::int32_t place);

} // namespace dorvan
