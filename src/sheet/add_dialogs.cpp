#include "sheet/add_dialogs.h"

#include "numbers/number_text.h"
#include "numbers/runtime_failure.h"
#include "numbers/text.h"
#include "sheet/frmNotePad.h"

#include <fmt/format.h>

namespace dorvan {

// The outcome is set before the tests, and stays when one of them leaves the dialog open.
void AddDialog::Command2_Click() {
    session_.DialogOutcome = DialogResult::Accepted;
    try {
        PendingAddCount = StrictInt16(Text1.Text, session_.DecimalSeparator);
    } catch (const RuntimeFailure&) {
        return Refuse("Invalid number!");
    }
    const int rest = Most() - Present();
    if (PendingAddCount > rest) return Refuse(NoRoom(SignedText(rest)));
    Hide();
}

void AddDialog::Refuse(const std::string& text) {
    session_.platform.messages.show({.Text = text, .Icon = MessageIcon::Critical});
}

int frmAddRec::Present() const { return ActiveDataWindow(session_).RecordCount(); }

std::string frmAddRec::NoRoom(const std::string& rest) const {
    return fmt::format("Max. 1999 records. You can add only {} new records.", rest);
}

int frmAddVar::Present() const { return ActiveDataWindow(session_).VariableCount(); }

std::string frmAddVar::NoRoom(const std::string& rest) const {
    return fmt::format("Max. 100 variables. You can add only {} new variables.", rest);
}

} // namespace dorvan
