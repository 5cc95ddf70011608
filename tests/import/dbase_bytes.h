#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace dorvan::test {

// Builds a dBase III table. What a test wants wrong is set before bytes() is called.
class DBaseBytes {
public:
    struct Field {
        std::string Name; // padded with NUL
        char Type;
        int Length;
    };

    int Version = 3;
    int Year = 104;
    int Month = 3;
    int Day = 7;
    std::uint32_t RecordCount = 0; // as many as were added, unless set to another number
    int HeaderSize = 0;
    int RecordSize = 1;

    explicit DBaseBytes(std::vector<Field> fields) : fields_(std::move(fields)) {
        HeaderSize = static_cast<int>(32 * fields_.size() + 33);
        for (const auto& field : fields_) RecordSize += field.Length;
    }

    // Numbers to the right of their field, other text to the left.
    DBaseBytes& record(const std::vector<std::string>& values, char mark = ' ') {
        records_ += mark;
        for (std::size_t i = 0; i < values.size(); ++i) {
            const std::string padding(static_cast<std::size_t>(fields_[i].Length) - values[i].size(), ' ');
            records_ += fields_[i].Type == 'N' ? padding + values[i] : values[i] + padding;
        }
        ++RecordCount;
        return *this;
    }

    std::string bytes() const {
        std::string all;
        for (const int byte : {Version, Year, Month, Day}) all += static_cast<char>(byte);
        little(all, RecordCount, 4);
        little(all, static_cast<std::uint32_t>(HeaderSize), 2);
        little(all, static_cast<std::uint32_t>(RecordSize), 2);
        all.append(20, '\x77'); // reserved
        for (const auto& field : fields_) all += descriptor(field);
        return all + '\r' + records_ + '\x1A';
    }

private:
    static void little(std::string& bytes, std::uint32_t value, int size) {
        for (int i = 0; i < size; ++i) bytes += static_cast<char>(value >> 8 * i);
    }
    static std::string descriptor(const Field& field) {
        std::string bytes = field.Name;
        bytes.resize(11, '\0');
        bytes += field.Type;
        bytes.append(4, '\x55'); // an address that nobody uses
        bytes += static_cast<char>(field.Length);
        bytes.append(15, '\x77');
        return bytes;
    }

    std::vector<Field> fields_;
    std::string records_;
};

// Three counties with two numeric fields, a character field between them and a field of another type.
inline DBaseBytes CountiesTable() {
    DBaseBytes table({{"AREA", 'N', 8}, {"NAME", 'C', 10}, {"SEEN", 'L', 1}, {"BIRTHS", 'N', 6}});
    table.record({"0.114", "Ashe", "T", "1091"});
    table.record({"0.061", "Alleghany", "F", "487"});
    table.record({"-1.5", "  Surry", "?", "3188"});
    return table;
}

} // namespace dorvan::test
