#pragma once

#include "numbers/code_page.h"

#include <string>
#include <string_view>
#include <vector>

// How the bytes of an imported file become text. A spreadsheet of today writes UTF-8 or UTF-16 as often as
// the code page, and names may not come in garbled.
namespace dorvan {

struct TextCodes {
    CodePage Page;
    bool Forced = false; // the page was asked for: it holds whatever the bytes look like
};

// The text of a whole file, without a byte order mark: UTF-8 or UTF-16 where the file begins with the mark of
// one, UTF-8 where all of it is well-formed, else the code page. Fails with a FileFault for a mark that the
// bytes behind it do not keep to, and for a NUL, which no text holds.
std::string TextOfFile(std::string bytes, const TextCodes& codes);

// Texts of a binary file that belong together, judged as one: UTF-8 where all of them are well-formed, else
// the code page.
std::vector<std::string> TextsJudgedTogether(std::vector<std::string> texts, const TextCodes& codes);

} // namespace dorvan
