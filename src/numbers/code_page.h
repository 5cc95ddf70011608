#pragma once

#include <string>
#include <string_view>

// The 8-bit code pages of files: windows-1250 to 1258 and 874.
namespace dorvan {

// A code page by its number; 1252 for a number that is none of them (see IsCodePage).
class CodePage {
public:
    explicit CodePage(int number = 1252);

    int Number() const { return number_; }

    // A character outside the page becomes "?". Malformed UTF-8: "?" for each bad byte.
    std::string FromUtf8(std::string_view text) const;

    // Total: a byte without a character of its own becomes the control character of the same number, and
    // fromUtf8 turns that back.
    std::string ToUtf8(std::string_view bytes) const;

private:
    int number_;
};

bool IsCodePage(int number);

// The code page that goes with a locale's name such as "pl_PL.UTF-8". 1250: bs, cs, hr, hu, pl, ro, sk, sl,
// sq, tk, sr@latin; 1251: ba, be, bg, kk, ky, mk, mn, ru, sr, tg, tt, uk, az@cyrillic, uz@cyrillic; 1253: el;
// 1254: az, tr, uz; 1255: he, iw, yi; 1256: ar, fa, ps, ug, ur; 1257: et, lt, lv; 1258: vi; 874: th; all else
// 1252.
int CodePageOfLocale(std::string_view localeName);

// The one of the user's language: the first that is set of LC_ALL, LC_CTYPE, LANG.
int SystemCodePage();

} // namespace dorvan
