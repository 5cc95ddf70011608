#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// A reader of metafiles that checks what every reader relies on.
namespace dorvan::test {

struct MetafileRecord {
    int Function = 0;
    std::string Parameters; // bytes

    // A parameter as a 16-bit signed number, from 0.
    int Word(std::size_t place) const {
        const auto byte = [&](std::size_t k) { return static_cast<unsigned char>(Parameters.at(k)); };
        return static_cast<std::int16_t>(byte(2 * place) | byte(2 * place + 1) << 8);
    }
    bool operator==(const MetafileRecord&) const = default;
};

inline std::uint32_t longAt(std::string_view bytes, std::size_t place) {
    std::uint32_t value = 0;
    for (std::size_t k = 4; k-- > 0;) value = value << 8 | static_cast<unsigned char>(bytes.at(place + k));
    return value;
}

inline int wordAt(std::string_view bytes, std::size_t place) {
    return static_cast<unsigned char>(bytes.at(place)) | static_cast<unsigned char>(bytes.at(place + 1)) << 8;
}

// The records without the end. Expects a header with right sizes, an end record and nothing behind it, and
// objects that are created before they are selected or deleted, in the lowest free place.
inline std::vector<MetafileRecord> metafileRecordsOf(std::string_view metafile) {
    std::vector<MetafileRecord> records;
    EXPECT_EQ(wordAt(metafile, 0), 1);
    EXPECT_EQ(wordAt(metafile, 2), 9);
    EXPECT_EQ(wordAt(metafile, 4), 0x300);
    EXPECT_EQ(longAt(metafile, 6) * 2, metafile.size());
    EXPECT_EQ(wordAt(metafile, 16), 0);
    std::vector<bool> places;
    std::size_t most = 0;
    std::uint32_t largest = 0;
    std::size_t place = 18;
    while (place < metafile.size()) {
        const std::uint32_t words = longAt(metafile, place);
        if (words < 3 || place + words * 2 > metafile.size()) {
            ADD_FAILURE() << "a record of " << words << " words at " << place;
            return records;
        }
        largest = std::max(largest, words);
        records.push_back(
            {wordAt(metafile, place + 4), std::string(metafile.substr(place + 6, words * 2 - 6))});
        const MetafileRecord& record = records.back();
        if (record.Function == 0x2FB || record.Function == 0x2FC) {
            const auto free = std::find(places.begin(), places.end(), false);
            if (free == places.end())
                places.push_back(true);
            else
                *free = true;
            most = std::max(most, places.size());
        }
        if (record.Function == 0x12D || record.Function == 0x1F0) {
            const auto object = std::size_t(record.Word(0));
            EXPECT_TRUE(object < places.size() && places[object]) << "object " << object << " at " << place;
            if (record.Function == 0x1F0 && object < places.size()) places[object] = false;
        }
        place += words * 2;
    }
    EXPECT_EQ(largest, longAt(metafile, 12));
    EXPECT_EQ(most, std::size_t(wordAt(metafile, 10)));
    if (records.empty() || records.back().Function != 0) {
        ADD_FAILURE() << "no end";
        return records;
    }
    records.pop_back();
    return records;
}

} // namespace dorvan::test
