#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

// A device that records what is drawn on it as a Windows metafile, in memory. Lengths are logical units, of
// which the low 16 bits are recorded.
namespace dorvan {

// A font or a brush. It is recorded when it is first selected, in the lowest free place of the metafile's
// table of objects; deleting it frees the place.
class MetafileDevice {
public:
    using Handle = int; // from 1

    struct LogicalFont {
        int Height = 0; // below 0: of the characters themselves
        int Weight = 400;
        std::uint8_t CharSet = 1; // the system's
        std::uint8_t Quality = 2; // proof
        std::string Face;         // up to 31 bytes
    };

    Handle CreateFont(const LogicalFont& font);
    Handle CreateSolidBrush(std::uint32_t colour); // 0xBBGGRR
    void SelectObject(Handle object);
    void DeleteObject(Handle object); // leaves no record for one that was never selected

    void MoveTo(int x, int y);
    void LineTo(int x, int y);
    void Ellipse(int left, int top, int right, int bottom);
    void TextOut(int x, int y, std::string_view bytes); // in the 8-bit code page

    // The whole metafile: header, records, end. Once.
    std::string Close();

private:
    struct Object {
        std::string Creation; // its record
        int Place = -1;       // in the table; -1: not recorded
    };

    Handle Keep(std::string creation);
    int FreePlace();
    void Record(std::uint16_t function, std::initializer_list<int> words);
    void Append(std::string_view record);

    std::map<Handle, Object> objects_;
    Handle last_ = 0;
    std::vector<bool> places_; // taken ones
    std::size_t largest_ = 0;  // record, in bytes
    std::string records_;
};

} // namespace dorvan
