#pragma once

class QLineEdit;

namespace dorvan {

class EventDispatch;
class GridWidget;
class frmNotePad;

// Tab and Shift+Tab in the table of a sheet and in its edit field move along the row.
void BindTabs(GridWidget& grid, QLineEdit& editCell, frmNotePad& window, EventDispatch& dispatch);

} // namespace dorvan
