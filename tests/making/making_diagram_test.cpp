#include "making/making_diagram.h"

#include "distance/frmMacierz.h"
#include "distance/loading.h"
#include "making/frmPrzedzal.h"
#include "making/making_values.h"
#include "making/ordering_method.h"
#include "making/plain_making.h"
#include "numbers/number_text.h"
#include "session/children.h"
#include "session/registry.h"
#include "sheet/frmNotePad.h"
#include "sheet/sheet_values.h"
#include "support/expect_failure.h"
#include "support/test_platform.h"
#include "view/frmDiagram.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace dorvan {
namespace {

using Texts = std::vector<std::string>;
using Floats = std::vector<float>;
using Rows = std::vector<Texts>; // a record's name, then its cells

template <class T> Array1<T> ArrayOf(std::vector<T> values) {
    Array1<T> array;
    array.Cells() = std::move(values);
    return array;
}

class MakingDiagram : public ::testing::Test, public test::TestSession {
protected:
    frmNotePad& OpenSheet(const Rows& rows, const std::string& description = "a sheet") {
        session.NewWindowIndex = FindFreeDataSlot(session);
        PutIntoRegistry(session, DocumentKind::Data, std::make_shared<frmNotePad>(session));
        auto& sheet = DataWindow(session, session.NewWindowIndex);
        const int variables = static_cast<int>(rows.empty() ? 0 : rows[0].size() - 1);
        sheet.LayOut(static_cast<int>(rows.size()), variables);
        for (int v = 1; v <= variables; ++v) sheet.Grid1.SetText(0, v + 1, "var" + std::to_string(v));
        for (std::size_t r = 0; r < rows.size(); ++r)
            for (std::size_t c = 0; c < rows[r].size(); ++c)
                sheet.Grid1.SetText(static_cast<int>(r + 1), static_cast<int>(c + 1), rows[r][c]);
        sheet.OpisText.Text = description;
        ShowChild(session, sheet);
        session.DiagramFromMatrix = false;
        return sheet;
    }

    // Each row: the record's name, then its n cells.
    frmMacierz& OpenMatrix(const Rows& rows, const std::string& description = "a matrix") {
        const std::int16_t slot = session.NewWindowIndex = FindFreeMatrixSlot(session);
        const auto n = static_cast<std::int16_t>(rows.size());
        DistanceMatrix& matrix = session.MatrixDocuments.at(std::size_t(slot));
        matrix.Size = n;
        matrix.Names = Array1<std::string>(n);
        matrix.Cells = Array2<std::string>(n, n);
        for (std::int16_t i = 1; i <= n; ++i) {
            matrix.Names(i) = rows[std::size_t(i - 1)].at(0);
            for (std::int16_t j = 1; j <= n; ++j)
                matrix.Cells(i, j) = rows[std::size_t(i - 1)].at(std::size_t(j));
        }
        PutIntoRegistry(session, DocumentKind::Matrix, std::make_shared<frmMacierz>(session));
        auto& window = MatrixWindow(session, slot);
        window.BottomText.Text = description;
        ShowChild(session, window);
        session.DiagramFromMatrix = true;
        return window;
    }

    // The user's next choices in the options dialog, ended with OK.
    void Options(std::function<void(frmPrzedzal&)> choose) {
        forms.scripts.push_back([choose](Form& form) {
            auto& dialog = dynamic_cast<frmPrzedzal&>(form);
            choose(dialog);
            dialog.Command3_Click();
        });
    }
    void Options(int kind = 0, int measure = 0) {
        Options([=](frmPrzedzal& dialog) { Choose(dialog, kind, measure); });
    }
    void OrderedOptions(int kind = 0, int measure = 0) {
        Options([=](frmPrzedzal& dialog) {
            Choose(dialog, kind, measure);
            dialog.Option7_Click();
        });
    }
    static void Choose(frmPrzedzal& dialog, int kind, int measure) {
        dialog.cboData.ListIndex = kind;
        dialog.cboData_Click();
        dialog.Combo1.ListIndex = measure;
    }

    DiagramDocument& Document(std::size_t slot = 1) { return session.DiagramDocuments.at(slot); }
    frmDiagram& Window(std::int16_t slot = 1) { return DiagramWindow(session, slot); }
    bool AnyDiagram() const { return session.DiagramWindows.at(1) != nullptr; }

