#include "making/frmGenetic.h"
#include "making/frmGeneticUM.h"
#include "making/ordering_options.h"
#include "platform/keys.h"
#include "support/test_platform.h"

#include <gtest/gtest.h>

#include <numeric>

#include <string>
#include <vector>

namespace dorvan {
namespace {

using Texts = std::vector<std::string>;

class GeneticDialog : public ::testing::Test, public test::TestSession {
protected:
    frmGenetic dialog{session};
    GeneticDialog() {
        dialog.Form_Load();
        dialog.Visible = true;
    }
};

TEST_F(GeneticDialog, ShowsItsTexts) {
    EXPECT_EQ(dialog.Caption, "Simple genetic algorithm");
    EXPECT_EQ(dialog.Label1.Caption, "Number of generations:");
    EXPECT_EQ(dialog.Label2.Caption, "Number of variants:");
    EXPECT_EQ(
        dialog.Label3.Caption,
        "Choosing 10 variants and 100 generations assures quick but not very precise results. 50 variants "
        "and "
        "2000 generations is brutal method which assures better results, but it demands a lot of patience.");
    EXPECT_EQ(dialog.Command1.Caption, "O&K");
    EXPECT_EQ(dialog.Command2.Caption, "Cancel");
}

TEST_F(GeneticDialog, ListsGenerationsAndVariantsWithTheirDefaults) {
    EXPECT_EQ(dialog.cboGen.List, (Texts{"2000", "1500", "1000", "750", "500", "250", "100"}));
    EXPECT_EQ(dialog.cboGen.Text(), "250");
    EXPECT_EQ(dialog.cboVar.List, (Texts{"10", "20", "30", "40", "50"}));
    EXPECT_EQ(dialog.cboVar.Text(), "30");
}

TEST_F(GeneticDialog, OkStoresTheNumbersOfEverySelectedItem) {
    for (int gen = 0; gen < 7; ++gen)
        for (int var = 0; var < 5; ++var) {
            dialog.Visible = true;
            dialog.cboGen.ListIndex = gen;
            dialog.cboVar.ListIndex = var;
            dialog.Command1_Click();
            EXPECT_EQ(std::to_string(session.Of<OrderingOptions>().GeneticGenerations), dialog.cboGen.Text());
            EXPECT_EQ(std::to_string(session.Of<OrderingOptions>().GeneticVariants), dialog.cboVar.Text());
            EXPECT_EQ(session.DialogOutcome, 1);
            EXPECT_FALSE(dialog.Visible);
        }
}

TEST_F(GeneticDialog, EnteredChoicesSelectItemsOfTheLists) {
    dialog.Enter({.Generations = "750", .Variants = "50"});
    EXPECT_EQ(dialog.cboGen.Text(), "750");
    EXPECT_EQ(dialog.cboVar.Text(), "50");
    dialog.Enter({.Generations = "", .Variants = "7"});
    EXPECT_EQ(dialog.cboGen.Text(), "750");
    EXPECT_EQ(dialog.cboVar.Text(), "50") << "no item";
}

TEST_F(GeneticDialog, CancelStoresNothing) {
    const OrderingOptions before = session.Of<OrderingOptions>();
    dialog.cboGen.ListIndex = 0;
    dialog.CancelCommand();
    EXPECT_EQ(session.DialogOutcome, -99);
    EXPECT_FALSE(dialog.Visible);
    EXPECT_EQ(session.Of<OrderingOptions>().GeneticGenerations, before.GeneticGenerations);
}

class RavelinDialog : public ::testing::Test, public test::TestSession {
protected:
    frmGeneticUM dialog{session};
    RavelinDialog() {
        dialog.Form_Load();
        dialog.Visible = true;
        session.DialogOutcome = 0;
    }

    std::vector<int> Stored() {
        const auto& o = session.Of<OrderingOptions>();
        return {o.SequenceChange,           o.FragmentTransfer,      o.SomeSingleTransfers,
                o.SingleTransfer,           o.SomeRemoteConversions, o.RemoteConversion,
                o.SomeNeighbourConversions, o.NeighbourConversion,   o.CriticalMutationNumber,
                o.CriticalGenerationNumber};
    }

