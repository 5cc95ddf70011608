#include "distance/frmCustomized.h"
#include "platform/keys.h"
#include "support/test_platform.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace dorvan::test {
namespace {

struct frmCustomizedTest : ::testing::Test, TestSession {
    frmCustomized& dialog = session.forms.Load<frmCustomized>(session);

    // What the key has become after the handler.
    int KeyIn(TextBox& field, int key) {
        if (&field == &dialog.Text1)
            dialog.Text1_KeyPress(key);
        else
            dialog.Text2_KeyPress(key);
        return key;
    }

    void Accept(const std::string& p, const std::string& r) {
        dialog.Visible = true;
        dialog.Text1.Text = p;
        dialog.Text2.Text = r;
        dialog.Command1_Click();
    }
};

TEST_F(frmCustomizedTest, StartsWithTwoInBothFields) {
    EXPECT_EQ(dialog.Caption, "Customized distance");
    EXPECT_EQ(dialog.Text1.Text, "2");
    EXPECT_EQ(dialog.Text2.Text, "2");
    EXPECT_EQ(dialog.Command1.Caption, "O&K");
    EXPECT_EQ(dialog.Command2.Caption, "Cancel");
}

TEST_F(frmCustomizedTest, EnteredChoicesStandInTheFields) {
    dialog.Enter({.P = "3", .R = ""});
    EXPECT_EQ(dialog.Text1.Text, "3");
    EXPECT_EQ(dialog.Text2.Text, "2");
    dialog.Enter({.P = "", .R = "x"});
    EXPECT_EQ(dialog.Text1.Text, "3");
    EXPECT_EQ(dialog.Text2.Text, "x");
}

TEST_F(frmCustomizedTest, ItsFieldsHaveLabels) {
    EXPECT_EQ(dialog.Label1.Caption, "p = ");
    EXPECT_EQ(dialog.Label2.Caption, "r = ");
}

TEST_F(frmCustomizedTest, DigitsPassUntilThreeCharactersStandInTheField) {
    for (TextBox* field : {&dialog.Text1, &dialog.Text2}) {
        for (const char* text : {"", "1", "12"}) {
            field->Text = text;
            EXPECT_EQ(KeyIn(*field, '0'), '0');
            EXPECT_EQ(KeyIn(*field, '9'), '9');
        }
        for (const char* text : {"123", "1234"}) {
            field->Text = text;
            EXPECT_EQ(KeyIn(*field, '0'), key::None);
            EXPECT_EQ(KeyIn(*field, '9'), key::None);
        }
    }
}

TEST_F(frmCustomizedTest, AFourthDigitIsRefusedAlsoWhenSomeAreSelected) {
    dialog.Text1.Text = "123";
    dialog.Text1.SelLength = 3;
    EXPECT_EQ(KeyIn(dialog.Text1, '5'), key::None);
}

TEST_F(frmCustomizedTest, BackspacePassesAndAnyOtherKeyIsRefused) {
    for (TextBox* field : {&dialog.Text1, &dialog.Text2}) {
        field->Text = "123";
        EXPECT_EQ(KeyIn(*field, key::Backspace), key::Backspace);
        field->Text = "1";
        for (const int other : {int('-'), int('+'), int('.'), int(','), int(' '), int('a'), int('/'),
                                int(':'), key::Tab, key::Escape})
            EXPECT_EQ(KeyIn(*field, other), key::None) << other;
    }
    EXPECT_TRUE(keyboard.sent.empty());
}

TEST_F(frmCustomizedTest, EnterMovesTheFocusAndSelectsTheTextOfAField) {
    dialog.SetFocus(dialog.Text1);
    keyboard.onSend = [this](const std::string& keys) {
        if (keys == "{TAB}") dialog.SetFocus(dialog.Text2);
    };
    EXPECT_EQ(KeyIn(dialog.Text1, key::Enter), key::None);
    EXPECT_EQ(keyboard.sent, (std::vector<std::string>{"{TAB}", "{HOME}", "+{END}"}));
}

TEST_F(frmCustomizedTest, EnterOnToAButtonSelectsNothing) {
    dialog.SetFocus(dialog.Text2);
    keyboard.onSend = [this](const std::string&) { dialog.SetFocus(dialog.Command1); };
    EXPECT_EQ(KeyIn(dialog.Text2, key::Enter), key::None);
    EXPECT_EQ(keyboard.sent, (std::vector<std::string>{"{TAB}"}));
}

TEST_F(frmCustomizedTest, OKStoresTheParametersAndHidesTheDialog) {
    Accept("3", "999");
    EXPECT_EQ(session.Par_P, 3);
    EXPECT_EQ(session.Par_R, 999);
    EXPECT_EQ(session.DialogOutcome, 1);
    EXPECT_FALSE(dialog.Visible);
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(frmCustomizedTest, TheFieldsKeepTheirTextsForTheNextShowing) {
    // As any user of the dialog shows it: found by its class, then shown modally.
    const auto show = [this](const std::string& p, const std::string& r, bool accept) {
        std::string before;
        forms.scripts.push_back([&, accept](Form& form) {
            auto& shown = dynamic_cast<frmCustomized&>(form);
            shown.Form_Show();
            before = shown.Text1.Text + "/" + shown.Text2.Text;
            shown.Text1.Text = p;
            shown.Text2.Text = r;
            if (accept)
                shown.Command1_Click();
            else
                shown.Command2_Click();
        });
        platform.forms.showModal(session.forms.Load<frmCustomized>(session));
        return before;
    };
    EXPECT_EQ(show("3", "4", true), "2/2");
    EXPECT_EQ(show("8", "9", false), "3/4");
    EXPECT_EQ(show("", "x", false), "8/9") << "a cancelled text stays as well";
    EXPECT_EQ(show("5", "6", true), "/x");
    EXPECT_EQ(session.Par_P, 5);
    EXPECT_EQ(session.Par_R, 6);
}

TEST_F(frmCustomizedTest, AParameterBelowZeroIsTaken) {
    Accept("-3", "-32768");
    EXPECT_EQ(session.Par_P, -3);
    EXPECT_EQ(session.Par_R, -32768);
    EXPECT_EQ(session.DialogOutcome, 1);
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(frmCustomizedTest, AnInvalidPIsRefusedAndTheDialogStays) {
    for (const char* text : {"", " ", "x", "0", "40000", "1.2.3"}) {
        messages.shown.clear();
        session.DialogOutcome = 7;
        Accept(text, "x");
        EXPECT_EQ(messages.shown, (std::vector<Message>{{.Text = "Invalid value of parametr P"}})) << text;
        EXPECT_TRUE(dialog.Visible);
        EXPECT_EQ(session.DialogOutcome, 7);
    }
}

TEST_F(frmCustomizedTest, AnInvalidRIsRefusedAfterPIsStored) {
    for (const char* text : {"", "0", "000", "y"}) {
        messages.shown.clear();
        session.Par_P = 1;
        Accept("5", text);
        EXPECT_EQ(messages.shown, (std::vector<Message>{{.Text = "Invalid value of parametr R"}})) << text;
        EXPECT_TRUE(dialog.Visible);
        EXPECT_EQ(session.Par_P, 5);
        EXPECT_EQ(session.DialogOutcome, 0);
    }
}

TEST_F(frmCustomizedTest, AZeroIsStoredAlthoughItIsRefusedAndOtherTextIsNot) {
    session.Par_P = session.Par_R = 9;
    Accept("0", "5");
    EXPECT_EQ(session.Par_P, 0);
    EXPECT_EQ(session.Par_R, 9);
    Accept("5", "0");
    EXPECT_EQ(session.Par_R, 0);
    Accept("x", "5");
    EXPECT_EQ(session.Par_P, 5);
}

TEST_F(frmCustomizedTest, CancelKeepsTheParameters) {
    session.Par_P = 8;
    session.Par_R = 9;
    for (const bool byKey : {false, true}) {
        session.DialogOutcome = 1;
        dialog.Visible = true;
        dialog.Text1.Text = dialog.Text2.Text = "77";
        if (byKey)
            dialog.CancelCommand();
        else
            dialog.Command2_Click();
        EXPECT_EQ(session.DialogOutcome, -99);
        EXPECT_FALSE(dialog.Visible);
        EXPECT_EQ(session.Par_P, 8);
        EXPECT_EQ(session.Par_R, 9);
    }
}

} // namespace
} // namespace dorvan::test
