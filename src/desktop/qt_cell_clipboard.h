#pragma once

#include "platform/cell_clipboard.h"

namespace dorvan {

class QtCellClipboard : public CellClipboard {
public:
    void put(const std::string& tabbedText, const std::string& html) override;
    std::string text() override;
};

} // namespace dorvan
