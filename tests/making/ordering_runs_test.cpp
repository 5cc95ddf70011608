#include "making/frmWork.h"
#include "making/frmWorkUM.h"
#include "making/ordering_method.h"
#include "making/ordering_options.h"
#include "making/ordering_runs.h"
#include "support/test_platform.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace dorvan {
namespace {

using Texts = std::vector<std::string>;

FloatTable RandomDistances(std::int32_t n, std::uint64_t seed) {
    RandomSource random(seed);
    FloatTable distances(n, n, 0.0F);
    for (std::int32_t i = 1; i <= n; ++i)
        for (std::int32_t j = 1; j < i; ++j) distances(i, j) = distances(j, i) = 100 * random.Draw();
    return distances;
}

Order SheetOrder(std::int32_t n) {
    Order order;
    for (std::int32_t k = 1; k <= n; ++k) order.Append(static_cast<std::int16_t>(k));
    return order;
}

// A clock that moves on by a second at each look, so that every yield paints.
class OrderingRun : public ::testing::Test, public test::TestSession {
protected:
    FloatTable distances = RandomDistances(12, 3);

    OrderingRun() {
        AddGeneticOrderings(session);
        session.Of<OrderingOptions>().GeneticGenerations = 4;
        session.Of<OrderingOptions>().GeneticVariants = 10;
        session.Of<OrderingOptions>().CriticalMutationNumber = 5;
        session.Of<OrderingOptions>().CriticalGenerationNumber = 2;
        clock.step = 1;
    }

