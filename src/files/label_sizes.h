#pragma once

#include <cstddef>

// Lengths that all document files share, in characters: one byte each in the code page.
namespace dorvan {

inline constexpr std::size_t RecordLabelSize = 15;
inline constexpr std::size_t VariableLabelSize = 8;
inline constexpr std::size_t OldDescriptionSize = 50; // of the older binary formats, padded with spaces

} // namespace dorvan
