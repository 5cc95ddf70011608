#pragma once

// Lengths of windows, controls and drawings are in twips.
namespace dorvan {

inline constexpr int TwipsPerPixel = 15;

// To the nearest pixel, halves up; for lengths from 0 on.
constexpr int PixelsOf(int twips) { return (twips + TwipsPerPixel / 2) / TwipsPerPixel; }

} // namespace dorvan
