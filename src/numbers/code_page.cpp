#include "numbers/code_page.h"

#include "numbers/code_page_tables.h"
#include "numbers/text.h"
#include "numbers/utf8.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>

namespace dorvan {

namespace {

constexpr int Western = 1252;

const CodePageTable* FindTable(int number) {
    const auto found = std::find_if(CodePageTables.begin(), CodePageTables.end(),
                                    [number](const CodePageTable& table) { return table.number == number; });
    return found == CodePageTables.end() ? nullptr : &*found;
}

// The byte of a character above U+007F, "?" when the page lacks it.
char ByteOf(char32_t codePoint, const CodePageTable& table) {
    const auto found = std::find(table.upperHalf.begin(), table.upperHalf.end(), codePoint);
    if (found == table.upperHalf.end()) return '?';
    return static_cast<char>(0x80 + (found - table.upperHalf.begin()));
}

struct LanguageCodePage {
    std::string_view language; // ISO 639
    int codePage;
};

constexpr LanguageCodePage LanguageCodePages[] = {
    {"bs", 1250}, {"cs", 1250}, {"hr", 1250}, {"hu", 1250}, {"pl", 1250}, {"ro", 1250}, {"sk", 1250},
    {"sl", 1250}, {"sq", 1250}, {"tk", 1250}, {"ba", 1251}, {"be", 1251}, {"bg", 1251}, {"kk", 1251},
    {"ky", 1251}, {"mk", 1251}, {"mn", 1251}, {"ru", 1251}, {"sr", 1251}, {"tg", 1251}, {"tt", 1251},
    {"uk", 1251}, {"el", 1253}, {"az", 1254}, {"tr", 1254}, {"uz", 1254}, {"he", 1255}, {"iw", 1255},
    {"yi", 1255}, {"ar", 1256}, {"fa", 1256}, {"ps", 1256}, {"ug", 1256}, {"ur", 1256}, {"et", 1257},
    {"lt", 1257}, {"lv", 1257}, {"vi", 1258}, {"th", 874},
};

// The alphabet that a locale's modifier asks for, where it is not the usual one of its language.
bool HasModifier(std::string_view localeName, std::string_view modifier) {
    const std::size_t place = localeName.find('@');
    return place != std::string_view::npos && localeName.substr(place + 1) == modifier;
}

} // namespace

CodePage::CodePage(int number) : number_(IsCodePage(number) ? number : Western) {}

std::string CodePage::FromUtf8(std::string_view text) const {
    const CodePageTable& table = *FindTable(number_);
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t offset = 0; offset < text.size();) {
        const Utf8Character character = Utf8CharacterAt(text, offset);
        if (!character.wellFormed)
            bytes += '?';
        else
            bytes += character.codePoint < 0x80 ? text[offset] : ByteOf(character.codePoint, table);
        offset += character.length;
    }
    return bytes;
}

std::string CodePage::ToUtf8(std::string_view bytes) const {
    const CodePageTable& table = *FindTable(number_);
    std::string text;
    text.reserve(bytes.size());
    for (const char byte : bytes) {
        const auto code = static_cast<unsigned char>(byte);
        if (code < 0x80)
            text += byte;
        else
            AppendUtf8(text, table.upperHalf[code - 0x80u]);
    }
    return text;
}

bool IsCodePage(int number) { return FindTable(number) != nullptr; }

int CodePageOfLocale(std::string_view localeName) {
    const std::string lowerName = LowerCase(localeName);
    const std::string_view name = lowerName;
    const std::string_view language = name.substr(0, name.find_first_of("_-.@"));
    if (language == "sr" && HasModifier(name, "latin")) return 1250;
    if ((language == "az" || language == "uz") && HasModifier(name, "cyrillic")) return 1251;
    const auto found = std::find_if(std::begin(LanguageCodePages), std::end(LanguageCodePages),
                                    [language](const auto& entry) { return entry.language == language; });
    return found == std::end(LanguageCodePages) ? Western : found->codePage;
}

int SystemCodePage() {
    for (const char* variable : {"LC_ALL", "LC_CTYPE", "LANG"}) {
        const char* localeName = std::getenv(variable);
        if (localeName != nullptr && *localeName != '\0') return CodePageOfLocale(localeName);
    }
    return Western;
}

} // namespace dorvan
