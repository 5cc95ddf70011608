#include "numbers/text.h"
#include "numbers/utf8.h"
#include "platform/keys.h"
#include "session/frmMDI.h"
#include "sheet/sheet_values.h"
#include "sheet_session.h"

#include <gtest/gtest.h>

namespace dorvan::test {
namespace {

// A sheet of 3 records and 3 variables, and the hands of its user.
struct EditTest : SheetSession {
    frmNotePad& window = NewSheet(3, 3);
    Grid& grid = window.Grid1;
    TextBox& field = window.EditCell;

    EditTest() { GoTo(1, 2); }

    void GoTo(int row, int column) { grid.SetCurrent(row, column); }

    // A key as a face forwards it: key down, then, unless swallowed, key press; what is left goes into the
    // field at its end.
    void KeyDown(int code) {
        if (window.EditPanel.Visible)
            window.EditCell_KeyDown(code);
        else
            window.Grid1_KeyDown(code);
    }
    int KeyPress(int character) {
        if (!window.EditPanel.Visible) {
            window.Grid1_KeyPress(character);
            return character;
        }
        window.EditCell_KeyPress(character);
        if (character == key::Backspace && !field.Text.empty())
            SetField(std::string(LeftCharacters(field.Text, CharacterCount(field.Text) - 1)));
        if (character >= key::Space && CharacterCount(field.Text) < std::size_t(field.MaxLength)) {
            std::string text = field.Text;
            AppendUtf8(text, static_cast<char32_t>(character));
            SetField(text);
        }
        return character;
    }
    void SetField(const std::string& text) {
        field.Text = text;
        field.SelStart = static_cast<int>(CharacterCount(text));
        window.EditCell_Change();
    }
    void Type(std::string_view text) {
        for (const char character : text) KeyPress(static_cast<unsigned char>(character));
    }
    // Types over a value cell and confirms with Enter.
    std::string Enter(std::string_view text, int row = 1, int column = 2) {
        GoTo(row, column);
        KeyDown(key::F2);
        SetField("");
        Type(text);
        KeyDown(key::Enter);
        return grid.Text(row, column);
    }
    // The user puts the focus elsewhere.
    void Leave() {
        window.SetFocus(window.OpisText);
        window.EditCell_LostFocus();
    }
    std::string Current() const { return std::to_string(grid.Row()) + "," + std::to_string(grid.Column()); }
};

TEST(TabInACell, CommitsAndMovesAlongTheRowAsTheArrowsDo) {
    EditTest t;
    t.KeyDown(key::F2);
    t.SetField("2*3");
    t.window.EditCell_Tab(false);
    EXPECT_EQ(t.grid.Text(1, 2), "6.000");
    EXPECT_EQ(t.Current(), "1,3");
    EXPECT_FALSE(t.window.EditPanel.Visible);
    t.KeyDown(key::F2);
    t.SetField("7");
    t.window.EditCell_Tab(true);
    EXPECT_EQ(t.grid.Text(1, 3), "7.000");
    EXPECT_EQ(t.Current(), "1,2");
}

TEST(TabInACell, WithoutAnEditMovesUntilTheEndsOfTheRow) {
    EditTest t;
    EXPECT_TRUE(t.window.Grid1_Tab(true));
    EXPECT_EQ(t.Current(), "1,1");
    EXPECT_FALSE(t.window.Grid1_Tab(true));
    EXPECT_EQ(t.Current(), "1,1");
    t.GoTo(1, 3);
    EXPECT_TRUE(t.window.Grid1_Tab(false));
    EXPECT_EQ(t.Current(), "1,4");
    EXPECT_FALSE(t.window.Grid1_Tab(false));
    t.session.DiagramBusy = 1;
    EXPECT_TRUE(t.window.Grid1_Tab(true)); // taken, for nothing
    EXPECT_EQ(t.Current(), "1,4");
}

TEST(TitleOfACell, NamesTheRecordAndTheVariable) {
    EditTest t;
    t.grid.SetText(1, 1, " Georgia ");
    t.grid.SetText(0, 2, "Height ");
    EXPECT_EQ(t.window.CellTitle(), "Georgia, Height:");
    t.GoTo(1, 1);
    EXPECT_EQ(t.window.CellTitle(), "1, Record Name:");
    t.GoTo(2, 2);
    t.grid.SetText(2, 1, "");
    EXPECT_EQ(t.window.CellTitle(), "2, Height:");
    t.KeyDown(key::F2);
    t.GoTo(1, 3); // the edit stays that of its own cell
    EXPECT_EQ(t.window.CellTitle(), "2, Height:");
    t.window.Editing = false;
    t.GoTo(0, 2);
    EXPECT_EQ(t.window.CellTitle(), "");
    t.GoTo(1, 0);
    EXPECT_EQ(t.window.CellTitle(), "");
}

TEST(StartOfAnEdit, EnterAndF2OpenTheCellsText) {
    for (const int code : {key::Enter, key::F2}) {
        EditTest test;
        test.grid.SetText(2, 3, "12.500");
        test.GoTo(2, 3);
        int swallowed = code;
        test.window.Grid1_KeyDown(swallowed);
        EXPECT_EQ(swallowed, 0);
        EXPECT_EQ(test.window.EditRow, 2);
        EXPECT_EQ(test.window.EditCol, 3);
        EXPECT_EQ(test.window.OldText, "12.500");
        EXPECT_TRUE(test.window.Editing);
        EXPECT_EQ(test.field.Text, "12.500");
        EXPECT_EQ(test.field.SelStart, 6);
        EXPECT_EQ(test.field.SelLength, 0);
        EXPECT_TRUE(test.window.EditPanel.Visible);
        EXPECT_EQ(test.window.ActiveControl, &test.field);
        EXPECT_EQ(test.grid.Text(2, 3), "12.500");
    }
}

TEST(StartOfAnEdit, OtherKeysDownDoNothing) {
    EditTest test;
    for (const int code : {key::Left, key::Home, key::Space, int('A')}) {
        int same = code;
        test.window.Grid1_KeyDown(same);
        EXPECT_EQ(same, code);
    }
    EXPECT_FALSE(test.window.EditPanel.Visible);
}

TEST(StartOfAnEdit, NamesStandAtTheLeftAndValuesAtTheRight) {
    EditTest test;
    test.GoTo(1, 1);
    test.KeyDown(key::F2);
    EXPECT_EQ(test.field.TextAlignment, Alignment::Left);
    EXPECT_EQ(test.field.SelStart, 8) << "the caret is counted in characters";
    test.KeyPress(key::Escape);
    test.GoTo(1, 2);
    test.KeyDown(key::F2);
    EXPECT_EQ(test.field.TextAlignment, Alignment::Right);
}

TEST(StartOfAnEdit, TheCaretIsCountedInCharacters) {
    EditTest test;
    test.grid.SetText(1, 1, "Łódź");
    test.GoTo(1, 1);
    test.KeyDown(key::F2);
    EXPECT_EQ(test.field.SelStart, 4);
}

TEST(StartOfAnEdit, APrintableKeyReplacesTheCellsText) {
    EditTest test;
    test.grid.SetText(1, 2, "12.500");
    EXPECT_EQ(test.KeyPress('7'), 0) << "taken: the face inserts nothing";
    EXPECT_EQ(test.window.OldText, "12.500");
    EXPECT_EQ(test.window.EditRow, 1);
    EXPECT_EQ(test.window.EditCol, 2);
    EXPECT_EQ(test.field.Text, "7");
    EXPECT_EQ(test.field.SelStart, 1);
    EXPECT_EQ(test.field.MaxLength, 12);
    EXPECT_EQ(test.grid.Text(1, 2), "7");
    EXPECT_EQ(test.window.ActiveControl, &test.field);
}

TEST(StartOfAnEdit, TheFirstKeyGoesThroughTheFieldsFilter) {
    EditTest test;
    test.KeyPress('n');
    EXPECT_EQ(test.field.Text, "N");
    test.KeyPress(key::Escape);
    test.KeyPress('x');
    EXPECT_TRUE(test.window.EditPanel.Visible);
    EXPECT_EQ(test.field.Text, "");
    EXPECT_EQ(test.grid.Text(1, 2), "0.000");
    test.KeyPress(key::Escape);
    test.GoTo(1, 1);
    test.KeyPress(0x141); // L with stroke
    EXPECT_EQ(test.field.Text, "Ł");
    EXPECT_EQ(test.field.MaxLength, 15);
}

TEST(StartOfAnEdit, EnterEscapeAndSpaceAreSwallowedByTheGrid) {
    EditTest test;
    for (const int character : {key::Enter, key::Escape, key::Space}) EXPECT_EQ(test.KeyPress(character), 0);
    EXPECT_FALSE(test.window.EditPanel.Visible);
    EXPECT_EQ(test.KeyPress(key::Backspace), key::Backspace) << "no printable key";
    EXPECT_FALSE(test.window.EditPanel.Visible);
}

TEST(StartOfAnEdit, AFixedCellCannotBeEntered) {
    EditTest test;
    for (const auto& [row, column] : {std::pair{1, 0}, std::pair{0, 2}}) {
        test.GoTo(row, column);
        EXPECT_EQ(test.KeyPress('7'), 0);
        test.KeyDown(key::F2);
        EXPECT_FALSE(test.window.EditPanel.Visible);
    }
}

TEST(StartOfAnEdit, TheGridsKeysDoNothingWhileADiagramIsMade) {
    EditTest test;
    test.session.DiagramBusy = 1;
    const auto expectNothing = [&](int code) {
        EXPECT_FALSE(test.window.EditPanel.Visible) << code;
        EXPECT_FALSE(test.window.Editing) << code;
        EXPECT_EQ(test.grid.Text(1, 2), "0.000") << code;
        EXPECT_EQ(test.Current(), "1,2") << code;
    };
    // Swallowed, so that the grid does not take them either.
    for (int code : {key::Enter, key::F2, key::Left, key::Up, key::Right, key::Down, key::Home, key::End,
                     key::PageUp, key::PageDown, key::Backspace, key::Escape, key::Space}) {
        const int pressed = code;
        test.window.Grid1_KeyDown(code);
        EXPECT_EQ(code, key::None) << pressed;
        expectNothing(pressed);
    }
    for (int character : {int('7'), int('x'), int('/'), int('-'), key::Enter, key::Escape, key::Space}) {
        const int typed = character;
        test.window.Grid1_KeyPress(character);
        EXPECT_EQ(character, key::None) << typed;
        expectNothing(typed);
    }
    EXPECT_EQ(test.signals.beeps, 0);
    test.session.DiagramBusy = 0;
    test.KeyDown(key::F2);
    EXPECT_TRUE(test.window.Editing);
}

TEST(StartOfAnEdit, ADoubleClickSendsF2AndMarksTheSheetAsChanged) {
    EditTest test;
    test.keyboard.onSend = [&](const std::string& keys) {
        EXPECT_EQ(keys, "{F2}");
        test.KeyDown(key::F2);
    };
    test.GoTo(1, 0);
    test.window.Grid1_DblClick();
    EXPECT_TRUE(test.keyboard.sent.empty());
    EXPECT_FALSE(test.session.DataStates[1].Dirty);
    test.GoTo(1, 1);
    test.window.Grid1_DblClick();
    EXPECT_EQ(test.keyboard.sent.size(), 1u);
    EXPECT_TRUE(test.window.EditPanel.Visible);
    EXPECT_TRUE(test.session.DataStates[1].Dirty);
}

TEST(StartOfAnEdit, KeysAloneDoNotMarkTheSheetAsChanged) {
    EditTest test;
    EXPECT_EQ(test.Enter("5"), "5.000");
    EXPECT_FALSE(test.session.DataStates[1].Dirty);
}

TEST(PopUpMenu, OpensByTheRightButtonUnlessADiagramIsMade) {
    EditTest test;
    EXPECT_TRUE(test.window.Grid1_MouseDown(mouse::Right));
    EXPECT_FALSE(test.window.Grid1_MouseDown(mouse::Left));
    test.session.DiagramBusy = 1;
    EXPECT_FALSE(test.window.Grid1_MouseDown(mouse::Right));
}

TEST(EditedText, ShowsInTheGridWhileItIsTyped) {
    EditTest test;
    test.Type("1+2");
    EXPECT_EQ(test.grid.Text(1, 2), "1+2");
    test.KeyPress(key::Backspace);
    EXPECT_EQ(test.grid.Text(1, 2), "1+");
}

TEST(EditedText, IsCopiedOnlyIntoTheEditedCellOfAnOpenEdit) {
    EditTest test;
    test.Type("5");
    test.GoTo(2, 2);
    test.SetField("56");
    EXPECT_EQ(test.grid.Text(1, 2), "5");
    EXPECT_EQ(test.grid.Text(2, 2), "0.000");
    test.GoTo(1, 2);
    test.window.Editing = false;
    test.SetField("567");
    EXPECT_EQ(test.grid.Text(1, 2), "5");
}

TEST(EditedText, HasALongestLengthByColumn) {
    EditTest test;
    test.Type("1234567890123456");
    EXPECT_EQ(test.field.Text, "123456789012");
    test.KeyPress(key::Escape);
    test.GoTo(1, 1);
    test.Type("abcdefghijklmnopqr");
    EXPECT_EQ(test.field.Text, "abcdefghijklmno");
}

// What the field of a value cell that holds `before` makes of a character.
int Filtered(const std::string& before, int character, int column = 2) {
    EditTest test;
    test.GoTo(1, column);
    test.KeyDown(key::F2);
    test.SetField(before);
    test.window.EditCell_KeyPress(character);
    return character;
}

TEST(KeysOfAValueCell, DigitsOperatorsAndBackspacePass) {
    for (const char character : std::string("0123456789/*+-"))
        EXPECT_EQ(Filtered("1.5", character), character);
    EXPECT_EQ(Filtered("1.5", key::Backspace), key::Backspace);
}

TEST(KeysOfAValueCell, NAndAAreRaisedAndOtherLettersRefused) {
    EXPECT_EQ(Filtered("", 'n'), 'N');
    EXPECT_EQ(Filtered("", 'N'), 'N');
    EXPECT_EQ(Filtered("N/", 'a'), 'A');
    EXPECT_EQ(Filtered("N/", 'A'), 'A');
    for (const int refused : {int('b'), int('e'), int(' '), int('('), int(';'), 0x105, 22})
        EXPECT_EQ(Filtered("", refused), 0) << refused;
}

TEST(KeysOfAValueCell, ASecondSeparatorNeedsAnOperator) {
    for (const char character : {',', '.'}) {
        EXPECT_EQ(Filtered("", character), character);
        EXPECT_EQ(Filtered("15", character), character);
        EXPECT_EQ(Filtered("1.5", character), 0);
        EXPECT_EQ(Filtered("1,5", character), 0);
        for (const auto* withOperator : {"1.5+2", "1.5-2", "1.5*2", "1,5/2", "-1.5"})
            EXPECT_EQ(Filtered(withOperator, character), character) << withOperator;
    }
}

TEST(KeysOfANameCell, AllPassAndSeparatorsTwice) {
    for (const int character : {int('b'), int(' '), int('('), int(','), int('.'), 0x105, key::Backspace})
        EXPECT_EQ(Filtered("a.b,c", character, 1), character) << character;
    EXPECT_EQ(Filtered("a", key::Enter, 1), 0);
}

TEST(KeysOfTheField, EnterIsSwallowed) {
    EditTest test;
    test.KeyDown(key::F2);
    int character = key::Enter;
    test.window.EditCell_KeyPress(character);
    EXPECT_EQ(character, 0);
    EXPECT_TRUE(test.window.Editing) << "key down commits, key press does not";
}

TEST(KeysOfTheField, WhileADiagramIsMadeBeepAndAreNotFiltered) {
    EditTest test;
    test.KeyDown(key::F2);
    test.session.DiagramBusy = 1;
    for (const int character : {int('x'), key::Escape, key::Enter, int('n')}) {
        int same = character;
        test.window.EditCell_KeyPress(same);
        EXPECT_EQ(same, character);
    }
    EXPECT_EQ(test.signals.beeps, 4);
    EXPECT_TRUE(test.window.Editing);
}

TEST(EscapeKey, RestoresTheTextFromBeforeTheEdit) {
    EditTest test;
    test.grid.SetText(1, 2, "12.500");
    test.Type("99");
    EXPECT_EQ(test.grid.Text(1, 2), "99");
    EXPECT_EQ(test.KeyPress(key::Escape), 0);
    EXPECT_EQ(test.grid.Text(1, 2), "12.500");
    EXPECT_EQ(test.window.OldText, "");
    EXPECT_FALSE(test.window.Editing);
    EXPECT_EQ(test.field.Text, "");
    EXPECT_FALSE(test.window.EditPanel.Visible);
    EXPECT_EQ(test.window.ActiveControl, &test.grid);
    test.window.EditCell_LostFocus();
    EXPECT_EQ(test.grid.Text(1, 2), "12.500") << "the loss of focus commits nothing any more";
}

TEST(CaretKeys, EnterAndDownCommitAndMoveDown) {
    for (const int code : {key::Enter, key::Down}) {
        EditTest test;
        test.Type("12");
        test.field.SelStart = 1;
        int swallowed = code;
        test.window.EditCell_KeyDown(swallowed);
        EXPECT_EQ(swallowed, 0);
        EXPECT_EQ(test.grid.Text(1, 2), "12.000");
        EXPECT_EQ(test.Current(), "2,2");
        EXPECT_FALSE(test.window.EditPanel.Visible);
        EXPECT_FALSE(test.window.Editing);
        EXPECT_EQ(test.field.Text, "");
        EXPECT_EQ(test.window.ActiveControl, &test.grid);
    }
}

TEST(CaretKeys, MoveTheCurrentCellAtTheFieldsEnds) {
    struct Case {
        int Code;
        int Caret;
        const char* Current;
    };
    for (const auto& [code, caret, current] :
         {Case{key::Left, 0, "2,2"}, Case{key::Up, 2, "1,3"}, Case{key::Right, 2, "2,4"}}) {
        EditTest test;
        test.GoTo(2, 3);
        test.Type("12");
        test.field.SelStart = caret;
        test.KeyDown(code);
        EXPECT_EQ(test.Current(), current);
        EXPECT_EQ(test.grid.Text(2, 3), "12.000");
        EXPECT_FALSE(test.window.EditPanel.Visible);
    }
}

TEST(CaretKeys, StayInTheTextElsewhere) {
    struct Case {
        int Code;
        int Caret;
    };
    for (const auto& [code, caret] :
         {Case{key::Left, 1}, Case{key::Left, 2}, Case{key::Up, 0}, Case{key::Up, 1}, Case{key::Right, 0},
          Case{key::Right, 1}, Case{key::Home, 0}, Case{key::End, 2}}) {
        EditTest test;
        test.GoTo(2, 3);
        test.Type("12");
        test.field.SelStart = caret;
        int same = code;
        test.window.EditCell_KeyDown(same);
        EXPECT_EQ(same, code);
        EXPECT_TRUE(test.window.Editing);
        EXPECT_EQ(test.Current(), "2,3");
    }
}

TEST(CaretKeys, TheEndIsCountedInCharacters) {
    EditTest test;
    test.grid.SetText(2, 1, "Łódź");
    test.GoTo(2, 1);
    test.KeyDown(key::F2);
    test.KeyDown(key::Right);
    EXPECT_EQ(test.Current(), "2,2");
}

TEST(CaretKeys, AtTheEdgeOfTheSheetTheCellStays) {
    EditTest test;
    test.GoTo(3, 4);
    test.Type("5");
    test.KeyDown(key::Enter);
    EXPECT_EQ(test.Current(), "3,4");
    EXPECT_EQ(test.grid.Text(3, 4), "5.000");
}

TEST(CommitCell, EvaluatesAValueCell) {
    EditTest test;
    EXPECT_EQ(test.Enter("2*3+1"), "7.000");
    EXPECT_EQ(test.Enter("1+2*3"), "9.000");
    EXPECT_EQ(test.Enter("10/0"), "0.000");
    EXPECT_EQ(test.Enter("5+1/0"), "6.000");
    EXPECT_EQ(test.Enter("-5+3"), "-2.000");
    EXPECT_EQ(test.Enter("1,5"), "1.500");
    EXPECT_EQ(test.Enter("1/3"), "0.333");
    EXPECT_TRUE(test.messages.shown.empty());
}

TEST(CommitCell, AnEmptyEditGivesZero) {
    EditTest test;
    EXPECT_EQ(test.Enter(""), "0.000");
}

TEST(CommitCell, NotAvailableStandsAsTypedInEitherCase) {
    EditTest test;
    EXPECT_EQ(test.Enter("N/A"), "N/A");
    EXPECT_EQ(test.Enter("n/a", 2, 3), "N/A");
    EXPECT_EQ(test.Enter("-9999999"), "N/A") << "the value that means missing";
}

TEST(CommitCell, WritesTheLocalesSeparator) {
    EditTest test;
    test.session.DecimalSeparator = ',';
    EXPECT_EQ(test.Enter("1.5"), "1,500");
    EXPECT_EQ(test.Enter("1,5+1,25"), "2,750");
}

TEST(CommitCell, ANameStandsTrimmedWithPointsForCommas) {
    EditTest test;
    test.GoTo(1, 1);
    test.Type("A, b 2*3");
    test.SetField("  A, b 2*3 ");
    test.KeyDown(key::Enter);
    EXPECT_EQ(test.grid.Text(1, 1), "A. b 2*3");
    EXPECT_EQ(test.Current(), "2,1");
}

TEST(CommitCell, ANameMayLookLikeALargeNumber) {
    EditTest test;
    EXPECT_EQ(test.Enter("99999999", 1, 1), "99999999");
    EXPECT_TRUE(test.messages.shown.empty());
}

TEST(CommitCell, SevenDigitsPassAndEightAreRefused) {
    EditTest test;
    EXPECT_EQ(test.Enter("9999999"), "9999999.000");
    EXPECT_EQ(test.Enter("9999999.999"), "9999999.999");
    EXPECT_EQ(test.Enter("-99999999"), "-99999999.000") << "no lower limit";
    EXPECT_TRUE(test.messages.shown.empty());
    test.Enter("10000000");
    const Message refusal{.Text = "Number is way too large!\nEnter a number under 100 000 or so!",
                          .Icon = MessageIcon::Exclamation,
                          .Title = "Invalid Number"};
    EXPECT_EQ(test.messages.shown, std::vector<Message>{refusal});
}

TEST(CommitCell, ARefusalEndsTheEditAndLeavesTheCellAsItStands) {
    EditTest test;
    test.Type("10000000");
    test.signals.cursors.clear();
    test.KeyDown(key::Enter);
    EXPECT_EQ(test.grid.Text(1, 2), "10000000") << "what the grid was showing while it was typed";
    EXPECT_EQ(test.Current(), "1,2") << "no arrow is sent";
    EXPECT_EQ(test.field.Text, "");
    EXPECT_FALSE(test.window.EditPanel.Visible);
    EXPECT_EQ(test.signals.cursors, (std::vector<Cursor>{Cursor::Wait, Cursor::Default}));
    EXPECT_EQ(test.messages.shown.size(), 1u);
    test.window.EditCell_LostFocus();
    EXPECT_EQ(test.messages.shown.size(), 1u) << "not committed twice";
}

TEST(CommitCell, AnyOtherFailureIsToldByItsNumber) {
    EditTest test;
    test.KeyDown(key::F2);
    test.SetField("1e308*10");
    test.signals.cursors.clear();
    test.KeyDown(key::Enter);
    const Message failure{.Text = "Unexpected error # 6 in processing that number.  Try again.",
                          .Icon = MessageIcon::Exclamation,
                          .Title = "Invalid Number"};
    EXPECT_EQ(test.messages.shown, std::vector<Message>{failure});
    EXPECT_EQ(test.signals.cursors, (std::vector<Cursor>{Cursor::Wait, Cursor::Default}));
    EXPECT_EQ(test.grid.Text(1, 2), "1e308*10");
    EXPECT_EQ(test.Current(), "1,2");
}

TEST(CommitCell, ShowsTheWaitCursorAndLetsPendingEventsRun) {
    EditTest test;
    test.Type("5");
    test.signals.cursors.clear();
    test.events.onRun = [&](int) {
        EXPECT_FALSE(test.window.EditPanel.Visible);
        EXPECT_EQ(test.field.Text, "");
        test.window.EditCell_LostFocus();
    };
    test.KeyDown(key::Enter);
    EXPECT_EQ(test.events.runs, 1);
    EXPECT_EQ(test.grid.Text(1, 2), "5.000");
    EXPECT_EQ(test.signals.cursors, (std::vector<Cursor>{Cursor::Wait, Cursor::Default}));
}

TEST(CommitCell, WritesTheEditedCellWhenAnotherOneHasBecomeCurrent) {
    EditTest test;
    test.Type("2*3");
    test.events.onRun = [&](int) { test.GoTo(3, 3); };
    test.Leave();
    EXPECT_EQ(test.grid.Text(1, 2), "6.000");
    EXPECT_EQ(test.grid.Text(3, 3), "0.000");
    EXPECT_EQ(test.Current(), "3,3");
}

TEST(CommitCell, WritesNotAvailableIntoACellLeftBehind) {
    EditTest test;
    test.Type("N/A");
    test.GoTo(2, 2);
    test.Leave();
    EXPECT_EQ(test.grid.Text(1, 2), "N/A");
}

TEST(CommitCell, OfACellLeftBehindShowsTheMissingValueAsANumber) {
    EditTest test;
    test.Type("-9999999");
    test.GoTo(2, 2);
    test.Leave();
    EXPECT_EQ(test.grid.Text(1, 2), "-9999999.000");
}

TEST(CommitCell, OfACellLeftBehindHasALimitTenTimesLower) {
    EditTest test;
    test.Type("999999.5");
    test.GoTo(2, 3);
    test.Leave();
    EXPECT_EQ(test.grid.Text(1, 2), "999999.500");
    test.GoTo(1, 2);
    test.Type("1000000");
    test.GoTo(2, 3);
    test.Leave();
    ASSERT_EQ(test.messages.shown.size(), 1u);
    EXPECT_EQ(test.messages.shown[0].Text, "Number is way too large!\nEnter a number under 100 000 or so!");
    EXPECT_EQ(test.grid.Text(1, 2), "1000000");
    EXPECT_EQ(test.Current(), "1,2") << "the refusal comes before the remembered cell is current again";
}

TEST(CommitCell, OfANameLeftForAValueWritesTheName) {
    EditTest test;
    test.GoTo(1, 1);
    test.Type("Sopot");
    test.GoTo(2, 2);
    test.Leave();
    EXPECT_EQ(test.grid.Text(1, 1), "Sopot");
    EXPECT_EQ(test.grid.Text(2, 2), "0.000");
    EXPECT_EQ(test.Current(), "2,2");
}

TEST(CommitCell, OfAValueLeftForANameEvaluatesTheValue) {
    EditTest test;
    test.Type("1+1");
    test.GoTo(2, 1);
    test.Leave();
    EXPECT_EQ(test.grid.Text(1, 2), "2.000");
    EXPECT_EQ(test.grid.Text(2, 1), "Record 2");
}

TEST(CommitCell, IntoARowThatIsGoneFailsInAMessage) {
    EditTest test;
    test.GoTo(3, 2);
    test.Type("5");
    test.grid.RemoveRow(3);
    test.Leave();
    ASSERT_EQ(test.messages.shown.size(), 1u);
    EXPECT_EQ(test.messages.shown[0].Text, "Unexpected error # 9 in processing that number.  Try again.");
}

TEST(CommitCell, IsDroppedOnceAfterTheDeletionOfARecord) {
    EditTest test;
    test.Type("5");
    test.session.Of<SheetValues>().SuppressCommit = true;
    test.signals.cursors.clear();
    test.window.CommitCell(key::Down);
    EXPECT_FALSE(test.session.Of<SheetValues>().SuppressCommit);
    EXPECT_EQ(test.field.Text, "");
    EXPECT_TRUE(test.window.EditPanel.Visible);
    EXPECT_EQ(test.Current(), "1,2");
    EXPECT_TRUE(test.signals.cursors.empty());
    EXPECT_EQ(test.events.runs, 0);
    test.Leave();
    EXPECT_EQ(test.Enter("6", 2, 2), "6.000") << "the next one counts";
}

TEST(LossOfFocus, CommitsTheEditWithoutMoving) {
    EditTest test;
    test.Type("1+2");
    test.Leave();
    EXPECT_EQ(test.grid.Text(1, 2), "3.000");
    EXPECT_EQ(test.Current(), "1,2");
    EXPECT_FALSE(test.window.Editing);
    EXPECT_FALSE(test.window.EditPanel.Visible);
    EXPECT_EQ(test.window.ActiveControl, &test.window.OpisText) << "the focus stays where the user put it";
}

TEST(LossOfFocus, ByACommandGivesTheGridTheFocusAndCommits) {
    EditTest test;
    test.Type("1+2");
    test.window.LeaveField();
    EXPECT_EQ(test.grid.Text(1, 2), "3.000");
    EXPECT_EQ(test.Current(), "1,2");
    EXPECT_FALSE(test.window.Editing);
    EXPECT_FALSE(test.window.EditPanel.Visible);
    EXPECT_EQ(test.window.ActiveControl, &test.grid);
}

TEST(LossOfFocus, ToAnotherWindowLeavesTheGridToHaveItOnTheWayBack) {
    for (const bool emptied : {false, true}) {
        EditTest test;
        test.KeyDown(key::F2);
        if (emptied) test.SetField("");
        test.window.EditCell_LostFocus();
        EXPECT_EQ(test.window.ActiveControl, &test.grid);
    }
}

TEST(LossOfFocus, ByACommandWithoutAnEditChangesNothing) {
    EditTest test;
    test.window.SetFocus(test.window.OpisText);
    test.window.LeaveField();
    EXPECT_EQ(test.window.ActiveControl, &test.window.OpisText);
    EXPECT_EQ(test.events.runs, 0);
}

TEST(LossOfFocus, ByACommandOfAnEmptiedFieldLeavesTheCellEmpty) {
    EditTest test;
    test.KeyDown(key::F2);
    test.SetField("");
    test.window.LeaveField();
    EXPECT_EQ(test.grid.Text(1, 2), "");
    EXPECT_FALSE(test.window.Editing);
}

TEST(LossOfFocus, ComesBeforeEveryCommandOfMenuAndToolbar) {
    for (const bool byButton : {false, true}) {
        EditTest test;
        frmMDI main(test.session);
        std::string seen;
        test.session.commands.Set("MakeMatrix", [&](const CommandCall&) { seen = test.grid.Text(1, 2); });
        test.Type("10/4");
        if (byButton)
            main.ButtonClick("toolMain", "MakeMatrix");
        else
            main.MenuClick("mnuAnalysisMatrix");
        EXPECT_EQ(seen, "2.500");
    }
}

TEST(LossOfFocus, ComesBeforeAnotherWindowIsTheActiveOne) {
    EditTest test;
    test.Type("1+2");
    test.NewSheet(2, 2);
    EXPECT_EQ(test.grid.Text(1, 2), "3.000");
    ActivateChild(test.session, test.window);
    test.Type("2+2");
    ActivateChild(test.session, *test.session.DataWindows.at(2));
    EXPECT_EQ(test.grid.Text(1, 2), "4.000");
}

TEST(LossOfFocus, MayCloseTheWindowThatWasToComeToTheFront) {
    EditTest test;
    auto& other = test.NewSheet(2, 2);
    ActivateChild(test.session, test.window);
    test.Type("1+2");
    test.events.onRun = [&](int) { CloseChild(test.session, other); };
    ActivateChild(test.session, other);
    EXPECT_EQ(test.session.ActiveWindow, &test.window);
    EXPECT_EQ(test.session.Children.size(), 1u);
}

TEST(LossOfFocus, MayCloseItsOwnWindowAndGiveTheSlotToAnother) {
    EditTest test;
    test.Type("1+2");
    test.events.onRun = [&](int run) {
        if (run > 1) return;
        CloseChild(test.session, test.window);
        test.NewSheet(2, 2);
    };
    test.window.LeaveField();
    EXPECT_EQ(test.session.Children.size(), 1u);
}

TEST(LossOfFocus, ComesBeforeTheQuestionOfAClosingWindow) {
    EditTest test;
    test.Type("1+2");
    test.session.DataStates[1].Dirty = true;
    test.messages.answers = {Answer::Cancel};
    EXPECT_FALSE(CloseChild(test.session, test.window));
    EXPECT_EQ(test.grid.Text(1, 2), "3.000");
    EXPECT_FALSE(test.window.Editing);
}

TEST(LossOfFocus, TheDeletionOfARecordMakesItsOwn) {
    EditTest test;
    frmMDI main(test.session);
    bool editing = false;
    test.session.commands.Set("DeleteRecord", [&](const CommandCall&) { editing = test.window.Editing; });
    test.Type("5");
    main.MenuClick("mnuEditRecDelete");
    EXPECT_TRUE(editing) << "what it drops has not been committed";
}

TEST(LossOfFocus, OfAnEmptiedFieldLeavesTheCellEmpty) {
    EditTest test;
    test.KeyDown(key::F2);
    test.SetField("");
    test.Leave();
    EXPECT_EQ(test.grid.Text(1, 2), "");
    EXPECT_FALSE(test.window.Editing);
    EXPECT_FALSE(test.window.EditPanel.Visible);
    EXPECT_EQ(test.events.runs, 0);
}

TEST(LossOfFocus, AfterTheDeletionOfARecordDropsTheEdit) {
    EditTest test;
    test.Type("5");
    test.session.Of<SheetValues>().SuppressCommit = true;
    test.grid.RemoveRow(1);
    test.Leave();
    EXPECT_EQ(test.grid.Text(1, 2), "0.000");
    EXPECT_EQ(test.field.Text, "");
    EXPECT_FALSE(test.window.EditPanel.Visible);
    test.KeyPress(key::Escape);
    EXPECT_EQ(test.grid.Text(1, 2), "0.000");
}

} // namespace
} // namespace dorvan::test
