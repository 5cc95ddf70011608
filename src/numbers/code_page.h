#pragma once

#include <string>
#include <string_view>

// The 8-bit code pages of files: windows-1250 to 1258 and 874.
namespace dorvan {

// A code page by its number; 1252 for a number that is none of them (see IsCodePage).
class CodePage {
public:
    explicit CodePage(int number = 1252);

    int number() const { return number_; }

    // A character outside the page becomes "?". Malformed UTF-8: "?" for each bad byte.
    std::string fromUtf8(std::string_view text) const;

    // Total: a byte without a character of its own becomes the control character of the same number, and
    // fromUtf8 turns that back.
    std::string toUtf8(std::string_view bytes) const;

private:
    int number_;
};

bool IsCodePage(int number);

// The code page that goes with a locale's name such as "pl_PL.UTF-8": pl, cs, hu, sk, sl, hr, ro, sq, bs,
// tk, sr@latin: 1250; ru, uk, be, bg, mk, sr, kk, ky, tg, tt, ba, mn, az@cyrillic, uz@cyrillic: 1251; el:
// 1253; tr, az, uz: 1254; he, yi: 1255; ar, fa, ur, ps, ug: 1256; et, lv, lt: 1257; vi: 1258; th: 874; all
// else 1252.
int CodePageOfLocale(std::string_view localeName);

// The one of the user's language: the first that is set of LC_ALL, LC_CTYPE, LANG.
int SystemCodePage();

} // namespace dorvan
