#include "import/modDBF.h"

#include "files/file_fault.h"
#include "numbers/rounding.h"
#include "numbers/text.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstddef>
#include <limits>
#include <vector>

namespace dorvan {

namespace {

constexpr std::size_t HeaderBytes = 32;
constexpr std::size_t DescriptorBytes = 32;
constexpr std::size_t NameBytes = 10; // an eleventh is not used
constexpr int EndMark = 1;            // the byte behind the descriptors
constexpr std::uint8_t PlainVersion = 3;
constexpr std::uint8_t MemoVersion = 131;

std::uint8_t Byte(std::string_view bytes, std::size_t place) {
    return static_cast<std::uint8_t>(bytes[place]);
}

std::int16_t Int16(std::string_view bytes, std::size_t place) {
    return static_cast<std::int16_t>(Byte(bytes, place) | Byte(bytes, place + 1) << 8);
}

std::int32_t Int32(std::string_view bytes, std::size_t place) {
    return static_cast<std::int32_t>(std::uint32_t(static_cast<std::uint16_t>(Int16(bytes, place))) |
                                     std::uint32_t(static_cast<std::uint16_t>(Int16(bytes, place + 2)))
                                         << 16);
}

std::int32_t FieldCountOf(std::int16_t headerSize) {
    return RoundToInt32((double(headerSize) - double(HeaderBytes)) / double(DescriptorBytes));
}

} // namespace

std::string CleanName(std::string_view text) { return ReplaceAll(TrimSpaces(text), {"\0", 1}, ""); }

void modDBF::OpenDBF(std::string_view file, const TextCodes& codes) {
    DBStatus = 0;
    DBFields = {};
    DBFieldCount = 0;
    DBRecord.clear();
    DBKind.clear();
    if (!ReadHeader(file) || !ReadFields(file, codes) || !TakeKind()) return;
    if (DBHeader.RecordSize < 0)
        throw FileFault::AtByte(11, fmt::format("the record size {} is below 0", DBHeader.RecordSize));
    DBRecord.assign(std::size_t(DBHeader.RecordSize), ' ');
}

// False where there is no more to read.
bool modDBF::ReadHeader(std::string_view file) {
    if (file.size() < HeaderBytes) {
        DBStatus = NoHeader;
        return false;
    }
    DBHeader = {.Version = Byte(file, 0),
                .Year = Byte(file, 1),
                .Month = Byte(file, 2),
                .Day = Byte(file, 3),
                .RecordCount = Int32(file, 4),
                .HeaderSize = Int16(file, 8),
                .RecordSize = Int16(file, 10)};
    return DBHeader.HeaderSize >= std::int16_t(HeaderBytes);
}

bool modDBF::ReadFields(std::string_view file, const TextCodes& codes) {
    const std::int32_t count = FieldCountOf(DBHeader.HeaderSize);
    if (count > std::numeric_limits<std::uint8_t>::max())
        throw FileFault::AtByte(9, fmt::format("the header of {} bytes claims {} fields, more than 255",
                                               DBHeader.HeaderSize, count));
    DBFieldCount = static_cast<std::uint8_t>(count);
    std::vector<std::string> names;
    std::int32_t offset = 2;
    for (std::size_t i = 1; i <= std::size_t(count); ++i) {
        if (file.size() < (i + 1) * DescriptorBytes) {
            DBStatus = NoDescriptor;
            return false;
        }
        const std::string_view bytes = file.substr(i * DescriptorBytes, DescriptorBytes);
        names.emplace_back(TrimSpaces(CleanName(bytes.substr(0, NameBytes))));
        DBFields.Append({.Name = {}, .Type = bytes[11], .Length = Byte(bytes, 16), .Offset = offset});
        offset += Byte(bytes, 16);
    }
    names = TextsJudgedTogether(std::move(names), codes);
    for (std::size_t i = 0; i < names.size(); ++i) DBFields.Cells()[i].Name = std::move(names[i]);
    if (DBHeader.HeaderSize == std::int32_t(HeaderBytes + DescriptorBytes * std::size_t(count)) + EndMark)
        return true;
    DBStatus = WrongHeaderSize;
    return false;
}

bool modDBF::TakeKind() {
    if (DBHeader.Version == PlainVersion)
        DBKind = "dBase III";
    else if (DBHeader.Version == MemoVersion)
        DBKind = "dBase III z polami Memo";
    else {
        DBKind = "To nie jest plik DBase III!";
        DBStatus = UnknownVersion;
    }
    return DBStatus == 0;
}

void modDBF::ReadRecord(std::string_view file, std::int32_t record) {
    const std::int64_t place = std::int64_t(record - 1) * DBHeader.RecordSize + DBHeader.HeaderSize;
    const std::size_t start =
        std::min(file.size(), static_cast<std::size_t>(std::max<std::int64_t>(place, 0)));
    const std::string_view bytes = file.substr(start, DBRecord.size());
    std::fill(std::copy(bytes.begin(), bytes.end(), DBRecord.begin()), DBRecord.end(), '\0');
}

std::int32_t modDBF::FieldIndex(std::string_view name) const {
    const auto& fields = DBFields.Cells();
    const auto found = std::find_if(fields.begin(), fields.end(), [&](const DBField& field) {
        return TrimSpaces(field.Name) == TrimSpaces(name);
    });
    return found == fields.end() ? 0 : std::int32_t(found - fields.begin()) + 1;
}

std::string_view modDBF::FieldValue(std::string_view name) const {
    const std::int32_t index = FieldIndex(name);
    return index == 0 ? std::string_view() : FieldValueByIndex(index);
}

std::string_view modDBF::FieldValueByIndex(std::int32_t index) const {
    const DBField& field = DBFields(index);
    const std::size_t start = std::min(DBRecord.size(), static_cast<std::size_t>(field.Offset - 1));
    return std::string_view(DBRecord).substr(start, field.Length);
}

} // namespace dorvan
