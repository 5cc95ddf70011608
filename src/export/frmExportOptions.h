#pragma once

#include "export/text_choices.h"
#include "platform/form.h"
#include "session/session.h"

namespace dorvan {

// The dialog "Export to text file options": how a data sheet goes out as text, `DataTextSeparator` and
// `DataTextNames`.
class frmExportOptions : public Form {
public:
    explicit frmExportOptions(Session& session);

    Frame Frame1{"Frame1", "Separator:"};
    OptionButton Option1{"Option1", "&semicolon (;)"};
    OptionButton Option2{"Option2", "&comma (,)"};
    OptionButton Option3{"Option3", "&tab separator"};
    CheckBox Check1{"Check1", "&Insert variable names"};
    CommandButton Command1{"Command1", "Cancel"};
    CommandButton Command2{"Command2", "O&K"};

    void Enter(const TextChoices& choices);

    void Form_Load() override;
    void Command1_Click();
    void Command2_Click();
    void CancelCommand() override { Command1_Click(); }

private:
    Session& session_;
};

} // namespace dorvan