    Order Run(std::int16_t method) {
        return session.Of<OrderingMethods>().at(method).run(session, distances);
    }
    frmWork& Work() { return session.forms.Load<frmWork>(session); }
    frmWorkUM& WorkUM() { return session.forms.Load<frmWorkUM>(session); }
};

TEST_F(OrderingRun, SimpleGeneticShowsItsWindowAndYieldsOnceAGeneration) {
    EXPECT_EQ(Work().Caption, "At work...");
    Run(3);
    EXPECT_EQ(events.runs, 4);
    EXPECT_EQ(forms.log, (Texts{"show frmWork", "update frmWork", "update frmWork", "update frmWork",
                                "update frmWork", "close frmWork"}));
}

TEST_F(OrderingRun, SimpleGeneticShowsTheGenerationBegunWithTheScoreBeforeIt) {
    Texts shown;
    std::vector<double> widths;
    events.onRun = [&](int) {
        const frmWork& window = Work();
        shown.push_back(window.InfoString.Caption + "|" + window.InfoTime.Caption + "|" +
                        window.lblFunkcja.Caption);
        widths.push_back(window.Procent1.Width / window.Procent.Width);
    };
    Run(3);
    ASSERT_EQ(shown.size(), 4U);
    EXPECT_EQ(shown[0], "0 %||"); // nothing has begun at the first yield
    EXPECT_EQ(shown[1].substr(0, 7), "25.0 %|");
    EXPECT_EQ(shown[1].substr(shown[1].rfind('|')), "|0.000"); // the first generation has no score before it
    EXPECT_EQ(shown[2].substr(0, 7), "50.0 %|");
    EXPECT_NE(shown[2].substr(shown[2].rfind('|')), "|0.000");
    EXPECT_EQ(shown[3].substr(0, 7), "75.0 %|");
    EXPECT_NE(shown[3].find(" second|"), std::string::npos);
    EXPECT_EQ(widths, (std::vector<double>{0, 0.25, 0.5, 0.75}));
}

TEST_F(OrderingRun, SimpleGeneticEndsOnAHundredPercentWithoutABlank) {
    frmWork window(session);
    EXPECT_EQ(window.InfoString.Caption, "0 %");
    window.ShowEnd();
    EXPECT_EQ(window.InfoString.Caption, "100 %");
}

TEST_F(OrderingRun, CancelInTheFirstGenerationGivesTheSheetOrderAndTakesTheFlagBack) {
    events.onRun = [&](int) { Work().Command1_Click(); };
    EXPECT_EQ(Run(3), SheetOrder(12));
    EXPECT_EQ(events.runs, 1);
    EXPECT_FALSE(session.Of<OrderingOptions>().WorkCancelled);
    EXPECT_EQ(forms.log, (Texts{"show frmWork", "close frmWork"}));
}

TEST_F(OrderingRun, CancelLaterGivesTheBestSoFar) {
    test::TestSession same;
    const auto whole = SimpleGeneticOrder(distances, session.Of<OrderingOptions>(), same.session.random,
                                          [&](GeneticProgress& p) {
                                              if (p.Generation == 2)
                                                  session.Of<OrderingOptions>().WorkCancelled = true;
                                              return 1;
                                          });
    events.onRun = [&](int run) {
        if (run == 3) Work().CancelCommand();
    };
    EXPECT_EQ(Run(3), whole.BestOrder);
    EXPECT_EQ(session.random.Position(), same.session.random.Position());
}

TEST_F(OrderingRun, SimpleGeneticEndsWhenNoWindowIsLeft) {
    events.windows = 0;
    EXPECT_EQ(Run(3), SheetOrder(12));
    EXPECT_EQ(events.runs, 1);
}

TEST_F(OrderingRun, RavelinShowsItsFiguresWithFiveDecimals) {
    Texts shown;
    events.onRun = [&](int run) {
        const frmWorkUM& window = WorkUM();
        if (run != 3 && run != 1) return;
        for (const auto* label : {&window.Generacje, &window.Mutacje, &window.lblChangesG, &window.BestUm})
            shown.push_back(label->Caption);
        if (run == 1) return;
        for (const auto* label : {&window.lblFunkcja, &window.lblActualUM})
            shown.push_back(label->Caption.substr(label->Caption.find('.')));
        EXPECT_NE(window.InfoTime.Caption.find(" second"), std::string::npos);
        EXPECT_TRUE(window.lblChangeM.Caption == "0" || window.lblChangeM.Caption == "1");
    };
    Run(4);
    ASSERT_EQ(shown.size(), 10U);
    EXPECT_EQ((Texts{shown[0], shown[1], shown[2], shown[3]}), (Texts{"", "", "", ""}));
    EXPECT_EQ((Texts{shown[4], shown[5], shown[6], shown[7]}), (Texts{"1", "1", "", ""}));
    EXPECT_EQ(shown[8].size(), 6U); // ".12345"
    EXPECT_EQ(shown[9].size(), 6U);
    EXPECT_EQ(forms.log.front(), "show frmWorkUM");
    EXPECT_EQ(forms.log.back(), "close frmWorkUM");
}

TEST_F(OrderingRun, RavelinLabelsStandAsWritten) {
    const frmWorkUM window(session);
    EXPECT_EQ(window.Caption, "At work...");
    EXPECT_EQ(window.Label1.Caption, "Generations number:");
    EXPECT_EQ(window.Label2.Caption, "Mutations number:");
    EXPECT_EQ(window.Label3.Caption, "UM coefficient value:");
    EXPECT_EQ(window.Label4.Caption, "Actual UM value:");
    EXPECT_EQ(window.Label5.Caption, "Best UM coefficient:");
    EXPECT_EQ(window.Label6.Caption, "Analysis time:");
    EXPECT_EQ(window.Command1.Caption, "Cancel");
    const frmWork work(session);
    EXPECT_EQ(work.Label1.Caption, "Time:");
    EXPECT_EQ(work.Label2.Caption, "F =");
    EXPECT_EQ(work.Command1.Caption, "Cancel");
}

TEST_F(OrderingRun, RavelinFieldsShowTheProgressUnderTheLocalesSeparator) {
    session.DecimalSeparator = ',';
    frmWorkUM window(session);
    RavelinProgress progress;
    progress.Generation = 3;
    progress.GenerationsLost = 2;
    progress.Mutation = 41;
    progress.MutationsLost = 40;
    progress.Base = 12.345678;
    progress.Trial = 13.5F;
    progress.BestUm = 0.25F;
    window.ShowProgress(progress, 1.25F);
    EXPECT_EQ(window.InfoTime.Caption, ""); // not due
    progress.TimeDue = true;
    window.ShowProgress(progress, 1.25F);
    EXPECT_EQ(window.Generacje.Caption, "3");
    EXPECT_EQ(window.lblChangesG.Caption, "2");
    EXPECT_EQ(window.Mutacje.Caption, "41");
    EXPECT_EQ(window.lblChangeM.Caption, "40");
    EXPECT_EQ(window.lblFunkcja.Caption, "12,34568");
    EXPECT_EQ(window.lblActualUM.Caption, "13,50000");
    EXPECT_EQ(window.BestUm.Caption, "0,25000");
    EXPECT_EQ(window.InfoTime.Caption, "1,3 second");
}

TEST_F(OrderingRun, CancelOfRavelinInTheFirstGenerationGivesTheSheetOrder) {
    events.onRun = [&](int run) {
        if (run == 5) WorkUM().Command1_Click();
    };
    EXPECT_EQ(Run(4), SheetOrder(12));
    EXPECT_TRUE(session.Of<OrderingOptions>().WorkCancelled);
    EXPECT_FALSE(forms.log.empty());
    EXPECT_EQ(forms.log.back(), "close frmWorkUM");
}

TEST_F(OrderingRun, ASecondRunOfRavelinDrawsFromTwiceTheSum) {
    Run(4);
    EXPECT_EQ(session.Of<OrderingOptions>().UmWeightTotal, 371);
    Run(4);
    EXPECT_EQ(session.Of<OrderingOptions>().UmWeightTotal, 742);
}

TEST_F(OrderingRun, WindowsArePaintedAtMostSixtyTimesASecond) {
    clock.step = 0.001;
    session.Of<OrderingOptions>().GeneticGenerations = 100;
    Run(3);
    EXPECT_EQ(events.runs, 100); // events run all the same
    const auto updates = std::count(forms.log.begin(), forms.log.end(), "update frmWork");
    EXPECT_GE(updates, 5);
    EXPECT_LE(updates, 8);
}

TEST_F(OrderingRun, OptionsAreAskedInTheirDialogs) {
    forms.scripts.push_back([](Form& form) { form.CancelCommand(); });
    session.Of<OrderingMethods>().at(3).askOptions(session);
    EXPECT_EQ(session.DialogOutcome, -99);
    forms.scripts.push_back([](Form& form) { form.CancelCommand(); });
    session.Of<OrderingMethods>().at(4).askOptions(session);
    EXPECT_EQ(forms.log, (Texts{"modal frmGenetic", "modal frmGeneticUM"}));
}

} // namespace
} // namespace dorvan
