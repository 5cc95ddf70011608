#include "distance/frmCustomized.h"
#include "distance/frmOpcjeMacierzy.h"
#include "distance/matrix_session.h"
#include "distance/measures.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace dorvan::test {
namespace {

struct frmOpcjeMacierzyTest : ::testing::Test, MatrixSession {
    frmOpcjeMacierzy& dialog = session.forms.Load<frmOpcjeMacierzy>(session);

    void Select(int dataKind, int position) {
        dialog.cboData.ListIndex = dataKind;
        dialog.cboData_Click();
        dialog.Combo1.ListIndex = position;
        dialog.Visible = true;
    }
};

TEST_F(frmOpcjeMacierzyTest, ShowsItsTexts) {
    EXPECT_EQ(dialog.Caption, "Matrix");
    EXPECT_EQ(dialog.Frame1.Caption, "Distance type:");
    EXPECT_EQ(dialog.Command2.Caption, "OK");
    EXPECT_EQ(dialog.Command1.Caption, "Cancel");
}

TEST_F(frmOpcjeMacierzyTest, OpensOnNumericalDataAndEuclideanWhateverIsInForce) {
    session.CurrentDistType = 9;
    session.forms.Unload<frmOpcjeMacierzy>();
    auto& fresh = session.forms.Load<frmOpcjeMacierzy>(session);
    EXPECT_EQ(fresh.cboData.List,
              (std::vector<std::string>{"numerical data", "numerical data with NA", "binary"}));
    EXPECT_EQ(fresh.cboData.Text(), "numerical data");
    EXPECT_EQ(fresh.Combo1.List,
              (std::vector<std::string>{"Euclidean", "Manhattan City-Block", "Chebychev", "Customized"}));
    EXPECT_EQ(fresh.Combo1.Text(), "Euclidean");
}

TEST_F(frmOpcjeMacierzyTest, OpensSoAlsoAfterAnotherChoice) {
    Select(2, 3);
    dialog.Command2_Click();
    dialog.Form_Show();
    EXPECT_EQ(dialog.cboData.Text(), "numerical data");
    EXPECT_EQ(dialog.cboData.List.size(), 3u);
    EXPECT_EQ(dialog.Combo1.Text(), "Euclidean");
    EXPECT_EQ(dialog.Combo1.List.size(), 4u);
}

TEST_F(frmOpcjeMacierzyTest, AChangeOfTheDataKindFillsTheMeasuresAnew) {
    for (const int kind : {1, 2, 0}) {
        dialog.Combo1.ListIndex = 1;
        dialog.cboData.ListIndex = kind;
        dialog.cboData_Click();
        EXPECT_EQ(dialog.Combo1.List, MeasuresOfKind(kind));
        EXPECT_EQ(dialog.Combo1.ListIndex, 0);
    }
}

TEST_F(frmOpcjeMacierzyTest, EnteredChoicesSelectTheMeasureInItsLists) {
    for (std::int16_t code = 1; code <= 10; ++code) {
        dialog.Enter({.Measure = code});
        EXPECT_EQ(MeasureCode(dialog.cboData.ListIndex, dialog.Combo1.ListIndex), code);
        EXPECT_EQ(dialog.Combo1.List, MeasuresOfKind(dialog.cboData.ListIndex));
    }
    dialog.Enter({});
    EXPECT_EQ(MeasureCode(dialog.cboData.ListIndex, dialog.Combo1.ListIndex), 10) << "nothing was said";
}

TEST_F(frmOpcjeMacierzyTest, OKPutsTheMeasureInForceAndRedrawsTheActiveWindow) {
    OpenSheet({{"1"}, {"2"}});
    for (const std::int16_t code : {1, 2, 3, 4, 5, 7, 8, 9, 10}) {
        const auto place = PlaceOfMeasure(code);
        session.DialogOutcome = 0;
        children.log.clear();
        Select(place.DataKind, place.Position);
        dialog.Command2_Click();
        EXPECT_EQ(session.CurrentDistType, code);
        EXPECT_EQ(session.DialogOutcome, 1);
        EXPECT_FALSE(dialog.Visible);
        EXPECT_EQ(children.log, (std::vector<std::string>{"update [DATA]: Untitled:1"}));
    }
    EXPECT_TRUE(forms.log.empty());
}

TEST_F(frmOpcjeMacierzyTest, CustomizedAsksForItsParameters) {
    OpenSheet({{"1"}, {"2"}});
    forms.scripts.push_back([](Form& form) {
        auto& customized = dynamic_cast<frmCustomized&>(form);
        customized.Text1.Text = "3";
        customized.Command1_Click();
    });
    Select(0, 3);
    dialog.Command2_Click();
    EXPECT_EQ(session.CurrentDistType, 6);
    EXPECT_EQ(session.Par_P, 3);
    EXPECT_EQ(session.Par_R, 2);
    EXPECT_EQ(session.DialogOutcome, 1);
    EXPECT_FALSE(dialog.Visible);
    EXPECT_EQ(children.log.size(), 1u);
    expectScriptsUsedUp();
}

TEST_F(frmOpcjeMacierzyTest, CancelInCustomizedReturnsToTheDialogWithCustomizedSelected) {
    OpenSheet({{"1"}, {"2"}});
    forms.scripts.push_back([](Form& form) { dynamic_cast<frmCustomized&>(form).Command2_Click(); });
    Select(0, 3);
    dialog.Command2_Click();
    EXPECT_TRUE(dialog.Visible);
    EXPECT_EQ(dialog.Combo1.Text(), "Customized");
    EXPECT_EQ(session.CurrentDistType, 6);
    EXPECT_TRUE(children.log.empty());
}

TEST_F(frmOpcjeMacierzyTest, CancelKeepsTheMeasure) {
    session.CurrentDistType = 5;
    for (const bool byKey : {false, true}) {
        session.DialogOutcome = 1;
        Select(2, 1);
        if (byKey)
            dialog.CancelCommand();
        else
            dialog.Command1_Click();
        EXPECT_EQ(session.DialogOutcome, -99);
        EXPECT_FALSE(dialog.Visible);
        EXPECT_EQ(session.CurrentDistType, 5);
    }
    EXPECT_TRUE(children.log.empty());
}

} // namespace
} // namespace dorvan::test
