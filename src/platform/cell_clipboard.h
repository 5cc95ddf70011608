#pragma once

#include <string>

namespace dorvan {

// A port: cells on the clipboard, as spreadsheets put them there and take them.
struct CellClipboard {
    virtual ~CellClipboard() = default;
    virtual void put(const std::string& tabbedText, const std::string& html) = 0;
    virtual std::string text() = 0; // empty when there is none
};

} // namespace dorvan
