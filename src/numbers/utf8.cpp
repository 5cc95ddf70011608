#include "numbers/utf8.h"

namespace dorvan {

namespace {

unsigned ByteAt(std::string_view text, std::size_t offset) {
    return static_cast<unsigned char>(text[offset]);
}

// The bytes of a sequence by its first byte; 0 where no sequence starts with it.
std::size_t SequenceLength(unsigned lead) {
    if (lead < 0x80) return 1;
    if (lead >= 0xC2 && lead <= 0xDF) return 2;
    if (lead >= 0xE0 && lead <= 0xEF) return 3;
    if (lead >= 0xF0 && lead <= 0xF4) return 4;
    return 0;
}

bool IsCharacter(char32_t codePoint, std::size_t length) {
    if (length == 3) return codePoint >= 0x800 && (codePoint < 0xD800 || codePoint > 0xDFFF);
    if (length == 4) return codePoint >= 0x10000 && codePoint <= 0x10FFFF;
    return true;
}

} // namespace

Utf8Character Utf8CharacterAt(std::string_view text, std::size_t offset) {
    const unsigned lead = ByteAt(text, offset);
    if (lead < 0x80) return {lead, 1, true};
    const Utf8Character badByte{lead, 1, false};
    const std::size_t length = SequenceLength(lead);
    if (length == 0 || length > text.size() - offset) return badByte;
    char32_t codePoint = lead & (0x7Fu >> length);
    for (std::size_t place = 1; place < length; ++place) {
        const unsigned following = ByteAt(text, offset + place);
        if ((following & 0xC0) != 0x80) return badByte;
        codePoint = codePoint << 6 | (following & 0x3F);
    }
    return IsCharacter(codePoint, length) ? Utf8Character{codePoint, length, true} : badByte;
}

void AppendUtf8(std::string& text, char32_t codePoint) {
    const auto continuation = [codePoint](int shift) {
        return static_cast<char>(0x80 | (codePoint >> shift & 0x3F));
    };
    if (codePoint < 0x80) {
        text += static_cast<char>(codePoint);
    } else if (codePoint < 0x800) {
        text += static_cast<char>(0xC0 | codePoint >> 6);
        text += continuation(0);
    } else if (codePoint < 0x10000) {
        text += static_cast<char>(0xE0 | codePoint >> 12);
        text += continuation(6);
        text += continuation(0);
    } else {
        text += static_cast<char>(0xF0 | codePoint >> 18);
        text += continuation(12);
        text += continuation(6);
        text += continuation(0);
    }
}

} // namespace dorvan
