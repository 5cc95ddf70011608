#pragma once

#include "platform/controls.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace dorvan {

// A list of which any number of lines can be selected; ListIndex is the line that the keys stand on.
struct MultiListBox : ListBox {
    using ListBox::ListBox;

    std::vector<bool> Selected; // a flag a line

    // Other lines, of which none is selected; the place of the keys stays as far as there are lines.
    void SetList(std::vector<std::string> lines) {
        List = std::move(lines);
        Selected.assign(List.size(), false);
        ListIndex = std::min(ListIndex, static_cast<int>(List.size()) - 1);
    }

    void SelectAll() { Selected.assign(List.size(), true); }
    bool AnySelected() const { return std::find(Selected.begin(), Selected.end(), true) != Selected.end(); }
};

} // namespace dorvan
