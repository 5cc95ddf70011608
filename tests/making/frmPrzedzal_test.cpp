#include "making/frmPrzedzal.h"

#include "distance/frmCustomized.h"
#include "distance/measures.h"
#include "making/making_values.h"
#include "making/ordering_method.h"
#include "platform/keys.h"
#include "support/expect_failure.h"
#include "support/test_platform.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace dorvan {
namespace {

using Texts = std::vector<std::string>;
using Limits = std::vector<float>;

struct StillWindow : ChildWindow {
    StillWindow() : ChildWindow("frmNotePad", "[DATA]: Untitled:1") {}
    void Form_Activate() override {}
    void Form_Deactivate() override {}
    void Form_Unload() override {}
};

class DiagramOptions : public ::testing::Test, public test::TestSession {
protected:
    frmPrzedzal dialog{session};

    DiagramOptions() { session.Of<MakingValues>().DiagramRecordCount = 10; }

    // Loaded (the first time) and on the screen, with typed limits.
    void Open(const Texts& limits = {"15", "30", "45", "60"}) {
        if (dialog.cboData.List.empty()) dialog.Form_Load();
        dialog.Visible = true;
        dialog.Form_Show();
        dialog.chkAuto.Value = false;
        dialog.chkAuto_Click();
        Type(limits);
    }

    void Type(const Texts& limits) {
        dialog.Text1.Text = limits.at(0);
        dialog.Text2.Text = limits.at(1);
        dialog.Text3.Text = limits.at(2);
        dialog.Text4.Text = limits.at(3);
    }

    Texts Typed() const {
        return {dialog.Text1.Text, dialog.Text2.Text, dialog.Text3.Text, dialog.Text4.Text};
    }

    void Choose(int kind, int measure) {
        dialog.cboData.ListIndex = kind;
        dialog.cboData_Click();
        dialog.Combo1.ListIndex = measure;
    }

    // A method whose dialog answers with the outcomes in turn.
    void Register(std::int16_t number, std::vector<std::int16_t> outcomes) {
        session.Of<OrderingMethods>()[number].askOptions = [this, number, outcomes,
                                                            next = std::size_t(0)](Session& owner) mutable {
            asked.push_back(number);
            owner.DialogOutcome = outcomes.at(next++);
        };
    }

    Limits SessionLimits() const { return session.SectionLimits.Cells(); }

    void ExpectRefused(const Message& message) {
        session.DialogOutcome = 0;
        messages.shown.clear();
        dialog.Command3_Click();
        EXPECT_EQ(messages.shown, std::vector<Message>{message});
        EXPECT_TRUE(dialog.Visible);
        EXPECT_EQ(session.DialogOutcome, 0);
    }

    void ExpectAccepted() {
        dialog.Command3_Click();
        EXPECT_TRUE(messages.shown.empty());
        EXPECT_FALSE(dialog.Visible);
        EXPECT_EQ(session.DialogOutcome, 1);
    }

    std::vector<OptionButton*> TypeOptions() { return {&dialog.Option1, &dialog.Option2, &dialog.Option3}; }
    std::vector<OptionButton*> OrderOptions() {
        return {&dialog.Option6, &dialog.Option7, &dialog.Option8, &dialog.Option9};
    }
    static std::vector<bool> Values(const std::vector<OptionButton*>& options) {
        std::vector<bool> values;
        for (const auto* option : options) values.push_back(option->Value);
        return values;
    }
    static bool LimitsEnabled(const frmPrzedzal& dialog) {
        const std::array<const Control*, 11> controls{
            &dialog.Text1,  &dialog.Text2,  &dialog.Text3,  &dialog.Text4,  &dialog.Label1, &dialog.Label2,
            &dialog.Label3, &dialog.Label4, &dialog.Label5, &dialog.Label6, &dialog.Label7};
        for (const auto* control : controls)
            EXPECT_EQ(control->Enabled, dialog.Text1.Enabled) << control->Name;
        return dialog.Text1.Enabled;
    }

