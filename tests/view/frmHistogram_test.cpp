#include "view/frmHistogram.h"

#include "diagram_session.h"
#include "session/children.h"
#include "support/drawings.h"
#include "support/expect_failure.h"
#include "view/histogram_drawing.h"

#include <gmock/gmock.h>

namespace dorvan::test {
namespace {

using ::testing::ElementsAre;

// Three records with the distances 1, 2 and 3, limits 1.5, 2.5, 3.5 and 4.5, on the screen.
struct HistogramTest : ::testing::Test, DiagramSession {
    static DiagramDocument threeRecords() {
        DiagramDocument document = SampleDocument(3);
        const float distances[] = {0, 1, 2, 1, 0, 3, 2, 3, 0};
        document.Matrix.Cells().assign(std::begin(distances), std::end(distances));
        document.SectionLimits.Cells() = {1.5f, 2.5f, 3.5f, 4.5f};
        return document;
    }

    frmDiagram& window = Open(threeRecords());

    HistogramTest() { ShowChild(session, window); }

    using Script = std::function<void(frmHistogram&)>;

    // What the user does in the dialog, which is cancelled if it is still open then.
    void inDialog(const Script& script) {
        forms.scripts.push_back([script](Form& form) {
            auto& dialog = dynamic_cast<frmHistogram&>(form);
            script(dialog);
            if (dialog.Visible) dialog.Command2_Click();
        });
        window.Histogram();
    }

    static void type(frmHistogram& dialog, const std::vector<std::string>& limits) {
        TextBox* boxes[] = {&dialog.Text1, &dialog.Text2, &dialog.Text3, &dialog.Text4};
        for (std::size_t number = 0; number < 4; ++number) boxes[number]->Text = limits[number];
    }

    // What both commands answer to the limits.
    std::vector<Message> answersTo(const std::vector<std::string>& limits, void (frmHistogram::*command)()) {
        messages.shown.clear();
        inDialog([&](frmHistogram& dialog) {
            type(dialog, limits);
            (dialog.*command)();
        });
        return messages.shown;
    }

