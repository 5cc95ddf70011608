#pragma once

#include "program/program.h"
#include "session/children.h"
#include "session/registry.h"
#include "sheet/frmNotePad.h"
#include "support/golden.h"
#include "support/test_platform.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace dorvan::test {

// The whole program without a screen, and a folder of its own.
class ProgramSession : public ::testing::Test {
protected:
    ProgramSession() { Compose(made.session); }

    // A sheet of three records and two variables in a window of its own.
    frmNotePad& NewSheet() {
        auto& session = made.session;
        session.NewWindowIndex = FindFreeDataSlot(session);
        PutIntoRegistry(session, DocumentKind::Data, std::make_shared<frmNotePad>(session));
        auto& window = DataWindow(session, session.NewWindowIndex);
        session.tables.RecordNames = Names(3);
        session.tables.VariableNames = Names(2);
        session.tables.DataValues = FloatTable(3, 2);
        for (int record = 1; record <= 3; ++record) {
            session.tables.RecordNames(record) = std::string("rec") + char('0' + record);
            for (int variable = 1; variable <= 2; ++variable)
                session.tables.DataValues(record, variable) = float(record * variable);
        }
        session.tables.VariableNames(1) = "a";
        session.tables.VariableNames(2) = "b";
        window.Caption = UntitledCaption(DocumentKind::Data, session.NewWindowIndex);
        window.Present("some towns");
        ShowChild(session, window);
        return window;
    }

    TemporaryFolder folder;
    TestSession made;
};

} // namespace dorvan::test
