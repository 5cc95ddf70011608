#include "session/busy.h"
#include "session/dialog.h"
#include "support/test_platform.h"

#include <gtest/gtest.h>

namespace dorvan::test {
namespace {

struct frmSample : Dialog {
    explicit frmSample(Session& session) : Dialog("frmSample", "Sample", session) { ++made; }
    void Ok() { Close(DialogResult::Accepted); }
    void CancelCommand() override { Close(DialogResult::Cancelled); }
    static inline int made = 0;
};

TEST(Dialog, ClosesWithItsOutcome) {
    TestSession test;
    frmSample dialog(test.session);
    EXPECT_EQ(dialog.Name, "frmSample");
    EXPECT_EQ(dialog.Caption, "Sample");
    dialog.Visible = true;
    dialog.Ok();
    EXPECT_FALSE(dialog.Visible);
    EXPECT_EQ(test.session.DialogOutcome, 1);
    dialog.Visible = true;
    dialog.CancelCommand();
    EXPECT_FALSE(dialog.Visible);
    EXPECT_EQ(test.session.DialogOutcome, -99);
}

TEST(Accepted, ShowsTheSameDialogEachTimeAndTellsItsOutcome) {
    TestSession test;
    frmSample::made = 0;
    test.forms.scripts = {[](Form& form) { dynamic_cast<frmSample&>(form).Ok(); },
                          [](Form& form) { form.CancelCommand(); }};
    EXPECT_TRUE(Accepted<frmSample>(test.session));
    EXPECT_FALSE(Accepted<frmSample>(test.session));
    EXPECT_EQ(frmSample::made, 1);
    test.expectScriptsUsedUp();
}

TEST(AcceptedForOutput, LooksAtTheOutcomeOfOutputDialogs) {
    TestSession test;
    for (const auto& [outcome, accepted] : {std::pair{1, true}, {0, false}, {-99, false}}) {
        test.forms.scripts.push_back([&test, code = outcome](Form& form) {
            test.session.OutputDialogOutcome = static_cast<std::int16_t>(code);
            form.Hide();
        });
        EXPECT_EQ(AcceptedForOutput<frmSample>(test.session), accepted) << outcome;
    }
}

TEST(RefusedWhileBusy, BeepsOnlyWhileADiagramIsBeingMade) {
    TestSession test;
    EXPECT_FALSE(IsBusy(test.session));
    EXPECT_FALSE(RefusedWhileBusy(test.session));
    EXPECT_EQ(test.signals.beeps, 0);
    test.session.DiagramBusy = 1;
    EXPECT_TRUE(IsBusy(test.session));
    EXPECT_EQ(test.signals.beeps, 0);
    EXPECT_TRUE(RefusedWhileBusy(test.session));
    EXPECT_EQ(test.signals.beeps, 1);
    test.session.DiagramBusy = 2;
    EXPECT_FALSE(IsBusy(test.session));
}

} // namespace
} // namespace dorvan::test
