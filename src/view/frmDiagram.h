#pragma once

#include "platform/child_window.h"
#include "platform/grid.h"
#include "session/session.h"

#include <cstdint>
#include <string>

namespace dorvan {

// The window that shows one diagram: a square of symbols with the records' numbers and names along its edge.
// The diagram itself is `DiagramDocuments(Index)`; the grid is only its picture.
class frmDiagram : public ChildWindow {
public:
    explicit frmDiagram(Session& session);

    TextBox BottomText{"BottomText"}; // the description
    Grid Siatka{"Siatka"};

    std::int16_t SelectedRow = 0;  // the selected grid row, 0 when none
    std::int16_t RowSelected = 0;  // 1 while a row is selected
    Array1<std::int16_t> RowOrder; // the permutation that the next reorder applies

    DiagramDocument& Document();

    // Lays the grid out for the document of the slot and fills it; shows the description.
    void Present(const std::string& description) override;

    void Form_Activate() override;
    void Form_Deactivate() override;
    bool Form_QueryUnload() override;
    void Form_Unload() override;
    void Form_Resize() override;

private:
    Session& session_;
};

frmDiagram& DiagramWindow(Session& session, std::int16_t slot);

} // namespace dorvan
