#pragma once

#include "export/separator_dialog.h"

namespace dorvan {

// The dialog "Export to text file options": how a data sheet goes out as text, `DataTextSeparator` and
// `DataTextNames`.
class frmExportOptions : public SeparatorDialog {
public:
    explicit frmExportOptions(Session& session)
        : SeparatorDialog("frmExportOptions", "Export to text file options", session,
                          &Session::DataTextSeparator, "&semicolon (;)", "&comma (,)") {}

    CheckBox Check1{"Check1", "&Insert variable names"};

    void Enter(const TextChoices& choices);

    void Form_Load() override;
    void Command2_Click();
};

} // namespace dorvan
