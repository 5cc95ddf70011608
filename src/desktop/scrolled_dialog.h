#pragma once

class QDialog;

namespace dorvan {

// Brings a dialog that is larger than its screen into it, its content behind scroll bars; its row of buttons
// stays in sight below. Leaves any other as it is. To be called before it shows.
void FitIntoScreen(QDialog& dialog);

} // namespace dorvan
