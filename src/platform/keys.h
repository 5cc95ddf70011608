#pragma once

// Key codes (key down) and character codes (key press) as the windows' handlers know them. A handler that
// swallows a key sets its code to 0.
namespace dorvan::key {

inline constexpr int None = 0;
inline constexpr int Backspace = 8;
inline constexpr int Tab = 9;
inline constexpr int Enter = 13;
inline constexpr int Escape = 27;
inline constexpr int Space = 32;
inline constexpr int PageUp = 33;
inline constexpr int PageDown = 34;
inline constexpr int End = 35;
inline constexpr int Home = 36;
inline constexpr int Left = 37;
inline constexpr int Up = 38;
inline constexpr int Right = 39;
inline constexpr int Down = 40;
inline constexpr int F2 = 113;

inline constexpr bool IsDigit(int keyAscii) { return keyAscii >= '0' && keyAscii <= '9'; }

} // namespace dorvan::key

// Mouse buttons as the windows' handlers know them.
namespace dorvan::mouse {

inline constexpr int Left = 1;
inline constexpr int Right = 2;

} // namespace dorvan::mouse
