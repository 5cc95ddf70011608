#pragma once

#include "program/program.h"
#include "session/children.h"
#include "session/registry.h"
#include "sheet/frmNotePad.h"
#include "sheet/frmNowy.h"
#include "sheet/new_data_sheet.h"
#include "support/test_platform.h"

#include <string>

namespace dorvan::test {

// A started session in which all operations of the program are composed.
struct SheetSession : TestSession {
    SheetSession() { Compose(session); }

    // By the command New with these counts.
    frmNotePad& NewSheet(int records, int variables) {
        forms.scripts.push_back([=](Form& form) {
            auto& dialog = dynamic_cast<frmNowy&>(form);
            dialog.txtRecords.Text = std::to_string(records);
            dialog.txtLiczba.Text = std::to_string(variables);
            dialog.Command1_Click();
        });
        NewDataSheet(session);
        return ActiveDataWindow(session);
    }
};

} // namespace dorvan::test
