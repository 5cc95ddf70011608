#pragma once

#include "export/text_choices.h"
#include "platform/form.h"
#include "session/session.h"

namespace dorvan {

// The dialog "Export text options": how a matrix goes out as text, `MatrixTextSeparator`.
class frmTextOptions : public Form {
public:
    explicit frmTextOptions(Session& session);

    Frame Frame1{"Frame1", "Separator:"};
    OptionButton Option1{"Option1", "semicolon (;)"};
    OptionButton Option2{"Option2", "comma (,)"};
    OptionButton Option3{"Option3", "&tab separator"};
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
