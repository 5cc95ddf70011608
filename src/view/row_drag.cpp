#include "view/row_drag.h"

#include "session/busy.h"

namespace dorvan {

void DragRow(Session& session, frmDiagram& window, int from, int to) {
    const int last = window.Siatka.Rows() - 1;
    if (from < 1 || to < 1 || from > last || to > last || from == to || RefusedWhileBusy(session)) return;
    const int column = window.Siatka.Column();
    if (window.RowSelected == 1 && window.SelectedRow != from) window.SelectThisRow(); // takes it back
    window.Siatka.SetCurrent(from, column);
    if (window.RowSelected == 0) window.SelectThisRow();
    window.Siatka.SetCurrent(to, column);
    window.Insert();
    session.DiagramStates.at(std::size_t(window.Index)).Dirty = true;
}

} // namespace dorvan
