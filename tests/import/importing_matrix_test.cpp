#include "import/frmImpMatrix.h"
#include "import/import_commands.h"
#include "import/import_session.h"
#include "numbers/rounding.h"
#include "platform/keys.h"
#include "session/registry.h"

#include <fmt/format.h>

namespace dorvan::test {

namespace {

class ImportingMatrix : public ImportSession {
protected:
    ImportingMatrix() { fillWorkingArrays(); }

    void import(const std::string& path, const std::function<void(frmImpMatrix&)>& set = {}) {
        files.paths.push_back(path);
        inDialog<frmImpMatrix>([set](frmImpMatrix& dialog) {
            dialog.Command3_Click();
            if (set) set(dialog);
            dialog.Command1_Click();
        });
        ImportMatrixFile(session);
    }

    void expectOnlyMessage(const Message& message) {
        EXPECT_EQ(messages.shown, std::vector<Message>{message});
        expectNothingChanged();
    }

    // The width of the value columns of a matrix of one value.
    int widthFor(const std::string& value, const std::string& precision = "12") {
        import(file("one.txt", "r;" + value + "\n"),
               [&](frmImpMatrix& dialog) { dialog.txtPrecision.Text = precision;
    });
    return dynamic_cast<frmMacierz&>(*session.ActiveWindow).Siatka.ColumnWidth(2);
}
}; // namespace

void Bare(frmImpMatrix& dialog) { dialog.chkFirstCol.Value = false; }

std::string Square(int size) {
    std::string text;
    for (int row = 1; row <= size; ++row) text += "0" + std::string(std::size_t(size - 1), '#') + "\n";
    std::string all;
    for (const char sign : text) all += sign == '#' ? std::string(";1") : std::string(1, sign);
    return all;
}

const Message HeightRefusal{
    .Text = "Invalid matrix: height <> width, or option: Record names in first column is invalid.",
    .Icon = MessageIcon::Exclamation,
    .Title = "Import matrix"};

} // namespace dorvan::test

TEST_F(ImportingMatrix, TheDialogOpensWithItsDefaults) {
    inDialog<frmImpMatrix>([](frmImpMatrix& dialog) {
        EXPECT_EQ(dialog.Name, "frmImpMatrix");
        EXPECT_EQ(dialog.Caption, "Import matrix");
        EXPECT_EQ(dialog.Frame1.Caption, "Separator:");
        EXPECT_EQ(dialog.optSep1.Caption, "&semicolon (;)");
        EXPECT_TRUE(dialog.optSep1.Value);
        EXPECT_EQ(dialog.optSep2.Caption, "&tab separator");
        EXPECT_FALSE(dialog.optSep2.Value);
        EXPECT_EQ(dialog.Frame2.Caption, "Names:");
        EXPECT_EQ(dialog.chkFirstCol.Caption, "&Records names in first column");
        EXPECT_TRUE(dialog.chkFirstCol.Value);
        EXPECT_EQ(dialog.Frame3.Caption, "File:");
        EXPECT_EQ(dialog.Label1.Caption, "");
        EXPECT_EQ(dialog.Command3.Caption, "&Browse");
        EXPECT_EQ(dialog.Frame4.Caption, "Type:");
        EXPECT_EQ(dialog.optDist.Caption, "&distance");
        EXPECT_TRUE(dialog.optDist.Value);
        EXPECT_EQ(dialog.optSimilar.Caption, "si&milarity");
        EXPECT_FALSE(dialog.optSimilar.Value);
        EXPECT_EQ(dialog.Label2.Caption, "Precision:");
        EXPECT_EQ(dialog.txtPrecision.Text, "3");
        EXPECT_EQ(dialog.Command1.Caption, "OK");
        EXPECT_EQ(dialog.Command2.Caption, "Cancel");
        dialog.CancelCommand();
        EXPECT_FALSE(dialog.Visible);
    });
    ImportMatrixFile(session);
    EXPECT_EQ(session.DialogOutcome, -99);
    expectNothingChanged();
}

TEST_F(ImportingMatrix, BrowseAsksForATextFile) {
    files.paths = {"/a/Path.txt", ""};
    inDialog<frmImpMatrix>([](frmImpMatrix& dialog) {
        dialog.Command3_Click();
        dialog.Command3_Click();
        EXPECT_EQ(dialog.Label1.Caption, "/a/Path.txt");
        dialog.Command2_Click();
    });
    ImportMatrixFile(session);
    EXPECT_EQ(files.requests[0],
              (FileRequest{.Title = "Dorvan - Select txt matrix file",
                           .Filters = {{"txt file (*.txt)", "*.txt"}, {"all (*.*)", "*.*"}},
                           .Extension = "",
                           .StartFolder = "program-folder"}));
}

TEST_F(ImportingMatrix, ThePrecisionTakesDigitsAndBackspaceAndEnterMovesOn) {
    frmImpMatrix dialog(session);
    const auto pressed = [&](int key) {
        dialog.txtPrecision_KeyPress(key);
        return key;
    };
    for (const int key : {int('0'), int('9'), key::Backspace}) EXPECT_EQ(pressed(key), key);
    for (const int key : {int('-'), int('.'), int('a'), int(' '), key::Escape})
        EXPECT_EQ(pressed(key), key::None);
    EXPECT_TRUE(keyboard.sent.empty());
    EXPECT_EQ(pressed(key::Enter), key::None);
    EXPECT_EQ(keyboard.sent, Texts{"{TAB}"});
}

TEST_F(ImportingMatrix, OkWithoutAFileIsRefused) {
    inDialog<frmImpMatrix>([this](frmImpMatrix& dialog) {
        dialog.txtPrecision.Text = "";
        dialog.Command1_Click();
        EXPECT_TRUE(dialog.Visible);
        EXPECT_EQ(messages.shown, std::vector<Message>{importRefusal("Select file to import")});
        dialog.Command2_Click();
    });
    ImportMatrixFile(session);
}

TEST_F(ImportingMatrix, OkWithoutANumberOf16BitsIsRefused) {
    inDialog<frmImpMatrix>([this](frmImpMatrix& dialog) {
        dialog.Label1.Caption = "some file";
        for (const char* text : {"", "32768"}) {
            dialog.txtPrecision.Text = text;
            messages.shown.clear();
            dialog.Command1_Click();
            EXPECT_TRUE(dialog.Visible);
            EXPECT_EQ(messages.shown, std::vector<Message>{importRefusal("Invalid precision")});
        }
        dialog.Command2_Click();
    });
    ImportMatrixFile(session);
}

TEST_F(ImportingMatrix, TheSeparatorOpensAsItWasAcceptedLast) {
    import(file("t.txt", "r\t0\n"), [](frmImpMatrix& dialog) {
        dialog.optSep1.Value = false;
    dialog.optSep2.Value = true;
});
EXPECT_EQ(session.MatrixTextSeparator, 1) << "that is the separator of other texts";
inDialog<frmImpMatrix>([](frmImpMatrix& dialog) {
    EXPECT_EQ(dialog.ImpMatrixSeparator, 3);
    EXPECT_TRUE(dialog.optSep2.Value);
    dialog.optSep1.Value = true;
    dialog.optSep2.Value = false;
    dialog.Command2_Click();
});
ImportMatrixFile(session);
inDialog<frmImpMatrix>([](frmImpMatrix& dialog) {
    EXPECT_FALSE(dialog.optSep1.Value) << "what was cancelled is forgotten";
    EXPECT_TRUE(dialog.optSep2.Value);
    dialog.Command2_Click();
});
ImportMatrixFile(session);
}

TEST_F(ImportingMatrix, OpensAChangedMatrixWithoutAFile) {
    const std::string path = file("pots.txt", "first;0;1,26\r\nsecond;-12.344;0\r\n");
    import(path, [](frmImpMatrix& dialog) { dialog.txtPrecision.Text = "1";
});
EXPECT_TRUE(messages.shown.empty());
EXPECT_EQ(session.ActiveWindow, &matrix());
EXPECT_EQ(matrix().Caption, "[MATRIX]: Imported matrix");
EXPECT_EQ(matrix().Tag, "1");
EXPECT_EQ(matrix().BottomText.Text, "Matrix from: " + path);
const DistanceMatrix& document = matrix().Document();
EXPECT_EQ(document.Size, 2);
EXPECT_EQ(document.Names.Cells(), (Texts{"first", "second"}));
EXPECT_EQ(document.Cells.Cells(), (Texts{"0", "1.3", "12.3", "0"}));
EXPECT_EQ(row(matrix().Siatka, 0), (Texts{"", "", "1", "2"}));
EXPECT_EQ(row(matrix().Siatka, 1), (Texts{"1", "first", "0.000", "1.300"}));
EXPECT_EQ(row(matrix().Siatka, 2), (Texts{"2", "second", "12.300", "0.000"}));
EXPECT_TRUE(session.MatrixStates[1].Dirty);
EXPECT_EQ(session.NewWindowIndex, 1);
EXPECT_EQ(matrix().Width, static_cast<int>(0.95 * screen.widthTwips));
}

TEST_F(ImportingMatrix, RowsWithoutNamesAreNumbered) {
    import(file("bare.txt", "0;1\n1;0\n"), Bare);
    EXPECT_EQ(matrix().Document().Names.Cells(), (Texts{"Record 1", "Record 2"}));
}

TEST_F(ImportingMatrix, TheCaptionNamesTheFileThatASaveGoesTo) {
    import(file("bare.txt", "0;1\n1;0\n"), Bare);
    EXPECT_FALSE(IsUntitled(matrix().Caption));
    EXPECT_EQ(CaptionPath(matrix().Caption), "Imported matrix");
}

TEST_F(ImportingMatrix, SimilaritiesComeInAsTheyStand) {
    import(file("similar.txt", "1;0.25\n0.25;1\n"), [](frmImpMatrix& dialog) {
        Bare(dialog);
    dialog.optDist.Value = false;
    dialog.optSimilar.Value = true;
});
EXPECT_EQ(matrix().Document().Cells.Cells(), (Texts{"1", "0.25", "0.25", "1"}));
}

TEST_F(ImportingMatrix, PrecisionZeroRoundsToWholeNumbers) {
    import(file("half.txt", "0;2.5\n0.4;0\n"), [](frmImpMatrix& dialog) {
        Bare(dialog);
    dialog.txtPrecision.Text = "0";
});
EXPECT_EQ(matrix().Document().Cells.Cells(), (Texts{"0", "3", "0", "0"}));
}

TEST_F(ImportingMatrix, ColumnsGrowWithTheLongestText) {
    const int base = frmMacierz::BaseColumnWidth;
    EXPECT_EQ(widthFor("0"), base);
    EXPECT_EQ(widthFor("123.4"), base);                                  // 5 characters
    EXPECT_EQ(widthFor("1234.5"), RoundToInt32(base * 1.3));             // 6
    EXPECT_EQ(widthFor("12345.6"), RoundToInt32(base * 1.5));            // 7
    EXPECT_EQ(widthFor("12345.67"), RoundToInt32(base * 1.75));          // 8
    EXPECT_EQ(widthFor("0.0123456"), RoundToInt32(base * 2.0));          // 9
    EXPECT_EQ(widthFor("0.00123456"), RoundToInt32(base * 2.3));         // 10
    EXPECT_EQ(widthFor("0.000123456"), RoundToInt32(base * 2.5));        // 11
    EXPECT_EQ(widthFor("0.0001234567"), RoundToInt32(base * 2.75));      // 12
    EXPECT_EQ(widthFor("0.0000123456", "20"), RoundToInt32(base * 2.5)); // 1.23456E-05
    EXPECT_EQ(widthFor("0.00001234567", "20"), RoundToInt32(base * 2.75));
}

TEST_F(ImportingMatrix, MoreRecordsThanADiagramTakesAreRefused) {
    import(file("large.txt", Square(250)), Bare);
    EXPECT_EQ(matrix().Document().Size, 250);
    import(file("larger.txt", Square(251)), Bare);
    EXPECT_EQ(messages.shown,
              std::vector<Message>{(Message{.Text = "Matrix > 250", .Icon = MessageIcon::Exclamation})});
    EXPECT_EQ(session.Children.size(), 1u);
    session.MaxDiagramRecords = 2;
    import(file("three.txt", Square(3)), Bare);
    EXPECT_EQ(messages.shown.back().Text, "Matrix > 2");
}

TEST_F(ImportingMatrix, AMillionColumnsAreRefused) {
    import(file("million.txt", std::string(999'999, ';') + "\n"));
    expectOnlyMessage({.Text = "Matrix > 250", .Icon = MessageIcon::Exclamation});
}

TEST_F(ImportingMatrix, MoreRowsThanColumnsAreRefusedAndNoSlotIsLost) {
    import(file("high.txt", "0;1\n1;0\n2;2\n"), Bare);
    expectOnlyMessage(HeightRefusal);
}

TEST_F(ImportingMatrix, NamesAskedOfAFileWithoutThemMakeItTooHigh) {
    import(file("bare.txt", "0;1\n1;0\n"));
    expectOnlyMessage(HeightRefusal);
}

TEST_F(ImportingMatrix, MissingRowsStayZero) {
    import(file("low.txt", "a;1;2\n"));
    EXPECT_TRUE(messages.shown.empty());
    EXPECT_EQ(matrix().Document().Names.Cells(), (Texts{"a", ""}));
    EXPECT_EQ(matrix().Document().Cells.Cells(), (Texts{"1", "2", "0", "0"}));
}

TEST_F(ImportingMatrix, AFaultIsToldWithItsPlaceAndNothingChanges) {
    const std::string path = file("faulty.txt", "a;0;1\nb;x;0\n");
    import(path);
    expectOnlyMessage(criticalMessage(fmt::format("Line 2, field 2: \"x\" is not a number. File: {}", path)));
}

TEST_F(ImportingMatrix, NumbersAreTextWithTheProcessesSeparator) {
    session.DecimalSeparator = ',';
    import(file("comma.txt", "a;0;1.25\nb;1,25;0\n"));
    EXPECT_EQ(matrix().Document().Cells.Cells(), (Texts{"0", "1,25", "1,25", "0"}));
    EXPECT_EQ(matrix().Siatka.Text(1, 3), "1,250");
}

TEST_F(ImportingMatrix, IsRefusedWhileADiagramIsBeingMade) {
    session.DiagramBusy = 1;
    ImportMatrixFile(session);
    EXPECT_EQ(signals.beeps, 1);
    expectNothingChanged();
}

} // namespace dorvan::test