    int Press(const TextBox& field, int character) {
        dialog.Text_KeyPress(field, character);
        return character;
    }
};

TEST_F(RavelinDialog, ShowsItsTextsAndDefaults) {
    EXPECT_EQ(dialog.Caption, "Ravelin");
    EXPECT_EQ(dialog.Frame1.Caption, "Ravelin algorithm options:");
    EXPECT_EQ(dialog.Label12.Caption, "Changes in these options should be performed only by advanced users!");
    EXPECT_EQ(dialog.Command1.Caption, "O&K");
    EXPECT_EQ(dialog.Command2.Caption, "Cancel");
    const std::vector<Texts> rows = {{"Sequence change:", "1"},
                                     {"Fragment transfer:", "5"},
                                     {"Some single transfers:", "20"},
                                     {"Single transfer:", "50"},
                                     {"Some remote conversions:", "15"},
                                     {"Remote conversion:", "30"},
                                     {"Some neighbour conversions:", "50"},
                                     {"Neighbour conversion:", "200"},
                                     {"Critical mutation number:", "100"},
                                     {"Critical generation number:", "10"},
                                     {"Matrix conversion coefficient:", "1.0"}};
    for (std::size_t row = 0; row < rows.size(); ++row) {
        EXPECT_EQ(dialog.Rows()[row].Caption->Caption, rows[row][0]);
        EXPECT_EQ(dialog.Rows()[row].Field->Text, rows[row][1]);
        EXPECT_EQ(dialog.Rows()[row].Field->Name, "Text" + std::to_string(row + 1));
    }
}

TEST_F(RavelinDialog, OkStoresEachFieldInItsOwnValue) {
    for (std::size_t row = 0; row < 10; ++row) dialog.Rows()[row].Field->Text = std::to_string(row + 11);
    dialog.Text11.Text = "2.5";
    session.Of<OrderingOptions>().WorkCancelled = true;
    dialog.Command1_Click();
    EXPECT_EQ(Stored(), (std::vector<int>{11, 12, 13, 14, 15, 16, 17, 18, 19, 20}));
    EXPECT_EQ(session.Of<OrderingOptions>().MatrixConversionCoefficient, 2.5F);
    EXPECT_EQ(session.DialogOutcome, 1);
    EXPECT_FALSE(session.Of<OrderingOptions>().WorkCancelled);
    EXPECT_FALSE(dialog.Visible);
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(RavelinDialog, EnteredChoicesArriveInTheirOwnValues) {
    const std::pair<RavelinParameter, std::int16_t OrderingOptions::*> values[] = {
        {RavelinParameter::SequenceChange, &OrderingOptions::SequenceChange},
        {RavelinParameter::FragmentTransfer, &OrderingOptions::FragmentTransfer},
        {RavelinParameter::SomeSingleTransfers, &OrderingOptions::SomeSingleTransfers},
        {RavelinParameter::SingleTransfer, &OrderingOptions::SingleTransfer},
        {RavelinParameter::SomeRemoteConversions, &OrderingOptions::SomeRemoteConversions},
        {RavelinParameter::RemoteConversion, &OrderingOptions::RemoteConversion},
        {RavelinParameter::SomeNeighbourConversions, &OrderingOptions::SomeNeighbourConversions},
        {RavelinParameter::NeighbourConversion, &OrderingOptions::NeighbourConversion},
        {RavelinParameter::CriticalMutationNumber, &OrderingOptions::CriticalMutationNumber},
        {RavelinParameter::CriticalGenerationNumber, &OrderingOptions::CriticalGenerationNumber}};
    std::int16_t number = 600;
    for (const auto& [parameter, value] : values) {
        ++number;
        dialog.Enter({{parameter, std::to_string(number)}});
        dialog.Command1_Click();
        EXPECT_EQ(session.Of<OrderingOptions>().*value, number);
    }
    EXPECT_EQ(session.Of<OrderingOptions>().MatrixConversionCoefficient, 1.0F);
    dialog.Enter({{RavelinParameter::MatrixConversionCoefficient, "2.5"}});
    dialog.Command1_Click();
    EXPECT_EQ(session.Of<OrderingOptions>().MatrixConversionCoefficient, 2.5F);
    EXPECT_EQ(session.Of<OrderingOptions>().SequenceChange, 601) << "what was not said stays";
}

TEST_F(RavelinDialog, DefaultsAddUpTo371) {
    dialog.Command1_Click();
    const auto stored = Stored();
    EXPECT_EQ(std::accumulate(stored.begin(), stored.begin() + 8, 0), 371);
    EXPECT_EQ(session.Of<OrderingOptions>().MatrixConversionCoefficient, 1.0F);
}

TEST_F(RavelinDialog, AFieldThatDoesNotConvertKeepsItsValueAndTheOthersAreStored) {
    for (const std::string bad : {"", "32768", "1-2"}) {
        for (std::size_t row = 0; row < 11; ++row) {
            session.Of<OrderingOptions>() = {};
            messages.shown.clear();
            for (std::size_t other = 0; other < 10; ++other) dialog.Rows()[other].Field->Text = "7";
            dialog.Text11.Text = "7";
            dialog.Rows()[row].Field->Text = row == 10 && bad == "32768" ? "1..2" : bad;
            dialog.Command1_Click();
            EXPECT_EQ(messages.shown, (std::vector<Message>{{.Text = "Parametr error!"}}));
            EXPECT_TRUE(dialog.Visible);
            EXPECT_EQ(session.DialogOutcome, 0);
            const std::vector<int> defaults = {1, 5, 20, 50, 15, 30, 50, 200, 100, 10};
            for (std::size_t other = 0; other < 10; ++other)
                EXPECT_EQ(Stored()[other], other == row ? defaults[other] : 7);
            EXPECT_EQ(session.Of<OrderingOptions>().MatrixConversionCoefficient, row == 10 ? 1.0F : 7.0F);
        }
    }
}

TEST_F(RavelinDialog, CoefficientReadsUnderACommaLocale) {
    session.DecimalSeparator = ',';
    dialog.Command1_Click();
    EXPECT_EQ(session.Of<OrderingOptions>().MatrixConversionCoefficient, 1.0F);
    EXPECT_EQ(session.DialogOutcome, 1);
}

TEST_F(RavelinDialog, CancelStoresNothing) {
    dialog.Text1.Text = "9";
    dialog.CancelCommand();
    EXPECT_EQ(session.DialogOutcome, -99);
    EXPECT_EQ(session.Of<OrderingOptions>().SequenceChange, 1);
    EXPECT_FALSE(dialog.Visible);
}

TEST_F(RavelinDialog, FieldsTakeDigitsAndBackspaceAndTheLastOneThePoint) {
    for (const auto& row : dialog.Rows()) {
        for (int digit = '0'; digit <= '9'; ++digit) EXPECT_EQ(Press(*row.Field, digit), digit);
        EXPECT_EQ(Press(*row.Field, key::Backspace), key::Backspace);
        for (const int other : {int(','), int('-'), int('+'), int('a'), int(' ')})
            EXPECT_EQ(Press(*row.Field, other), key::None);
        EXPECT_EQ(Press(*row.Field, '.'), row.Field == &dialog.Text11 ? '.' : key::None);
    }
}

TEST_F(RavelinDialog, EnterInAFieldMovesOn) {
    EXPECT_EQ(Press(dialog.Text1, key::Enter), key::None);
    EXPECT_EQ(keyboard.sent, (Texts{"{TAB}"}));
}

TEST_F(RavelinDialog, IsLoadedOnceAndKeepsWhatWasTyped) {
    session.forms.Load<frmGeneticUM>(session).Text9.Text = "5";
    EXPECT_EQ(session.forms.Load<frmGeneticUM>(session).Text9.Text, "5");
    session.forms.Load<frmGenetic>(session).cboGen.ListIndex = 0;
    EXPECT_EQ(session.forms.Load<frmGenetic>(session).cboGen.Text(), "2000");
}

} // namespace
} // namespace dorvan
