#pragma once

#include "import/text_codes.h"
#include "numbers/arrays.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace dorvan {

// The first 32 bytes of a table, little-endian, without the reserved ones.
struct TableHeader {
    std::uint8_t Version = 0; // 3 plain, 131 with memo fields
    std::uint8_t Year = 0;    // since 1900
    std::uint8_t Month = 0;
    std::uint8_t Day = 0;
    std::int32_t RecordCount = 0;
    std::int16_t HeaderSize = 0;
    std::int16_t RecordSize = 0;
};

struct DBField {
    std::string Name;
    char Type = 0; // 'N' numeric, 'C' character; others are of no use here
    std::uint8_t Length = 0;
    std::int32_t Offset = 0; // within the record, from 1; place 1 is the mark of a deleted record
};

// The reader of dBase III tables, over the bytes of a whole file. Nothing is sized by a claim that the file
// does not fill.
class modDBF {
public:
    static constexpr std::uint8_t NoHeader = 2; // values of DBStatus; 0 is no error
    static constexpr std::uint8_t UnknownVersion = 3;
    static constexpr std::uint8_t WrongHeaderSize = 4; // it does not fit the field count
    static constexpr std::uint8_t NoDescriptor = 7;

    std::string DBPath; // of the table that the user chose; empty: none
    std::uint8_t DBStatus = 0;
    TableHeader DBHeader;
    Array1<DBField> DBFields;
    std::uint8_t DBFieldCount = 0;
    std::string DBRecord; // the bytes of the record that was read last
    std::string DBKind;

    // Reads header and fields and sets DBStatus. The names of the fields are judged together as to how they
    // are written. Fails with a FileFault for more than 255 fields and for a negative record size.
    void OpenDBF(std::string_view file, const TextCodes& codes);

    // Puts a record, counted from 1, into DBRecord; bytes that the file does not have are NUL.
    void ReadRecord(std::string_view file, std::int32_t record);

    // The bytes of a field of the record, as they stand and as far as the record has them; empty for an
    // unknown name. The first field of a name is the one that counts.
    std::string_view FieldValue(std::string_view name) const;
    std::string_view FieldValueByIndex(std::int32_t index) const;

    // The index of a field by its name; 0 where there is none.
    std::int32_t FieldIndex(std::string_view name) const;

private:
    bool ReadHeader(std::string_view file);
    bool ReadFields(std::string_view file, const TextCodes& codes);
    bool TakeKind();
};

// The text without the spaces at both ends, and without NULs.
std::string CleanName(std::string_view text);

} // namespace dorvan