    Drawing chart(std::array<std::int16_t, 5> heights, bool cumulative = false) {
        return HistogramDrawing(heights, cumulative, fonts);
    }
};

TEST_F(HistogramTest, OpensOnTheDocumentsLimitsWithANormalChart) {
    inDialog([this](frmHistogram& dialog) {
        EXPECT_EQ(dialog.Caption, "Histogram");
        EXPECT_EQ(dialog.Index, window.Index);
        EXPECT_TRUE(dialog.Option1.Value);
        EXPECT_FALSE(dialog.Option2.Value);
        EXPECT_EQ(dialog.Text1.Text, "1.500");
        EXPECT_EQ(dialog.Text2.Text, "2.500");
        EXPECT_EQ(dialog.Text3.Text, "3.500");
        EXPECT_EQ(dialog.Text4.Text, "4.500");
        EXPECT_EQ(dialog.Counts.PairCount, 6);
        EXPECT_THAT(dialog.Counts.SectionCount, ElementsAre(2, 2, 2, 0, 0));
        EXPECT_TRUE(sameDrawing(dialog.Picture1.Shown(), chart({680, 680, 680, 0, 0})));
    });
}

TEST_F(HistogramTest, CaptionsAndLengths) {
    inDialog([](frmHistogram& dialog) {
        EXPECT_EQ(dialog.Frame1.Caption, "Histogram");
        EXPECT_EQ(dialog.Option1.Caption, "Normal");
        EXPECT_EQ(dialog.Option2.Caption, "Cumulative");
        EXPECT_EQ(dialog.Frame3.Caption, "Set section limits:");
        EXPECT_EQ(dialog.Command1.Caption, "O&K");
        EXPECT_EQ(dialog.Command2.Caption, "Cancel");
        EXPECT_EQ(dialog.Command3.Caption, "&Check");
        for (const TextBox* box : {&dialog.Text1, &dialog.Text2, &dialog.Text3, &dialog.Text4})
            EXPECT_EQ(box->MaxLength, 8);
    });
}

TEST_F(HistogramTest, FourthLimitChoosesTheDecimalsOfAll) {
    for (const auto& [fourth, first, last] : {std::tuple{12.5f, "1.500", "12.500"},
                                              {99.9f, "1.500", "99.900"},
                                              {100.0f, "1.50", "100.00"},
                                              {150.0f, "1.50", "150.00"},
                                              {1000.0f, "1.5", "1000.0"},
                                              {2000.0f, "1.5", "2000.0"}}) {
        window.Document().SectionLimits(4) = fourth;
        inDialog([&](frmHistogram& dialog) {
            EXPECT_EQ(dialog.Text1.Text, first);
            EXPECT_EQ(dialog.Text4.Text, last);
        });
    }
}

TEST_F(HistogramTest, LimitsAreShownWithTheSeparator) {
    session.DecimalSeparator = ',';
    inDialog([](frmHistogram& dialog) { EXPECT_EQ(dialog.Text1.Text, "1,500"); });
}

TEST_F(HistogramTest, CheckDrawsTheLimitsTypedInAndLeavesTheDocument) {
    inDialog([this](frmHistogram& dialog) {
        type(dialog, {"1", "2", "3", "4"});
        dialog.Command3_Click();
        EXPECT_THAT(dialog.Counts.SectionCount, ElementsAre(0, 2, 2, 2, 0));
        EXPECT_TRUE(sameDrawing(dialog.Picture1.Shown(), chart({0, 680, 680, 680, 0})));
        EXPECT_TRUE(dialog.Visible);
    });
    EXPECT_THAT(window.Document().SectionLimits.Cells(), ElementsAre(1.5f, 2.5f, 3.5f, 4.5f));
}

TEST_F(HistogramTest, CumulativeTakesEffectAtTheNextCheck) {
    inDialog([this](frmHistogram& dialog) {
        const Drawing before = dialog.Picture1.Shown();
        dialog.Option1.Value = false;
        dialog.Option2.Value = true;
        EXPECT_TRUE(sameDrawing(dialog.Picture1.Shown(), before));
        dialog.Command3_Click();
        EXPECT_THAT(dialog.Counts.SectionCount, ElementsAre(2, 4, 6, 6, 6));
        EXPECT_TRUE(sameDrawing(dialog.Picture1.Shown(), chart({680, 1360, 2040, 2040, 2040}, true)));
        dialog.Command3_Click(); // sums are not summed again
        EXPECT_THAT(dialog.Counts.SectionCount, ElementsAre(2, 4, 6, 6, 6));
    });
}

TEST_F(HistogramTest, OkStoresTheLimitsAndReclassifies) {
    inDialog([](frmHistogram& dialog) {
        type(dialog, {"0.5", "1", "2", "2.5"});
        dialog.Command1_Click();
        EXPECT_FALSE(dialog.Visible);
    });
    EXPECT_THAT(window.Document().SectionLimits.Cells(), ElementsAre(0.5f, 1.0f, 2.0f, 2.5f));
    EXPECT_EQ(window.Document().Classes(1, 2), 3); // 1
    EXPECT_EQ(window.Document().Classes(2, 3), 1); // 3
    EXPECT_EQ(TileAt(window, 1, 2), Tile::picCircle03);
    EXPECT_EQ(session.DialogOutcome, 1);
    EXPECT_EQ(signals.cursors, (std::vector{Cursor::Wait, Cursor::Default}));
    EXPECT_EQ(children.log.back(), "update [DIAGRAM]: Untitled:1");
}

TEST_F(HistogramTest, OkLeavesTheOrderAndTheChangedMark) {
    for (const bool dirty : {false, true}) {
        session.DiagramStates[1].Dirty = dirty;
        inDialog([](frmHistogram& dialog) { dialog.Command1_Click(); });
        EXPECT_EQ(session.DiagramStates[1].Dirty, dirty);
    }
    EXPECT_EQ(NamesOf(window), "ABC");
}

TEST_F(HistogramTest, SelectedRowLosesItsCrossAndStaysSelected) {
    window.Siatka.SetCurrent(2, 2);
    window.SelectThisRow();
    ASSERT_EQ(TileAt(window, 2, 2), Tile::picSelectCircle05);
    inDialog([](frmHistogram& dialog) { dialog.Command1_Click(); });
    EXPECT_EQ(TileAt(window, 2, 2), Tile::picCircle05);
    EXPECT_EQ(window.SelectedRow, 2);
    EXPECT_EQ(window.RowSelected, 1);
}

TEST_F(HistogramTest, CancelLeavesTheDiagramAlsoAfterACheck) {
    inDialog([](frmHistogram& dialog) {
        type(dialog, {"0.5", "1", "2", "2.5"});
        dialog.Command3_Click();
        dialog.Command2_Click();
    });
    EXPECT_EQ(session.DialogOutcome, -99);
    EXPECT_THAT(window.Document().SectionLimits.Cells(), ElementsAre(1.5f, 2.5f, 3.5f, 4.5f));
    EXPECT_TRUE(signals.cursors.empty());
    inDialog([](frmHistogram& dialog) { // loaded anew
        EXPECT_EQ(dialog.Text1.Text, "1.500");
        dialog.CancelCommand();
    });
    EXPECT_EQ(session.DialogOutcome, -99);
}

TEST_F(HistogramTest, EmptyLimitIsRefusedByBoth) {
    const Message refusal{.Text = "Limits of all sections are needed!"};
    for (const auto command : {&frmHistogram::Command1_Click, &frmHistogram::Command3_Click})
        for (std::size_t empty = 0; empty < 4; ++empty) {
            std::vector<std::string> limits{"1", "x", "3", "4"};
            limits[empty] = "  ";
            EXPECT_THAT(answersTo(limits, command), ElementsAre(refusal));
        }
}

TEST_F(HistogramTest, TextThatIsNoNumberIsRefusedByBoth) {
    const Message refusal{.Text = "Invalid number!", .Icon = MessageIcon::Critical};
    for (const auto command : {&frmHistogram::Command1_Click, &frmHistogram::Command3_Click})
        for (std::size_t wrong = 0; wrong < 4; ++wrong) {
            std::vector<std::string> limits{"0", "0", "0", "0"};
            limits[wrong] = "1+1";
            EXPECT_THAT(answersTo(limits, command), ElementsAre(refusal));
        }
    EXPECT_THAT(answersTo({"1", "2", "3", "1E39"}, &frmHistogram::Command1_Click), ElementsAre(refusal));
}

TEST_F(HistogramTest, AllZeroIsRefusedByBothAndOneNumberPassesThatTest) {
    const Message zero{.Text = "Error - all limits = 0!", .Icon = MessageIcon::Critical};
    for (const auto command : {&frmHistogram::Command1_Click, &frmHistogram::Command3_Click})
        EXPECT_THAT(answersTo({"0", "0.000", "-0", "0"}, command), ElementsAre(zero));
    EXPECT_THAT(answersTo({"0", "0", "0", "1"}, &frmHistogram::Command3_Click), ElementsAre());
}

TEST_F(HistogramTest, OkDemandsARiseWhereCheckTakesEqualNeighbours) {
    const Message order{.Text = "Invalid section limits!", .Icon = MessageIcon::Critical};
    for (const std::vector<std::string>& limits :
         {std::vector<std::string>{"1", "1", "2", "3"}, {"1", "2", "2", "3"}, {"1", "2", "3", "3"}}) {
        EXPECT_THAT(answersTo(limits, &frmHistogram::Command1_Click), ElementsAre(order));
        EXPECT_THAT(answersTo(limits, &frmHistogram::Command3_Click), ElementsAre());
    }
    for (const std::vector<std::string>& limits :
         {std::vector<std::string>{"2", "1", "3", "4"}, {"1", "3", "2", "4"}, {"1", "2", "4", "3"}}) {
        EXPECT_THAT(answersTo(limits, &frmHistogram::Command1_Click), ElementsAre(order));
        EXPECT_THAT(answersTo(limits, &frmHistogram::Command3_Click), ElementsAre(order));
    }
}

TEST_F(HistogramTest, NegativeLimitsPassWhenTheyRise) {
    EXPECT_THAT(answersTo({"-4", "-3", "-2", "-1"}, &frmHistogram::Command1_Click), ElementsAre());
    EXPECT_THAT(window.Document().SectionLimits.Cells(), ElementsAre(-4.0f, -3.0f, -2.0f, -1.0f));
}

TEST_F(HistogramTest, PointIsTakenWhereTheLocaleHasAComma) {
    session.DecimalSeparator = ',';
    EXPECT_THAT(answersTo({"0.5", "1.5", "2.5", "3.5"}, &frmHistogram::Command1_Click), ElementsAre());
    EXPECT_THAT(window.Document().SectionLimits.Cells(), ElementsAre(0.5f, 1.5f, 2.5f, 3.5f));
}

TEST_F(HistogramTest, LimitsTakeDigitsSignsPointAndBackspace) {
    inDialog([](frmHistogram& dialog) {
        using KeyPress = void (frmHistogram::*)(int&);
        for (const KeyPress press : {&frmHistogram::Text1_KeyPress, &frmHistogram::Text2_KeyPress,
                                     &frmHistogram::Text3_KeyPress, &frmHistogram::Text4_KeyPress})
            for (int key = 1; key < 300; ++key) {
                const bool taken =
                    key == 8 || key == '+' || key == '-' || key == '.' || (key >= '0' && key <= '9');
                int pressed = key;
                (dialog.*press)(pressed);
                EXPECT_EQ(pressed, taken ? key : 0) << key;
            }
    });
}

TEST_F(HistogramTest, BeepsWhileADiagramIsBeingMade) {
    session.DiagramBusy = 1;
    window.Histogram();
    EXPECT_EQ(signals.beeps, 1);
    EXPECT_TRUE(forms.log.empty());
}

TEST_F(HistogramTest, ServesDiagramsOf2To181Records) {
    for (const int count : {2, 181}) {
        forms.scripts.push_back([](Form& form) { form.CancelCommand(); });
        Open(count).Histogram();
    }
    EXPECT_FAILURE(Failure::Overflow, Open(182).Histogram());
    session.forms.Unload<frmHistogram>();
    EXPECT_FAILURE(Failure::Overflow, Open(1).Histogram());
    EXPECT_EQ(forms.log.size(), 2U);
}

} // namespace
} // namespace dorvan::test