    std::vector<int> asked;
};

const Message AllNeeded{.Text = "Limits of all sections are needed!"};
const Message InvalidNumber{.Text = "Invalid number!", .Icon = MessageIcon::Critical};
const Message AllZero{.Text = "Error - all limits = 0!", .Icon = MessageIcon::Critical};
const Message InvalidLimits{.Text = "Invalid section limits!", .Icon = MessageIcon::Critical};

TEST_F(DiagramOptions, CaptionsAndNames) {
    EXPECT_EQ(dialog.Name, "frmPrzedzal");
    EXPECT_EQ(dialog.Caption, "Czekanowski");
    EXPECT_EQ(dialog.Frame1.Caption, "Data and distance type:");
    EXPECT_EQ(dialog.Frame2.Caption, "Diagram type:");
    EXPECT_EQ(dialog.Frame3.Caption, "Order:");
    EXPECT_EQ(dialog.Frame4.Caption, "Set section limits:");
    const std::vector<std::pair<const Control*, std::string>> captions = {
        {&dialog.Option1, "greyscale"},
        {&dialog.Option2, "dots"},
        {&dialog.Option3, "classic"},
        {&dialog.Option6, "no well-ordered"},
        {&dialog.Option7, "simple auto algorithm"},
        {&dialog.Option8, "simple genetic algorithm"},
        {&dialog.Option9, "Ravelin genetic algorithm"},
        {&dialog.chkAuto, "Automatic"},
        {&dialog.Label1, "0"},
        {&dialog.Label2, "and more"},
        {&dialog.Label3, "I"},
        {&dialog.Label4, "II"},
        {&dialog.Label5, "III"},
        {&dialog.Label6, "IV"},
        {&dialog.Label7, "V"},
        {&dialog.Command3, "O&K"},
        {&dialog.Command2, "Cancel"}};
    for (const auto& [control, caption] : captions) EXPECT_EQ(control->Caption, caption) << control->Name;
}

TEST_F(DiagramOptions, LoadSelectsTheDiagramType) {
    const std::vector<std::vector<bool>> selected = {
        {false, false, false}, {true, false, false}, {false, true, false}, {false, false, false}};
    for (std::int16_t type = 0; type <= 3; ++type) {
        session.CurrentDiagType = type;
        frmPrzedzal fresh(session);
        fresh.Form_Load();
        EXPECT_EQ(Values({&fresh.Option1, &fresh.Option2, &fresh.Option3}), selected[std::size_t(type)])
            << type;
    }
}

TEST_F(DiagramOptions, LoadSelectsTheOrderOfTheMethods1To3Only) {
    const std::vector<std::vector<bool>> selected = {{false, false, false, false},
                                                     {true, false, false, false},
                                                     {false, true, false, false},
                                                     {false, false, true, false},
                                                     {false, false, false, false}};
    for (std::int16_t method = 0; method <= 4; ++method) {
        session.CurrentOrderMethod = method;
        frmPrzedzal fresh(session);
        fresh.Form_Load();
        EXPECT_EQ(Values({&fresh.Option6, &fresh.Option7, &fresh.Option8, &fresh.Option9}),
                  selected[std::size_t(method)])
            << method;
    }
}

TEST_F(DiagramOptions, LoadFillsEmptyLimitFieldsWithTheDefaults) {
    const Texts defaults{"15", "30", "45", "60"};
    for (const std::string blank : {"", " ", "  "})
        for (std::size_t place = 0; place < 4; ++place) {
            Texts texts{"1", "2", "3", "4"};
            texts[place] = blank;
            Type(texts);
            dialog.Form_Load();
            EXPECT_EQ(Typed(), defaults) << "[" << blank << "] in field " << place + 1;
        }
}

TEST_F(DiagramOptions, LoadWritesTheSessionsLimitsIntoFieldsThatHoldText) {
    session.SectionLimits.Cells() = {0.5f, 2, 1234.567f, 2.5e7f};
    session.DecimalSeparator = ',';
    Type({"1", "2", "3", "   "});
    dialog.Form_Load();
    EXPECT_EQ(Typed(), (Texts{"0,5", "2", "1234,567", "2,5E+07"}));
}

TEST_F(DiagramOptions, LoadFillsTheListsWithTheirFirstEntriesSelected) {
    session.CurrentDistType = 9;
    dialog.cboData.List = {"left over"};
    dialog.Combo1.List = {"left over"};
    dialog.Form_Load();
    EXPECT_EQ(dialog.cboData.List, (Texts{"numerical data", "numerical data with NA", "binary"}));
    EXPECT_EQ(dialog.cboData.ListIndex, 0);
    EXPECT_EQ(dialog.Combo1.List, (Texts{"Euclidean", "Manhattan City-Block", "Chebychev", "Customized"}));
    EXPECT_EQ(dialog.Combo1.ListIndex, 0);
}

TEST_F(DiagramOptions, LoadTicksAutomaticFromSixRecordsOn) {
    for (const auto& [records, automatic] : {std::pair{2, false}, {5, false}, {6, true}, {250, true}}) {
        session.Of<MakingValues>().DiagramRecordCount = records;
        frmPrzedzal fresh(session);
        fresh.Form_Load();
        EXPECT_EQ(fresh.chkAuto.Value, automatic) << records;
        EXPECT_EQ(fresh.chkAuto.Enabled, automatic) << records;
        EXPECT_EQ(LimitsEnabled(fresh), !automatic) << records;
        EXPECT_EQ(fresh.ActiveControl, nullptr) << records;
    }
}

TEST_F(DiagramOptions, LoadedOnceSoThatAutomaticStaysAsTheFirstDocumentLeftIt) {
    const auto cancel = [](Form& form) { form.CancelCommand(); };
    session.Of<MakingValues>().DiagramRecordCount = 5;
    forms.scripts.assign(2, cancel);
    ShowDiagramOptions(session);
    session.Of<MakingValues>().DiagramRecordCount = 100;
    ShowDiagramOptions(session);
    const auto& shown = session.forms.Load<frmPrzedzal>(session);
    EXPECT_FALSE(shown.chkAuto.Value);
    EXPECT_FALSE(shown.chkAuto.Enabled);
    expectScriptsUsedUp();
}

TEST_F(DiagramOptions, DialogKeepsWhatTheUserLeftInIt) {
    forms.scripts.push_back([](Form& form) {
        auto& shown = dynamic_cast<frmPrzedzal&>(form);
        shown.cboData.ListIndex = 2;
        shown.cboData_Click();
        shown.Combo1.ListIndex = 3;
        shown.Option3_Click();
        shown.Text2.Text = "31";
        shown.Command2_Click();
    });
    forms.scripts.push_back([](Form& form) {
        auto& shown = dynamic_cast<frmPrzedzal&>(form);
        EXPECT_EQ(shown.cboData.Text(), "binary");
        EXPECT_EQ(shown.Combo1.Text(), "Yule's Q (mirror)");
        EXPECT_TRUE(shown.Option3.Value);
        EXPECT_EQ(shown.Text2.Text, "31");
        shown.Command2_Click();
    });
    ShowDiagramOptions(session);
    ShowDiagramOptions(session);
    EXPECT_EQ(forms.log, (Texts{"modal frmPrzedzal", "modal frmPrzedzal"}));
    expectScriptsUsedUp();
}

TEST_F(DiagramOptions, FrameOfDataAndDistanceIsHiddenForAMatrixOnly) {
    session.DiagramFromMatrix = true;
    dialog.Form_Show();
    EXPECT_FALSE(dialog.Frame1.Visible);
    session.DiagramFromMatrix = false;
    dialog.Form_Show();
    EXPECT_TRUE(dialog.Frame1.Visible);
}

TEST_F(DiagramOptions, MethodsThatAreNotRegisteredAreOff) {
    dialog.Form_Show();
    EXPECT_TRUE(dialog.Option6.Enabled);
    EXPECT_TRUE(dialog.Option7.Enabled);
    EXPECT_FALSE(dialog.Option8.Enabled);
    EXPECT_FALSE(dialog.Option9.Enabled);
    Register(4, {});
    dialog.Form_Show();
    EXPECT_FALSE(dialog.Option8.Enabled);
    EXPECT_TRUE(dialog.Option9.Enabled);
}

TEST_F(DiagramOptions, DataKindFillsTheListOfMeasures) {
    Open();
    dialog.Combo1.ListIndex = 3;
    dialog.cboData.ListIndex = 1;
    dialog.cboData_Click();
    EXPECT_EQ(dialog.Combo1.List, (Texts{"Henzel distance", "Czekanowski distance (mean City-Block)"}));
    EXPECT_EQ(dialog.Combo1.ListIndex, 0);
    dialog.cboData.ListIndex = 2;
    dialog.cboData_Click();
    EXPECT_EQ(dialog.Combo1.List,
              (Texts{"DfDD Distance", "Lance and Williams", "Jaccard (mirror)", "Yule's Q (mirror)"}));
    EXPECT_EQ(dialog.Combo1.ListIndex, 0);
    dialog.cboData.ListIndex = 0;
    dialog.cboData_Click();
    EXPECT_EQ(dialog.Combo1.List, (Texts{"Euclidean", "Manhattan City-Block", "Chebychev", "Customized"}));
}

TEST_F(DiagramOptions, AutomaticTurnsTheLimitsOffAndBackOnWithTheFocus) {
    dialog.Form_Load();
    dialog.chkAuto.Value = false;
    dialog.chkAuto_Click();
    EXPECT_TRUE(LimitsEnabled(dialog));
    EXPECT_EQ(dialog.ActiveControl, &dialog.Text1);
    dialog.SetFocus(dialog.Command3);
    dialog.chkAuto.Value = true;
    dialog.chkAuto_Click();
    EXPECT_FALSE(LimitsEnabled(dialog));
    EXPECT_EQ(dialog.ActiveControl, &dialog.Command3);
}

TEST_F(DiagramOptions, OptionsOfAFrameExcludeEachOther) {
    Open();
    const std::vector<void (frmPrzedzal::*)()> typeClicks = {
        &frmPrzedzal::Option1_Click, &frmPrzedzal::Option2_Click, &frmPrzedzal::Option3_Click};
    const std::vector<void (frmPrzedzal::*)()> orderClicks = {
        &frmPrzedzal::Option6_Click, &frmPrzedzal::Option7_Click, &frmPrzedzal::Option8_Click,
        &frmPrzedzal::Option9_Click};
    for (std::size_t type = 0; type < 3; ++type)
        for (std::size_t method = 0; method < 4; ++method) {
            (dialog.*typeClicks[type])();
            (dialog.*orderClicks[method])();
            for (std::size_t i = 0; i < 3; ++i) EXPECT_EQ(TypeOptions()[i]->Value, i == type);
            for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(OrderOptions()[i]->Value, i == method);
        }
}

TEST_F(DiagramOptions, LimitFieldsAcceptDigitsSignsPointAndBackspaceOnly) {
    const std::string accepted = "0123456789+-.";
    for (const auto press : {&frmPrzedzal::Text1_KeyPress, &frmPrzedzal::Text2_KeyPress,
                             &frmPrzedzal::Text3_KeyPress, &frmPrzedzal::Text4_KeyPress})
        for (int code = 1; code < 256; ++code) {
            int keyAscii = code;
            (dialog.*press)(keyAscii);
            const bool passes =
                code == key::Backspace || accepted.find(static_cast<char>(code)) != std::string::npos;
            EXPECT_EQ(keyAscii, passes ? code : 0) << code;
        }
}

TEST_F(DiagramOptions, CommaIsDroppedUnderACommaLocaleToo) {
    session.DecimalSeparator = ',';
    int keyAscii = ',';
    dialog.Text1_KeyPress(keyAscii);
    EXPECT_EQ(keyAscii, 0);
}

TEST_F(DiagramOptions, EnterInALimitFieldMovesOn) {
    int keyAscii = key::Enter;
    dialog.Text1_KeyPress(keyAscii);
    EXPECT_EQ(keyAscii, 0);
    EXPECT_EQ(keyboard.sent, Texts{"{TAB}"});
}

TEST_F(DiagramOptions, OkStoresTheMeasureOfEachPosition) {
    const std::vector<std::vector<std::int16_t>> codes = {{3, 4, 5, 6}, {1, 2}, {7, 8, 9, 10}};
    for (int kind = 0; kind < 3; ++kind)
        for (int measure = 0; measure < int(codes[std::size_t(kind)].size()); ++measure) {
            Open();
            Choose(kind, measure);
            const std::int16_t code = codes[std::size_t(kind)][std::size_t(measure)];
            if (code == 6)
                forms.scripts.push_back(
                    [](Form& form) { dynamic_cast<frmCustomized&>(form).Command1_Click(); });
            ExpectAccepted();
            EXPECT_EQ(session.CurrentDistType, code);
        }
    expectScriptsUsedUp();
}

TEST_F(DiagramOptions, EnteredChoicesSelectMeasureTypeAndOrder) {
    Open();
    for (std::int16_t measure = 1; measure <= 10; ++measure)
        for (std::int16_t type = 1; type <= 3; ++type)
            for (std::int16_t order = 1; order <= 4; ++order) {
                if (measure == DistanceType::Customized) continue; // has a dialog of its own
                dialog.Visible = true;
                dialog.Enter({.Measure = {.Measure = measure}, .DiagType = type, .OrderMethod = order});
                dialog.Enter({});
                session.Of<OrderingMethods>().clear();
                dialog.Command3_Click();
                EXPECT_EQ(session.CurrentDistType, measure);
                EXPECT_EQ(session.CurrentDiagType, type);
                EXPECT_EQ(session.CurrentOrderMethod, order);
            }
}

TEST_F(DiagramOptions, OkStoresTypeAndOrder) {
    Register(3, std::vector<std::int16_t>(12, 1));
    Register(4, std::vector<std::int16_t>(12, 1));
    Open();
    for (std::size_t type = 0; type < 3; ++type)
        for (std::size_t method = 0; method < 4; ++method) {
            for (auto* option : TypeOptions()) option->Value = option == TypeOptions()[type];
            for (auto* option : OrderOptions()) option->Value = option == OrderOptions()[method];
            dialog.Visible = true;
            ExpectAccepted();
            EXPECT_EQ(session.CurrentDiagType, std::int16_t(type + 1));
            EXPECT_EQ(session.CurrentOrderMethod, std::int16_t(method + 1));
        }
}

TEST_F(DiagramOptions, OkLeavesTypeAndOrderWhenNoOptionIsOn) {
    session.CurrentDiagType = 3;
    session.CurrentOrderMethod = 4;
    Register(4, {1});
    Open();
    ExpectAccepted();
    EXPECT_EQ(session.CurrentDiagType, 3);
    EXPECT_EQ(session.CurrentOrderMethod, 4);
}

TEST_F(DiagramOptions, AutomaticLimitsAreFourZerosWhateverTheFieldsHold) {
    session.SectionLimits.Cells() = {1, 2};
    Open({"", "x", "0", "-5"});
    dialog.chkAuto.Value = true;
    dialog.chkAuto_Click();
    ExpectAccepted();
    EXPECT_EQ(SessionLimits(), Limits(4, 0.0f));
    EXPECT_TRUE(session.Of<MakingValues>().AutoLimits);
}

TEST_F(DiagramOptions, TypedLimitsThatRiseAreAccepted) {
    session.Of<MakingValues>().AutoLimits = true;
    Open({"0", "1", "2", "3"});
    ExpectAccepted();
    EXPECT_EQ(SessionLimits(), (Limits{0, 1, 2, 3}));
    EXPECT_FALSE(session.Of<MakingValues>().AutoLimits);
}

TEST_F(DiagramOptions, NegativeLimitsAreAccepted) {
    Open({"-2.5", "-1", "+0", "1e1"});
    ExpectAccepted();
    EXPECT_EQ(SessionLimits(), (Limits{-2.5f, -1, 0, 10}));
}

TEST_F(DiagramOptions, PointInALimitIsReadUnderACommaLocale) {
    session.DecimalSeparator = ',';
    Open({"0.5", "1,5", "2.5", "3.5"});
    ExpectAccepted();
    EXPECT_EQ(SessionLimits(), (Limits{0.5f, 1.5f, 2.5f, 3.5f}));
}

TEST_F(DiagramOptions, EmptyOrSingleBlankLimitIsRefused) {
    for (const std::string blank : {"", " "})
        for (std::size_t place = 0; place < 4; ++place) {
            Texts texts{"1", "x", "3", "4"};
            texts[place] = blank;
            Open(texts);
            session.Of<MakingValues>().AutoLimits = true;
            ExpectRefused(AllNeeded);
            EXPECT_EQ(SessionLimits(), Limits(4, 0.0f));
            EXPECT_TRUE(session.Of<MakingValues>().AutoLimits);
        }
}

TEST_F(DiagramOptions, TwoBlanksAreAnInvalidNumberAndNotAMissingOne) {
    Open({"1", "  ", "3", "4"});
    ExpectRefused(InvalidNumber);
}

TEST_F(DiagramOptions, TextThatDoesNotParseLeavesItsLimitAtZeroAndTheOthersAreRead) {
    Open({"1", "1-2", "1e99", "4"});
    ExpectRefused(InvalidNumber);
    EXPECT_EQ(SessionLimits(), (Limits{1, 0, 0, 4}));
}

TEST_F(DiagramOptions, LimitsThatAreAllZeroAreRefused) {
    Open({"0", "0", "0", "0"});
    ExpectRefused(AllZero);
}

TEST_F(DiagramOptions, LimitsThatDoNotRiseStrictlyAreRefused) {
    for (const Texts& texts : std::vector<Texts>{{"10", "10", "20", "30"},
                                                 {"10", "20", "20", "30"},
                                                 {"10", "20", "30", "30"},
                                                 {"11", "10", "20", "30"},
                                                 {"10", "21", "20", "30"},
                                                 {"10", "20", "31", "30"}}) {
        Open(texts);
        session.Of<MakingValues>().AutoLimits = true;
        ExpectRefused(InvalidLimits);
        EXPECT_TRUE(session.Of<MakingValues>().AutoLimits);
    }
}

TEST_F(DiagramOptions, RefusalKeepsTheChoicesStoredBefore) {
    Open({"0", "0", "0", "0"});
    Choose(2, 1);
    dialog.Option3_Click();
    dialog.Option7_Click();
    ExpectRefused(AllZero);
    EXPECT_EQ(session.CurrentDistType, 8);
    EXPECT_EQ(session.CurrentDiagType, 3);
    EXPECT_EQ(session.CurrentOrderMethod, 2);
    EXPECT_EQ(SessionLimits(), Limits(4, 0.0f));
}

TEST_F(DiagramOptions, CancelInTheCustomizedDialogReturnsToThisOne) {
    Open();
    Choose(0, 3);
    forms.scripts.push_back([](Form& form) { dynamic_cast<frmCustomized&>(form).Command2_Click(); });
    dialog.Command3_Click();
    EXPECT_TRUE(dialog.Visible);
    EXPECT_EQ(session.DialogOutcome, -99);
    EXPECT_EQ(session.CurrentDistType, 6);
    EXPECT_EQ(dialog.Combo1.Text(), "Customized");
    forms.scripts.push_back([](Form& form) {
        auto& customized = dynamic_cast<frmCustomized&>(form);
        customized.Text1.Text = "3";
        customized.Command1_Click();
    });
    ExpectAccepted();
    EXPECT_EQ(session.Par_P, 3);
    EXPECT_EQ(session.Par_R, 2);
    expectScriptsUsedUp();
}

TEST_F(DiagramOptions, CancelInAMethodsDialogReturnsToThisOneWithTheChoicesStored) {
    Register(3, {-99, 1});
    Register(4, {-99, 1});
    Open();
    for (const std::int16_t method : {3, 4}) {
        asked.clear();
        dialog.Visible = true;
        dialog.Option1_Click();
        method == 3 ? dialog.Option8_Click() : dialog.Option9_Click();
        dialog.Command3_Click();
        EXPECT_TRUE(dialog.Visible);
        EXPECT_EQ(session.DialogOutcome, -99);
        EXPECT_EQ(session.CurrentOrderMethod, method);
        EXPECT_EQ(session.CurrentDiagType, 1);
        EXPECT_EQ(SessionLimits(), (Limits{15, 30, 45, 60}));
        ExpectAccepted();
        EXPECT_EQ(asked, (std::vector<int>{method, method}));
    }
}

TEST_F(DiagramOptions, CustomizedDialogComesBeforeTheMethods) {
    Register(3, {1});
    Open();
    Choose(0, 3);
    dialog.Option8_Click();
    forms.scripts.push_back([this](Form& form) {
        EXPECT_TRUE(asked.empty());
        dynamic_cast<frmCustomized&>(form).Command1_Click();
    });
    ExpectAccepted();
    EXPECT_EQ(asked, std::vector<int>{3});
    expectScriptsUsedUp();
}

TEST_F(DiagramOptions, MatrixKeepsTheMeasureAndNeverAsksForTheCustomizedOne) {
    session.DiagramFromMatrix = true;
    session.CurrentDistType = 6;
    Open();
    ExpectAccepted();
    EXPECT_EQ(session.CurrentDistType, 6);
    EXPECT_TRUE(forms.log.empty());
}

TEST_F(DiagramOptions, OkRepaintsTheActiveWindow) {
    StillWindow window;
    session.ActiveWindow = &window;
    Open();
    ExpectAccepted();
    EXPECT_EQ(children.log, Texts{"update [DATA]: Untitled:1"});
    session.ActiveWindow = nullptr;
}

TEST_F(DiagramOptions, CancelLeavesTheSessionAsItWas) {
    session.SectionLimits.Cells() = {1, 2, 3, 4};
    Open({"5", "6", "7", "8"});
    Choose(2, 2);
    dialog.Option3_Click();
    dialog.Option7_Click();
    dialog.Command2_Click();
    EXPECT_FALSE(dialog.Visible);
    EXPECT_EQ(session.DialogOutcome, -99);
    EXPECT_EQ(SessionLimits(), (Limits{1, 2, 3, 4}));
    EXPECT_EQ(session.CurrentDistType, 1);
    EXPECT_EQ(session.CurrentDiagType, 2);
    EXPECT_EQ(session.CurrentOrderMethod, 1);
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(DiagramOptions, ClosingTheDialogCancelsIt) {
    Open();
    dialog.CancelCommand();
    EXPECT_FALSE(dialog.Visible);
    EXPECT_EQ(session.DialogOutcome, -99);
}

} // namespace
} // namespace dorvan
