#pragma once

#include "import/import_choices.h"
#include "import/import_dialog.h"
#include "import/text_table.h"

#include <string>

namespace dorvan {

// The dialog of the import of delimited text: the file, its separator and which names it has.
class frmImportText : public ImportDialog {
public:
    explicit frmImportText(Session& session)
        : ImportDialog("frmImportText", "Import data from text file", session) {}

    Frame Frame1{"Frame1", "Separator:"};
    OptionButton Option1{"Option1", "&semicolon (;)"};
    OptionButton Option3{"Option3", "&tab separator"};
    Frame Frame2{"Frame2", "File:"};
    Label Label1{"Label1"}; // the chosen path
    CommandButton Command3{"Command3", "Browse"};
    Frame Frame3{"Frame3", "Names:"};
    CheckBox Check1{"Check1", "&Variable names in first row"};
    CheckBox Check2{"Check2", "&Records names in first column"};
    CommandButton Command2{"Command2", "OK"};
    CommandButton Command1{"Command1", "Cancel"};

    // What was accepted last; the separator is the session's `MatrixTextSeparator`.
    std::string ImportPath;
    bool ImportFirstRowNames = false;
    bool ImportFirstColumnNames = false;

    void Enter(const TextImportChoices& choices);

    void Form_Load() override;
    void Command3_Click();
    void Command2_Click();
    void Command1_Click() { Close(DialogResult::Cancelled); }
    void CancelCommand() override { Command1_Click(); }
};

} // namespace dorvan