    static Rows Line(std::int32_t count) {
        Rows rows;
        for (std::int32_t i = 1; i <= count; ++i)
            rows.push_back({"r" + std::to_string(i), std::to_string(i)});
        return rows;
    }
    static Rows MatrixRows(std::int32_t count) {
        Rows rows;
        for (std::int32_t i = 1; i <= count; ++i) {
            rows.push_back({"r" + std::to_string(i)});
            for (std::int32_t j = 1; j <= count; ++j) rows.back().push_back(std::to_string(std::abs(i - j)));
        }
        return rows;
    }
};

// Records on a line at 0, 10, 1, 11, 2: the walk goes 1, 3, 5, 2, 4.
const Rows Zigzag = {{"a", "0"}, {"b", "10"}, {"c", "1"}, {"d", "11"}, {"e", "2"}};
const Rows ZigzagMatrix = {{"a", "0", "10", "1", "11", "2"},
                           {"b", "10", "0", "9", "1", "8"},
                           {"c", "1", "9", "0", "10", "1"},
                           {"d", "11", "1", "10", "0", "9"},
                           {"e", "2", "8", "1", "9", "0"}};
const Floats ZigzagInOrder = {0, 1, 2,  10, 11, 1, 0, 1,  9,  10, 2, 1, 0,
                              8, 9, 10, 9,  8,  0, 1, 11, 10, 9,  1, 0};

TEST_F(MakingDiagram, BeepsAndEndsWhileADiagramIsBeingMade) {
    OpenSheet(Zigzag);
    session.DiagramBusy = 1;
    MakeDiagram(session);
    EXPECT_EQ(signals.beeps, 1);
    EXPECT_TRUE(forms.log.empty());
    EXPECT_TRUE(messages.shown.empty());
    EXPECT_EQ(session.Of<MakingValues>().DiagramRecordCount, 0);
    EXPECT_EQ(session.DiagramBusy, 1);
}

TEST_F(MakingDiagram, OnlyAFlagOfOneIsBusy) {
    OpenSheet(Zigzag);
    for (const std::int32_t flag : {2, -1}) {
        session.DiagramBusy = flag;
        Options();
        MakeDiagram(session);
        EXPECT_EQ(signals.beeps, 0);
        ActivateChild(session, *session.DataWindows.at(1));
    }
    EXPECT_TRUE(AnyDiagram());
}

TEST_F(MakingDiagram, FewerThanTwoRecordsAreRefused) {
    const Message refusal{.Text = "The number of records is less than 2. How make diagram?",
                          .Icon = MessageIcon::Critical};
    session.Of<MakingValues>().DiagramRecordCount = 77;
    OpenSheet(Line(1));
    MakeDiagram(session);
    OpenSheet({});
    MakeDiagram(session);
    OpenMatrix(MatrixRows(1));
    MakeDiagram(session);
    EXPECT_EQ(messages.shown, std::vector<Message>(3, refusal));
    EXPECT_EQ(session.Of<MakingValues>().DiagramRecordCount, 77);
    EXPECT_TRUE(forms.log.empty());
    EXPECT_EQ(session.DiagramBusy, 0);
}

TEST_F(MakingDiagram, MoreRecordsThanTheLimitAreRefused) {
    const Message refusal{.Text = "The number of records is more than 250!", .Icon = MessageIcon::Critical};
    OpenSheet(Line(251));
    MakeDiagram(session);
    OpenMatrix(MatrixRows(251));
    MakeDiagram(session);
    EXPECT_EQ(messages.shown, std::vector<Message>(2, refusal));
    EXPECT_EQ(session.Of<MakingValues>().DiagramRecordCount, 0);
    EXPECT_TRUE(forms.log.empty());
}

TEST_F(MakingDiagram, RefusalNamesTheLimitInForce) {
    session.MaxDiagramRecords = 3;
    OpenSheet(Line(4));
    MakeDiagram(session);
    ASSERT_EQ(messages.shown.size(), 1u);
    EXPECT_EQ(messages.shown[0].Text, "The number of records is more than 3!");
}

TEST_F(MakingDiagram, TwoHundredAndFiftyRecordsPass) {
    OpenSheet(Line(250));
    Options();
    MakeDiagram(session);
    EXPECT_TRUE(messages.shown.empty());
    EXPECT_EQ(Document().RecCount, 250);
    OpenMatrix(MatrixRows(250));
    Options();
    MakeDiagram(session);
    EXPECT_TRUE(messages.shown.empty());
    EXPECT_EQ(Document(2).RecCount, 250);
    EXPECT_EQ(Document(2).Matrix, Document(1).Matrix);
}

TEST_F(MakingDiagram, CountIsKnownToTheDialog) {
    OpenSheet(Zigzag);
    Options([&](frmPrzedzal& dialog) {
        EXPECT_EQ(session.Of<MakingValues>().DiagramRecordCount, 5);
        EXPECT_FALSE(dialog.chkAuto.Enabled);
    });
    MakeDiagram(session);
    EXPECT_EQ(session.Of<MakingValues>().DiagramRecordCount, 5);
    expectScriptsUsedUp();
}

TEST_F(MakingDiagram, CancelledOptionsEndItWithNothingChanged) {
    auto& sheet = OpenSheet({{"a", ""}, {"b", "1"}, {"c", "2"}});
    session.tables.RecordNames = ArrayOf<std::string>({"kept"});
    forms.scripts.push_back([](Form& form) { form.CancelCommand(); });
    MakeDiagram(session);
    EXPECT_EQ(session.DialogOutcome, -99);
    EXPECT_EQ(session.tables.RecordNames, ArrayOf<std::string>({"kept"}));
    EXPECT_EQ(sheet.Grid1.Text(1, 2), "");
    EXPECT_EQ(events.runs, 0);
    EXPECT_FALSE(AnyDiagram());
    EXPECT_EQ(session.DiagramBusy, 0);
}

TEST_F(MakingDiagram, PendingEventsRunOnceAfterTheOptions) {
    OpenSheet(Zigzag);
    Options();
    events.onRun = [&](int) {
        EXPECT_EQ(session.DiagramBusy, 0);
        EXPECT_EQ(session.tables.RecordNames.Count(), 0);
        EXPECT_EQ(session.DialogOutcome, 1);
    };
    MakeDiagram(session);
    EXPECT_EQ(events.runs, 1);
}

TEST_F(MakingDiagram, DataAreReadOnlyAfterTheDialog) {
    auto& sheet = OpenSheet(Zigzag);
    Options([&](frmPrzedzal&) { sheet.Grid1.SetText(1, 2, "0,5"); });
    MakeDiagram(session);
    EXPECT_EQ(Document().Data(1, 1), 0.5f);
}

TEST_F(MakingDiagram, DataErrorEndsItAfterTheDialog) {
    OpenSheet(Zigzag);
    session.Of<SheetValues>().PendingError = true;
    Options([&](frmPrzedzal&) { EXPECT_TRUE(messages.shown.empty()); });
    MakeDiagram(session);
    EXPECT_EQ(messages.shown, std::vector<Message>{(Message{.Text = "Data Error. Row= 1, Col= 1",
                                                            .Icon = MessageIcon::Critical})});
    EXPECT_FALSE(AnyDiagram());
    EXPECT_EQ(session.DiagramBusy, 0);
    expectScriptsUsedUp();
}

const Message MeasureRefusal{.Text = "Nieprawidłowa funkcja odległości dla danych niepełnych!",
                             .Icon = MessageIcon::Exclamation,
                             .Title = "Dorvan"};

TEST_F(MakingDiagram, MissingValuesRefuseAllMeasuresWithoutThem) {
    OpenSheet({{"a", "N/A"}, {"b", "1"}, {"c", "0"}, {"d", "1"}});
    for (const auto& [kind, measure, type] :
         {std::tuple{0, 0, 3}, {0, 1, 4}, {0, 2, 5}, {2, 0, 7}, {2, 1, 8}, {2, 2, 9}, {2, 3, 10}}) {
        messages.shown.clear();
        Options([&, kind = kind, measure = measure](frmPrzedzal& dialog) {
            Choose(dialog, kind, measure);
            dialog.Option3_Click();
        });
        MakeDiagram(session);
        EXPECT_EQ(messages.shown, std::vector<Message>{MeasureRefusal}) << type;
        EXPECT_EQ(session.CurrentDistType, type);
        EXPECT_EQ(session.CurrentDiagType, 3);
        EXPECT_FALSE(AnyDiagram());
        EXPECT_EQ(session.DiagramBusy, 0);
    }
}

TEST_F(MakingDiagram, MissingValuesPassWithTheMeasuresThatKnowThem) {
    OpenSheet({{"a", "N/A"}, {"b", "1"}, {"c", "0"}});
    for (int measure = 0; measure < 2; ++measure) {
        Options(1, measure);
        MakeDiagram(session);
        EXPECT_EQ(Document(std::size_t(measure + 1)).DistType, measure + 1);
        session.ActiveWindow = session.DataWindows.at(1).get();
    }
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(MakingDiagram, MatrixIsRefusedForTheMissingValuesOfTheSheetLoadedLast) {
    OpenMatrix(ZigzagMatrix);
    session.tables.DataHasNA = true;
    session.CurrentDistType = 3;
    Options();
    MakeDiagram(session);
    EXPECT_EQ(messages.shown, std::vector<Message>{MeasureRefusal});
    EXPECT_FALSE(AnyDiagram());
    session.CurrentDistType = 2;
    Options();
    MakeDiagram(session);
    EXPECT_EQ(messages.shown.size(), 1u);
    EXPECT_TRUE(AnyDiagram());
}

TEST_F(MakingDiagram, TwoRecordsAreASubscriptOutOfRangeWithTheFlagLeftOn) {
    OpenSheet(Line(2));
    Options();
    EXPECT_FAILURE(Failure::SubscriptOutOfRange, MakeDiagram(session));
    EXPECT_EQ(session.DiagramBusy, 1);
    EXPECT_FALSE(AnyDiagram());
    EXPECT_TRUE(session.DiagramStates.at(1).Deleted);
    EXPECT_EQ(session.tables.DistanceValues(1, 2), 1);

    session.DiagramBusy = 0;
    OpenMatrix(MatrixRows(2));
    Options();
    EXPECT_FAILURE(Failure::SubscriptOutOfRange, MakeDiagram(session));
    EXPECT_EQ(session.DiagramBusy, 1);
}

TEST_F(MakingDiagram, NoOrderLeavesTheRecordsInTheSheetsOrder) {
    OpenSheet({{"a", "0", "1"}, {"b", "N/A", "2"}, {"c", "4", "N/A"}, {"d", "9", "1"}});
    Options(1, 1);
    MakeDiagram(session);
    const auto& document = Document();
    EXPECT_EQ(document.RecCount, 4);
    EXPECT_EQ(document.VarCount, 2);
    EXPECT_EQ(document.DistType, 2);
    EXPECT_EQ(document.DiagType, 2);
    EXPECT_FALSE(document.NoData);
    EXPECT_EQ(document.RecordNames, ArrayOf<std::string>({"a", "b", "c", "d"}));
    EXPECT_EQ(document.VariableNames, ArrayOf<std::string>({"var1", "var2"}));
    EXPECT_EQ(document.Data.Cells(), (Floats{0, 1, NaValue, 2, 4, NaValue, 9, 1}));
    EXPECT_EQ(document.RecordHasNA, ArrayOf<bool>({false, true, true, false}));
    EXPECT_EQ(document.Matrix.Cells(), (Floats{0, 1, 4, 4.5f, 1, 0, 0, 1, 4, 0, 0, 5, 4.5f, 1, 5, 0}));
    // Distances by place: 1 4 0 4.5 1 | 5; sorted 0 1 1 4 4.5, places 1 2 4 5.
    EXPECT_EQ(document.SectionLimits.Cells(), (Floats{0, 1, 4, 4.5f}));
    EXPECT_EQ(document.Classes.Cells(),
              (std::vector<std::int16_t>{4, 3, 2, 1, 3, 4, 4, 3, 2, 4, 4, 1, 1, 3, 1, 4}));
}

TEST_F(MakingDiagram, SimpleOrderRewritesTheDataAndTheDistances) {
    OpenSheet(Zigzag);
    OrderedOptions();
    MakeDiagram(session);
    const auto& document = Document();
    EXPECT_EQ(document.RecordNames, ArrayOf<std::string>({"a", "c", "e", "b", "d"}));
    EXPECT_EQ(document.Data.Cells(), (Floats{0, 1, 2, 10, 11}));
    EXPECT_EQ(document.Matrix.Cells(), ZigzagInOrder);
    EXPECT_EQ(session.tables.DataValues, document.Data);
    EXPECT_EQ(session.tables.RecordNames, document.RecordNames);
    EXPECT_EQ(session.tables.DistanceValues, document.Matrix);
}

TEST_F(MakingDiagram, LimitsComeFromTheDistancesBeforeTheOrdering) {
    OpenSheet(Zigzag);
    OrderedOptions();
    MakeDiagram(session);
    // In the sheet's order the last distance, which no limit sorts, is that of d and e.
    EXPECT_EQ(Document().SectionLimits, test::PlainAutomaticLimits([] {
                  FloatTable sheetOrder(5, 5);
                  sheetOrder.Cells() = {0,  10, 1,  11, 2,  10, 0, 9, 1, 8, 1, 9, 0,
                                        10, 1,  11, 1,  10, 0,  9, 2, 8, 1, 9, 0};
                  return sheetOrder;
              }()));
    EXPECT_EQ(session.SectionLimits, Document().SectionLimits);
}

TEST_F(MakingDiagram, MarksOfMissingValuesStayInTheSheetsOrder) {
    OpenSheet({{"a", "0", "0"}, {"b", "10", "N/A"}, {"c", "1", "1"}, {"d", "11", "11"}});
    OrderedOptions(1, 1);
    MakeDiagram(session);
    EXPECT_EQ(Document().RecordNames, ArrayOf<std::string>({"a", "c", "b", "d"}));
    EXPECT_EQ(Document().Data(3, 2), NaValue);
    EXPECT_EQ(Document().RecordHasNA, ArrayOf<bool>({false, true, false, false}));
}

TEST_F(MakingDiagram, LimitsOfTheDialogNeverReachTheDiagram) {
    OpenSheet(Zigzag);
    Options([&](frmPrzedzal& dialog) {
        dialog.Text1.Text = "100";
        dialog.Text2.Text = "200";
        dialog.Text3.Text = "300";
        dialog.Text4.Text = "400";
    });
    MakeDiagram(session);
    // Distances 10 1 9 11 1 10 2 8 1 | 9: sorted 1 1 1 2 8 9 10 10 11, places 2 4 6 8.
    EXPECT_EQ(Document().SectionLimits.Cells(), (Floats{1, 2, 9, 10}));
    EXPECT_EQ(session.SectionLimits.Cells(), (Floats{1, 2, 9, 10}));
}

TEST_F(MakingDiagram, MatrixInOrderKeepsItsLabelsInTheOldOrder) {
    OpenMatrix(ZigzagMatrix);
    OrderedOptions();
    MakeDiagram(session);
    const auto& document = Document();
    EXPECT_EQ(document.RecCount, 5);
    EXPECT_EQ(document.VarCount, 0);
    EXPECT_TRUE(document.NoData);
    EXPECT_EQ(document.Matrix.Cells(), ZigzagInOrder);
    EXPECT_EQ(document.RecordNames, ArrayOf<std::string>({"a", "b", "c", "d", "e"}));
    EXPECT_EQ(document.RecordHasNA, Flags(5));
    EXPECT_EQ(document.SectionLimits.Cells(), (Floats{1, 2, 9, 10}));
    EXPECT_EQ(session.tables.RecordNames, ArrayOf<std::string>({"a", "c", "e", "b", "d"}));
    EXPECT_EQ(session.tables.DistanceValues.Cells(), ZigzagInOrder);
}

TEST_F(MakingDiagram, MatrixWithoutOrderLeavesTheWorkingNamesAlone) {
    OpenMatrix(ZigzagMatrix);
    session.tables.RecordNames = ArrayOf<std::string>({"kept"});
    session.tables.DataValues = FloatTable(1, 1, 4);
    session.DiagramFromMatrix = true;
    Options();
    MakeDiagram(session);
    EXPECT_EQ(session.tables.RecordNames, ArrayOf<std::string>({"kept"}));
    EXPECT_EQ(session.tables.DataValues, FloatTable(1, 1, 4));
    EXPECT_EQ(Document().Matrix, session.tables.DistanceValues);
    EXPECT_EQ(Document().Matrix(1, 4), 11);
}

TEST_F(MakingDiagram, MatrixKeepsAnAsymmetricTableAsItStands) {
    OpenMatrix({{"a", "0", "1", "2"}, {"b", "3", "0", "4"}, {"c", "5", "6", "7"}});
    OrderedOptions();
    MakeDiagram(session);
    EXPECT_EQ(Document().Matrix.Cells(), (Floats{0, 1, 2, 3, 0, 4, 5, 6, 7}));
}

TEST_F(MakingDiagram, MatrixCellsAreReadInTheProcessesOwnLocale) {
    session.DecimalSeparator = ',';
    OpenMatrix({{"a", "0", "1,5", "2"}, {"b", "1,5", "0", "4"}, {"c", "2", "4", "0"}});
    Options();
    MakeDiagram(session);
    EXPECT_EQ(Document().Matrix(1, 2), 1.5f);

    OpenMatrix({{"a", "0", "1.5", "2"}, {"b", "1.5", "0", "4"}, {"c", "2", "4", "0"}});
    Options();
    EXPECT_FAILURE(Failure::TypeMismatch, MakeDiagram(session));
    EXPECT_EQ(session.DiagramBusy, 1);
}

TEST_F(MakingDiagram, NegativeDistanceOfAMatrixHasNoClass) {
    Rows rows = MatrixRows(6);
    rows[0][2] = rows[1][1] = "-3";
    OpenMatrix(rows);
    Options();
    MakeDiagram(session);
    EXPECT_EQ(Document().Matrix(1, 2), -3);
    EXPECT_GT(Document().SectionLimits(1), 0);
    for (std::int32_t i = 1; i <= 6; ++i)
        for (std::int32_t j = 1; j <= 6; ++j)
            EXPECT_EQ(Document().Classes(i, j) == 6, i + j == 3) << i << "," << j;
}

TEST_F(MakingDiagram, NegativeDistancesCountForTheLimits) {
    OpenMatrix({{"a", "0", "-3", "2"}, {"b", "-3", "0", "1"}, {"c", "2", "1", "0"}});
    OrderedOptions();
    MakeDiagram(session);
    EXPECT_EQ(Document().Matrix.Cells(), (Floats{0, -3, 2, -3, 0, 1, 2, 1, 0}));
    EXPECT_EQ(Document().SectionLimits.Cells(), (Floats{-3, -3, 2, 2}));
    // All from the second limit up to the third are of class 3; 2 reaches the fourth.
    EXPECT_EQ(Document().Classes.Cells(), (std::vector<std::int16_t>{3, 3, 1, 3, 3, 3, 1, 3, 3}));
}

TEST_F(MakingDiagram, MatrixDiagramKeepsWhatTheSlotsRecordHeld) {
    auto& left = Document();
    left.DistType = 8;
    left.Par_P = 5;
    left.Par_R = 7;
    left.Data = FloatTable(2, 1, 3);
    left.VariableNames = ArrayOf<std::string>({"left"});
    left.RecordHasNA = ArrayOf<bool>({true, true});
    session.CurrentDistType = 1;
    OpenMatrix(ZigzagMatrix);
    Options();
    MakeDiagram(session);
    EXPECT_EQ(Document().DistType, 8);
    EXPECT_EQ(Document().Par_P, 5);
    EXPECT_EQ(Document().Par_R, 7);
    EXPECT_EQ(Document().Data, FloatTable(2, 1, 3));
    EXPECT_EQ(Document().VariableNames, ArrayOf<std::string>({"left"}));
    EXPECT_EQ(Document().RecordHasNA, Flags(5));
}

TEST_F(MakingDiagram, SheetDiagramDoesNotWriteTheParametersOfTheCustomizedMeasure) {
    Document().Par_P = 5;
    Document().Par_R = 7;
    session.Par_P = 3;
    session.Par_R = 4;
    OpenSheet(Zigzag);
    Options();
    MakeDiagram(session);
    EXPECT_EQ(Document().DistType, 3);
    EXPECT_EQ(Document().Par_P, 5);
    EXPECT_EQ(Document().Par_R, 7);
}

TEST_F(MakingDiagram, DiagramTypeIsTheOneOfTheOptions) {
    auto& sheet = OpenSheet(Zigzag);
    for (std::int16_t type = 1; type <= 3; ++type) {
        ActivateChild(session, sheet);
        Options([type](frmPrzedzal& dialog) {
            type == 1 ? dialog.Option1_Click() : type == 2 ? dialog.Option2_Click() : dialog.Option3_Click();
        });
        MakeDiagram(session);
        EXPECT_EQ(Document(std::size_t(type)).DiagType, type);
    }
}

TEST_F(MakingDiagram, WindowIsMadePresentedAndShown) {
    OpenSheet(Zigzag, "what it is about");
    Options();
    MakeDiagram(session);
    auto& window = Window();
    EXPECT_EQ(window.Caption, "[DIAGRAM]: Untitled:1");
    EXPECT_EQ(window.Tag, "1");
    EXPECT_EQ(window.Index, 1);
    EXPECT_EQ(session.NewWindowIndex, 1);
    EXPECT_EQ(window.BottomText.Text, "what it is about");
    EXPECT_EQ(window.Siatka.Rows(), 6);
    EXPECT_EQ(window.Siatka.Columns(), 7);
    EXPECT_EQ(window.RowOrder.Count(), 5);
    EXPECT_TRUE(session.DiagramStates.at(1).Dirty);
    EXPECT_FALSE(session.DiagramStates.at(1).Deleted);
    EXPECT_TRUE(window.Visible);
    EXPECT_EQ(session.ActiveWindow, &window);
    EXPECT_EQ(children.log.back(), "show [DIAGRAM]: Untitled:1");
    EXPECT_EQ(session.DiagramBusy, 0);
}

TEST_F(MakingDiagram, WindowTakesMostOfTheScreen) {
    OpenSheet(Zigzag);
    Options();
    MakeDiagram(session);
    EXPECT_EQ(Window().Mode, WindowMode::Normal);
    EXPECT_EQ(Window().Width, 19465); // 0.95 of 20490
    EXPECT_EQ(Window().Height, 9216); // 0.8 of 11520
    EXPECT_EQ(Window().Left, 0);
    EXPECT_EQ(Window().Top, 0);
}

TEST_F(MakingDiagram, DescriptionOfAMatrixIsThatOfItsWindow) {
    OpenMatrix(MatrixRows(3), "first");
    OpenMatrix(ZigzagMatrix, "second");
    Options();
    MakeDiagram(session);
    EXPECT_EQ(Document().RecCount, 5);
    EXPECT_EQ(Window().BottomText.Text, "second");
}

TEST_F(MakingDiagram, ClosedSlotIsUsedAgain) {
    auto& sheet = OpenSheet(Zigzag);
    for (int i = 0; i < 2; ++i) {
        Options();
        MakeDiagram(session);
        ActivateChild(session, sheet);
    }
    EXPECT_EQ(Window(2).Caption, "[DIAGRAM]: Untitled:2");
    messages.answers.push_back(Answer::No);
    CloseChild(session, Window(1));
    ActivateChild(session, sheet);
    Options();
    MakeDiagram(session);
    EXPECT_EQ(session.DiagramWindows.size(), 3u);
    EXPECT_EQ(Window(1).Caption, "[DIAGRAM]: Untitled:1");
    EXPECT_EQ(Window(1).Siatka.Rows(), 6);
    EXPECT_TRUE(Window(1).Visible);
}

TEST_F(MakingDiagram, WaitCursorStandsUntilTheWindowShows) {
    OpenSheet(Zigzag);
    Options();
    MakeDiagram(session);
    ASSERT_GE(signals.cursors.size(), 2u);
    EXPECT_EQ(signals.cursors[signals.cursors.size() - 2], Cursor::Wait);
    EXPECT_EQ(signals.cursors.back(), Cursor::Default);
}

// The distances of a sheet are computed again after an ordering, not permuted.
TEST_F(MakingDiagram, DistancesAreComputedOnceWithoutAnOrderAndTwiceWithOne) {
    auto& sheet = OpenSheet(Zigzag);
    Options();
    MakeDiagram(session);
    EXPECT_EQ(signals.cursors.size(), 4u); // one computing, one window
    signals.cursors.clear();
    ActivateChild(session, sheet);
    OrderedOptions();
    MakeDiagram(session);
    EXPECT_EQ(signals.cursors.size(), 6u);
}

TEST_F(MakingDiagram, RegisteredMethodsRunOnTheDistancesWithTheFlagOn) {
    auto& sheet = OpenSheet(Zigzag);
    for (const std::int16_t number : {3, 4}) {
        int runs = 0;
        session.Of<OrderingMethods>()[number] = {
            .askOptions = [](Session& owner) { owner.DialogOutcome = 1; },
            .run =
                [&](Session& owner, const FloatTable& distances) {
                    ++runs;
                    EXPECT_EQ(owner.DiagramBusy, 1);
                    EXPECT_EQ(owner.SectionLimits.Cells(), (Floats{1, 2, 9, 10}));
                    EXPECT_EQ(distances(1, 4), 11);
                    return ArrayOf<std::int16_t>({5, 4, 3, 2, 1});
                }};
        ActivateChild(session, sheet);
        Options(
            [number](frmPrzedzal& dialog) { number == 3 ? dialog.Option8_Click() : dialog.Option9_Click(); });
        MakeDiagram(session);
        EXPECT_EQ(runs, 1);
        const auto& document = Document(std::size_t(number - 2));
        EXPECT_EQ(document.RecordNames, ArrayOf<std::string>({"e", "d", "c", "b", "a"}));
        EXPECT_EQ(document.Data.Cells(), (Floats{2, 11, 1, 10, 0}));
        EXPECT_EQ(document.Matrix(1, 2), 9);
    }
}

// A search in whose midst the user does something.
class MakingDiagramMeanwhile : public MakingDiagram {
protected:
    void MakeWith(std::function<void()> meanwhile) {
        session.Of<OrderingMethods>()[3] = {.askOptions = [](Session& owner) { owner.DialogOutcome = 1; },
                                            .run =
                                                [meanwhile](Session&, const FloatTable& distances) {
                                                    meanwhile();
                                                    EXPECT_EQ(distances(1, 4), 11);
                                                    return ArrayOf<std::int16_t>({5, 4, 3, 2, 1});
                                                }};
        Options([](frmPrzedzal& dialog) { dialog.Option8_Click(); });
        MakeDiagram(session);
    }

    // What a document that is opened during the search leaves in the working arrays.
    void LoadAnother() {
        session.tables.RecordNames = ArrayOf<std::string>({"x"});
        session.tables.VariableNames = ArrayOf<std::string>({"y"});
        session.tables.DataValues = FloatTable(1, 1, 77.0f);
        session.tables.DistanceValues = FloatTable(1, 1);
        session.tables.RecordHasNA = Flags(1, true);
    }

    void ExpectReversedSheet() {
        const auto& document = Document();
        EXPECT_EQ(document.RecordNames, ArrayOf<std::string>({"e", "d", "c", "b", "a"}));
        EXPECT_EQ(document.VariableNames, ArrayOf<std::string>({"var1"}));
        EXPECT_EQ(document.Data.Cells(), (Floats{2, 11, 1, 10, 0}));
        EXPECT_EQ(document.Matrix(1, 2), 9);
        EXPECT_EQ(document.RecordHasNA.Count(), 5);
        EXPECT_EQ(session.DiagramBusy, 0);
    }
};

TEST_F(MakingDiagramMeanwhile, AClickOnAMatrixLeavesTheDiagramTheSheetsDescription) {
    auto& matrix = OpenMatrix(MatrixRows(3), "of the matrix");
    auto& sheet = OpenSheet(Zigzag, "of the sheet");
    MakeWith([&] {
        ActivateChild(session, matrix);
        sheet.OpisText.Text = "written during the search";
    });
    ExpectReversedSheet();
    EXPECT_EQ(Window().BottomText.Text,
              "written during the search"); // that of the window, when the search has ended
    ASSERT_EQ(session.Children.size(), 3u);
    EXPECT_EQ(session.Children[1].get(), &sheet); // brought to the front before the diagram came
    EXPECT_EQ(sheet.TypeOfForm, "DATA");
}

TEST_F(MakingDiagramMeanwhile, AClickOnASheetLeavesTheDiagramTheMatrixsDescription) {
    auto& sheet = OpenSheet(Line(3), "of the sheet");
    OpenMatrix(ZigzagMatrix, "of the matrix");
    MakeWith([&] { ActivateChild(session, sheet); });
    EXPECT_EQ(Window().BottomText.Text, "of the matrix");
    EXPECT_EQ(Document().Matrix(1, 2), 9);
}

TEST_F(MakingDiagramMeanwhile, AClosedSheetIsUsedAsItStoodAtTheStart) {
    auto& sheet = OpenSheet(Zigzag, "of the sheet");
    MakeWith([&] {
        CloseChild(session, sheet);
        OpenSheet(Line(2), "another one in its slot");
        LoadAnother();
    });
    ExpectReversedSheet();
    EXPECT_EQ(Window().BottomText.Text, "of the sheet");
}

TEST_F(MakingDiagramMeanwhile, AClosedMatrixIsUsedAsItStoodAtTheStart) {
    auto& matrix = OpenMatrix(ZigzagMatrix, "of the matrix");
    MakeWith([&] {
        CloseChild(session, matrix);
        OpenMatrix(MatrixRows(2), "another one in its slot");
        LoadAnother();
        session.DiagramFromMatrix = true;
    });
    EXPECT_EQ(Window().BottomText.Text, "of the matrix");
    EXPECT_EQ(Document().RecordNames, ArrayOf<std::string>({"a", "b", "c", "d", "e"}));
    EXPECT_EQ(Document().Matrix(1, 2), 9);
    EXPECT_EQ(Document().Matrix.Rows(), 5);
}

TEST_F(MakingDiagramMeanwhile, ADocumentReadDuringTheSearchDoesNotReachTheDiagram) {
    OpenSheet(Zigzag);
    MakeWith([&] { LoadAnother(); });
    ExpectReversedSheet();
}

TEST_F(MakingDiagramMeanwhile, AnOrderedMatrixReadsTheDocumentsCells) {
    OpenMatrix(ZigzagMatrix);
    MakeWith([&] { session.MatrixDocuments.at(1).Cells(5, 4) = "42"; });
    EXPECT_EQ(Document().Matrix(1, 2), 42);
}

TEST_F(MakingDiagram, CommandOfAMethodThatNobodyRegisteredFails) {
    OpenSheet(Zigzag);
    Options([&](frmPrzedzal& dialog) {
        for (auto* option : {&dialog.Option6, &dialog.Option7}) option->Value = false;
        session.CurrentOrderMethod = 4;
    });
    EXPECT_FAILURE(Failure::InvalidProcedureCall, MakeDiagram(session));
}

TEST_F(MakingDiagram, SheetRouteNeedsASheet) {
    OpenMatrix(ZigzagMatrix);
    session.DiagramFromMatrix = false;
    EXPECT_FAILURE(Failure::InvalidProcedureCall, MakeDiagram(session));
    session.ActiveWindow = nullptr;
    EXPECT_FAILURE(Failure::InvalidProcedureCall, MakeDiagram(session));
    session.DiagramFromMatrix = true;
    EXPECT_FAILURE(Failure::InvalidProcedureCall, MakeDiagram(session));
}

TEST_F(MakingDiagram, MatrixRouteFromAWindowWithoutAMatrixInItsSlotIsASubscriptOutOfRange) {
    OpenSheet(Zigzag);
    OpenSheet(Zigzag);
    session.DiagramFromMatrix = true;
    EXPECT_FAILURE(Failure::SubscriptOutOfRange, MakeDiagram(session));
}

TEST_F(MakingDiagram, AgreesWithThePlainMakingForTheMeasuresOfNumbers) {
    RandomSource source(17);
    for (const std::int32_t n : {3, 5, 6, 40})
        for (const auto& [kind, measure, type] :
             {std::tuple{1, 0, 1}, {1, 1, 2}, {0, 0, 3}, {0, 1, 4}, {0, 2, 5}})
            for (const bool ordered : {false, true}) {
                Rows rows = Line(n);
                for (auto& row : rows)
                    for (std::size_t v = 0; v < 7; ++v) {
                        row.resize(8);
                        row[v + 1] = std::to_string(RandomInRange(source, -30, 30)) + ".25";
                    }
                OpenSheet(rows);
                const std::size_t slot = session.DiagramWindows.size() - (AnyDiagram() ? 0 : 1);
                Options([&, kind = kind, measure = measure](frmPrzedzal& dialog) {
                    Choose(dialog, kind, measure);
                    ordered ? dialog.Option7_Click() : dialog.Option6_Click();
                });
                MakeDiagram(session);

                FloatTable values(n, 7);
                Names names(n);
                for (std::int32_t i = 1; i <= n; ++i) {
                    names(i) = rows[std::size_t(i - 1)][0];
                    for (std::int32_t v = 1; v <= 7; ++v)
                        values(i, v) = StrictFloat(rows[std::size_t(i - 1)][std::size_t(v)], '.');
                }
                const auto plain = test::PlainDiagram(values, names, session.tables.VariableNames,
                                                      {.Type = static_cast<DistanceType>(type)}, ordered);
                const auto& document = Document(slot);
                ASSERT_EQ(document.Matrix, plain.Matrix) << n << " records, measure " << type;
                ASSERT_EQ(document.Data, plain.Data);
                ASSERT_EQ(document.RecordNames, plain.RecordNames);
                ASSERT_EQ(document.SectionLimits, plain.SectionLimits);
                ASSERT_EQ(document.Classes, plain.Classes);
            }
}

} // namespace
} // namespace dorvan
