#include "platform/keys.h"
#include "platform/number_field.h"
#include "support/test_platform.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace dorvan::test {
namespace {

using Sent = std::vector<std::string>;

std::string TakenBy(std::string_view others) {
    RecordingKeyboard keyboard;
    std::string taken;
    for (int character = 1; character < 0x400; ++character) {
        int code = character;
        FilterNumberKey(keyboard, code, others);
        EXPECT_TRUE(code == character || code == key::None);
        if (code != key::None) taken += code == key::Backspace ? '<' : static_cast<char>(code);
    }
    EXPECT_EQ(keyboard.sent, Sent{"{TAB}"}) << "Enter alone";
    return taken;
}

TEST(FilterNumberKey, TakesDigitsBackspaceAndWhatElseIsTold) {
    EXPECT_EQ(TakenBy(""), "<0123456789");
    EXPECT_EQ(TakenBy("+-."), "<+-.0123456789");
}

struct ThreeDigits : ::testing::Test {
    RecordingKeyboard keyboard;
    Form form{"frmSample"};
    TextBox field{"Text1"};
    CommandButton button{"Command1"};

    int After(int code) {
        FilterThreeDigitsKey(keyboard, form, field, code);
        return code;
    }
};

TEST_F(ThreeDigits, FillTheField) {
    field.Text = "12";
    EXPECT_EQ(After('3'), '3');
    field.Text = "123";
    EXPECT_EQ(After('4'), key::None);
    EXPECT_EQ(After(key::Backspace), key::Backspace);
    for (const int code : {int('+'), int('.'), int('-'), int(' '), int('a'), int(key::Escape), 0x105})
        EXPECT_EQ(After(code), key::None) << code;
    EXPECT_TRUE(keyboard.sent.empty());
}

TEST_F(ThreeDigits, AreLeftByEnterForTheNextControl) {
    form.SetFocus(button);
    EXPECT_EQ(After(key::Enter), key::None);
    EXPECT_EQ(keyboard.sent, Sent{"{TAB}"});
    keyboard.sent.clear();
    form.SetFocus(field);
    EXPECT_EQ(After(key::Enter), key::None);
    EXPECT_EQ(keyboard.sent, (Sent{"{TAB}", "{HOME}", "+{END}"}));
}

} // namespace
} // namespace dorvan::test
