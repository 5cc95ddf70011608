#include "numbers/text.h"

#include "numbers/utf8.h"

namespace dorvan {

namespace {

bool InRange(char32_t codePoint, char32_t first, char32_t last) {
    return codePoint >= first && codePoint <= last;
}

// Blocks where the capital and its small letter stand side by side, the capital at the even or the odd
// number.
char32_t NextIf(bool isCapital, char32_t codePoint) { return isCapital ? codePoint + 1 : codePoint; }

char32_t LowerLatinExtendedA(char32_t codePoint) {
    if (codePoint == 0x130) return U'i'; // the dotted capital I of Turkish
    if (codePoint == 0x178) return 0xFF; // the small y with diaeresis is of Latin-1
    if (codePoint == 0x138 || codePoint == 0x149 || codePoint == 0x17F) return codePoint; // small ones alone
    const bool capitalsAreOdd = InRange(codePoint, 0x139, 0x148) || InRange(codePoint, 0x179, 0x17E);
    return NextIf((codePoint % 2 == 1) == capitalsAreOdd, codePoint);
}

char32_t LowerGreek(char32_t codePoint) {
    if (InRange(codePoint, 0x391, 0x3A1) || InRange(codePoint, 0x3A3, 0x3AB)) return codePoint + 32;
    if (InRange(codePoint, 0x388, 0x38A)) return codePoint + 37;
    if (InRange(codePoint, 0x3D8, 0x3EF)) return NextIf(codePoint % 2 == 0, codePoint);
    switch (codePoint) {
    case 0x370:
    case 0x372:
    case 0x376:
    case 0x3F7:
    case 0x3FA: return codePoint + 1;
    case 0x37F: return 0x3F3;
    case 0x386: return 0x3AC;
    case 0x38C: return 0x3CC;
    case 0x38E:
    case 0x38F: return codePoint + 63;
    case 0x3CF: return 0x3D7;
    case 0x3F4: return 0x3B8;
    case 0x3F9: return 0x3F2;
    case 0x3FD:
    case 0x3FE:
    case 0x3FF: return codePoint - 130;
    default: return codePoint;
    }
}

char32_t LowerCyrillic(char32_t codePoint) {
    if (codePoint <= 0x40F) return codePoint + 80;
    if (codePoint <= 0x42F) return codePoint + 32;
    if (codePoint == 0x4C0) return 0x4CF;
    if (InRange(codePoint, 0x4C1, 0x4CE)) return NextIf(codePoint % 2 == 1, codePoint);
    const bool paired = InRange(codePoint, 0x460, 0x481) || InRange(codePoint, 0x48A, 0x4BF) ||
                        InRange(codePoint, 0x4D0, 0x52F);
    return NextIf(paired && codePoint % 2 == 0, codePoint);
}

char32_t LowerLetter(char32_t codePoint) {
    if (codePoint < 0x80) return InRange(codePoint, U'A', U'Z') ? codePoint + 32 : codePoint;
    if (codePoint < 0x100)
        return InRange(codePoint, 0xC0, 0xDE) && codePoint != 0xD7 ? codePoint + 32 : codePoint;
    if (codePoint < 0x180) return LowerLatinExtendedA(codePoint);
    if (InRange(codePoint, 0x370, 0x3FF)) return LowerGreek(codePoint);
    if (InRange(codePoint, 0x400, 0x52F)) return LowerCyrillic(codePoint);
    return codePoint;
}

// The byte where the character number `count`, counted from 0, starts; the text's end when it has no such.
std::size_t OffsetOfCharacter(std::string_view text, std::size_t count) {
    std::size_t offset = 0;
    for (; count > 0 && offset < text.size(); --count) offset += Utf8CharacterAt(text, offset).length;
    return offset;
}

} // namespace

std::size_t CharacterCount(std::string_view text) {
    std::size_t count = 0;
    for (std::size_t offset = 0; offset < text.size(); ++count)
        offset += Utf8CharacterAt(text, offset).length;
    return count;
}

std::string_view LeftCharacters(std::string_view text, std::size_t count) {
    return text.substr(0, OffsetOfCharacter(text, count));
}

std::string_view RightCharacters(std::string_view text, std::size_t count) {
    const std::size_t all = CharacterCount(text);
    return count >= all ? text : text.substr(OffsetOfCharacter(text, all - count));
}

std::string_view TrimSpaces(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to) {
    if (from.empty()) return std::string(text);
    std::string result;
    std::size_t start = 0;
    for (std::size_t found = text.find(from); found != std::string_view::npos;
         found = text.find(from, start)) {
        result += text.substr(start, found - start);
        result += to;
        start = found + from.size();
    }
    result += text.substr(start);
    return result;
}

std::vector<std::string_view> SplitFields(std::string_view text, char separator) {
    std::vector<std::string_view> fields;
    std::size_t start = 0;
    for (std::size_t end = text.find(separator); end != std::string_view::npos;
         end = text.find(separator, start)) {
        fields.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    fields.push_back(text.substr(start));
    return fields;
}

std::string LowerCase(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t offset = 0; offset < text.size();) {
        const Utf8Character character = Utf8CharacterAt(text, offset);
        if (character.wellFormed)
            AppendUtf8(result, LowerLetter(character.codePoint));
        else
            result += text[offset];
        offset += character.length;
    }
    return result;
}

std::string SignedText(long value) { return (value < 0 ? "" : " ") + std::to_string(value); }

} // namespace dorvan
