#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// Text inside the program is UTF-8; it is counted and cut by characters (code points), never inside one.
// A byte that is not part of well-formed UTF-8 counts as one character.
namespace dorvan {

std::size_t CharacterCount(std::string_view text);

// The first `count` characters; the whole text when it is not longer.
std::string_view LeftCharacters(std::string_view text, std::size_t count);

// The last `count` characters; the whole text when it is not longer.
std::string_view RightCharacters(std::string_view text, std::size_t count);

// Spaces (U+0020 only: no tabs, no line ends) cut from both ends.
std::string_view TrimSpaces(std::string_view text);

std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to);

// Always at least one field: an empty text gives one empty field.
std::vector<std::string_view> SplitFields(std::string_view text, char separator);

// Letters lower-cased one by one, independent of the process's locale: ASCII, Latin-1, Latin Extended-A,
// Greek and Cyrillic; all else as it stands.
std::string LowerCase(std::string_view text);

// The decimal text of a number with a blank in the place of a plus sign: " 3", "-3".
std::string SignedText(long value);

} // namespace dorvan
