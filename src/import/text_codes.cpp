#include "import/text_codes.h"

#include "files/file_fault.h"
#include "numbers/utf8.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace dorvan {

namespace {

constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view LittleEndianMark = "\xFF\xFE";
constexpr std::string_view BigEndianMark = "\xFE\xFF";

// The place of the first byte that is not part of a well-formed character; the text's size where all are.
std::size_t EndOfUtf8(std::string_view text) {
    std::size_t offset = 0;
    while (offset < text.size()) {
        if (static_cast<unsigned char>(text[offset]) < 0x80) {
            ++offset;
            continue;
        }
        const Utf8Character character = Utf8CharacterAt(text, offset);
        if (!character.wellFormed) break;
        offset += character.length;
    }
    return offset;
}

std::int64_t LineAt(std::string_view text, std::size_t offset) {
    return 1 + std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(offset), '\n');
}

std::string WithoutUtf8Mark(std::string text) {
    text.erase(0, Utf8Mark.size());
    if (const std::size_t end = EndOfUtf8(text); end < text.size())
        throw FileFault::AtLine(LineAt(text, end), "the file begins as UTF-8, but this line is not UTF-8");
    return text;
}

// Two bytes as one unit, in either order.
class Utf16Units {
public:
    Utf16Units(std::string_view bytes, bool bigEndian) : bytes_(bytes), high_(bigEndian ? 0 : 1) {}

    std::size_t Count() const { return bytes_.size() / 2; }
    char32_t At(std::size_t index) const {
        const auto byte = [&](std::size_t place) { return static_cast<unsigned char>(bytes_[place]); };
        return char32_t(byte(2 * index + high_) << 8 | byte(2 * index + 1 - high_));
    }

private:
    std::string_view bytes_;
    std::size_t high_; // the place of the upper byte within a unit
};

bool IsUpperHalf(char32_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
bool IsLowerHalf(char32_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

std::string FromUtf16(std::string_view bytes, bool bigEndian) {
    const Utf16Units units(bytes, bigEndian);
    std::string text;
    text.reserve(bytes.size());
    const auto require = [&](bool holds) {
        if (!holds)
            throw FileFault::AtLine(LineAt(text, text.size()),
                                    "the file begins as UTF-16, but this line is not UTF-16");
    };
    for (std::size_t index = 0; index < units.Count(); ++index) {
        char32_t codePoint = units.At(index);
        require(!IsLowerHalf(codePoint));
        if (IsUpperHalf(codePoint)) {
            ++index;
            require(index < units.Count() && IsLowerHalf(units.At(index)));
            codePoint = 0x10000 + ((codePoint - 0xD800) << 10) + (units.At(index) - 0xDC00);
        }
        AppendUtf8(text, codePoint);
    }
    require(bytes.size() % 2 == 0);
    return text;
}

std::string Decoded(std::string bytes, const TextCodes& codes) {
    const std::string_view view = bytes;
    if (codes.Forced) return codes.Page.ToUtf8(view);
    if (view.starts_with(LittleEndianMark)) return FromUtf16(view.substr(2), false);
    if (view.starts_with(BigEndianMark)) return FromUtf16(view.substr(2), true);
    if (view.starts_with(Utf8Mark)) return WithoutUtf8Mark(std::move(bytes));
    return EndOfUtf8(view) == view.size() ? std::move(bytes) : codes.Page.ToUtf8(view);
}

} // namespace

std::string TextOfFile(std::string bytes, const TextCodes& codes) {
    std::string text = Decoded(std::move(bytes), codes);
    if (const std::size_t nul = text.find('\0'); nul != std::string::npos)
        throw FileFault::AtLine(LineAt(text, nul), "a NUL stands here, which no text file has");
    return text;
}

std::vector<std::string> TextsJudgedTogether(std::vector<std::string> texts, const TextCodes& codes) {
    const bool utf8 = !codes.Forced && std::all_of(texts.begin(), texts.end(), [](const auto& text) {
        return EndOfUtf8(text) == text.size();
    });
    if (!utf8)
        for (auto& text : texts) text = codes.Page.ToUtf8(text);
    return texts;
}

} // namespace dorvan
