#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// Worksheet bytes as a test spells them out, independent of the writer.
namespace dorvan::test {

inline std::string bytesOf(std::initializer_list<int> values) {
    std::string bytes;
    for (const int value : values) bytes += static_cast<char>(value);
    return bytes;
}

struct ExcelRecord {
    int opcode = 0;
    std::string content;
    bool operator==(const ExcelRecord&) const = default;
};

// The records of a file, to its end; an unfinished one at the end gets the opcode -1.
inline std::vector<ExcelRecord> excelRecordsOf(std::string_view bytes) {
    const auto word = [&](std::size_t place) {
        return static_cast<unsigned char>(bytes[place]) + 256 * static_cast<unsigned char>(bytes[place + 1]);
    };
    std::vector<ExcelRecord> records;
    for (std::size_t place = 0; place < bytes.size();) {
        if (place + 4 > bytes.size() || place + 4 + std::size_t(word(place + 2)) > bytes.size()) {
            records.push_back({-1, std::string(bytes.substr(place))});
            break;
        }
        const auto length = std::size_t(word(place + 2));
        records.push_back({word(place), std::string(bytes.substr(place + 4, length))});
        place += 4 + length;
    }
    return records;
}

} // namespace dorvan::test
