#include "import/frmImportText.h"
#include "import/import_commands.h"
#include "import/import_session.h"

#include <fmt/format.h>

namespace dorvan::test {

namespace {

constexpr std::string_view Towns = "town;Length;Width\r\nŁódź;1,5;2\r\nKutno;-1;1e3\r\n";

class ImportingText : public ImportSession {
protected:
    ImportingText() { fillWorkingArrays(); }

    // The import of a file, with the dialog's options as `set` leaves them.
    void import(const std::string& path, const std::function<void(frmImportText&)>& set = {}) {
        files.paths.push_back(path);
        inDialog<frmImportText>([set](frmImportText& dialog) {
            dialog.Command3_Click();
            if (set) set(dialog);
            dialog.Command2_Click();
        });
        ImportTextFile(session);
    }

    void expectOnlyMessage(const Message& message) {
        EXPECT_EQ(messages.shown, std::vector<Message>{message});
        expectNothingChanged();
    }
};

void Bare(frmImportText& dialog) {
    dialog.Check1.Value = false;
    dialog.Check2.Value = false;
}

std::string Table(int lines, int fields) {
    std::string line = "1";
    for (int field = 2; field <= fields; ++field) line += ";1";
    std::string text;
    for (int i = 1; i <= lines; ++i) text += line + "\n";
    return text;
}

} // namespace

TEST_F(ImportingText, TheDialogOpensWithItsDefaults) {
    inDialog<frmImportText>([](frmImportText& dialog) {
        EXPECT_EQ(dialog.Name, "frmImportText");
        EXPECT_EQ(dialog.Caption, "Import data from text file");
        EXPECT_EQ(dialog.Frame1.Caption, "Separator:");
        EXPECT_EQ(dialog.Option1.Caption, "&semicolon (;)");
        EXPECT_TRUE(dialog.Option1.Value);
        EXPECT_EQ(dialog.Option3.Caption, "&tab separator");
        EXPECT_FALSE(dialog.Option3.Value);
        EXPECT_EQ(dialog.Frame2.Caption, "File:");
        EXPECT_EQ(dialog.Label1.Caption, "");
        EXPECT_EQ(dialog.Command3.Caption, "Browse");
        EXPECT_EQ(dialog.Frame3.Caption, "Names:");
        EXPECT_EQ(dialog.Check1.Caption, "&Variable names in first row");
        EXPECT_TRUE(dialog.Check1.Value);
        EXPECT_EQ(dialog.Check2.Caption, "&Records names in first column");
        EXPECT_TRUE(dialog.Check2.Value);
        EXPECT_EQ(dialog.Command2.Caption, "OK");
        EXPECT_EQ(dialog.Command1.Caption, "Cancel");
        dialog.Command1_Click();
        EXPECT_FALSE(dialog.Visible);
    });
    ImportTextFile(session);
    EXPECT_EQ(session.DialogOutcome, -99);
    expectNothingChanged();
}

TEST_F(ImportingText, BrowseAsksForATextFile) {
    files.paths = {"/a/Path.csv", ""};
    inDialog<frmImportText>([](frmImportText& dialog) {
        dialog.Command3_Click();
        EXPECT_EQ(dialog.Label1.Caption, "/a/Path.csv");
        dialog.Command3_Click();
        EXPECT_EQ(dialog.Label1.Caption, "/a/Path.csv") << "a cancelled question leaves the path";
        dialog.CancelCommand();
    });
    ImportTextFile(session);
    EXPECT_EQ(files.requests[0],
              (FileRequest{.Title = "Dorvan - Select csv/txt file",
                           .Filters = {{"text csv file (*.csv)", "*.csv"}, {"all (*.*)", "*.*"}},
                           .Extension = "",
                           .StartFolder = "program-folder"}));
    EXPECT_EQ(session.DialogOutcome, -99);
}

TEST_F(ImportingText, OkWithoutAFileIsRefused) {
    inDialog<frmImportText>([this](frmImportText& dialog) {
        dialog.Command2_Click();
        EXPECT_TRUE(dialog.Visible);
        EXPECT_EQ(messages.shown, std::vector<Message>{importRefusal("Select file to import")});
        dialog.Command1_Click();
    });
    ImportTextFile(session);
}

TEST_F(ImportingText, OkStoresTheFourResults) {
    const std::string path = file("t.csv", "1\t2\n");
    import(path, [](frmImportText& dialog) {
        Bare(dialog);
    dialog.Option1.Value = false;
    dialog.Option3.Value = true;
});
EXPECT_EQ(session.MatrixTextSeparator, 3);
EXPECT_EQ(session.DialogOutcome, 1);
const auto& dialog = session.forms.Load<frmImportText>(session);
EXPECT_FALSE(dialog.ImportFirstRowNames);
EXPECT_FALSE(dialog.ImportFirstColumnNames);
EXPECT_EQ(dialog.ImportPath, path);
EXPECT_EQ(sheet().VariableCount(), 2);

session.MatrixTextSeparator = 2;
    import(file("u.csv", Towns), [](frmImportText& again) {
        EXPECT_TRUE(again.Option3.Value) << "the fields keep their contents";
    again.Option1.Value = true;
    again.Option3.Value = false;
    again.Check1.Value = true;
    again.Check2.Value = true;
    } // namespace dorvan::test
);
EXPECT_EQ(session.MatrixTextSeparator, 1);
EXPECT_TRUE(dialog.ImportFirstRowNames);
EXPECT_TRUE(dialog.ImportFirstColumnNames);
}

TEST_F(ImportingText, OpensAnUntitledChangedSheet) {
    import(file("towns.csv", Towns));
    EXPECT_TRUE(messages.shown.empty());
    EXPECT_EQ(session.ActiveWindow, &sheet());
    EXPECT_EQ(sheet().Caption, "[DATA]: Untitled1") << "no colon stands here";
    EXPECT_EQ(sheet().Tag, "1");
    EXPECT_EQ(sheet().OpisText.Text, "");
    EXPECT_EQ(row(sheet().Grid1, 0), (Texts{"Number", "Record Name", "Length", "Width"}));
    EXPECT_EQ(row(sheet().Grid1, 1), (Texts{" 1", "Łódź", "1.500", "2.000"}));
    EXPECT_EQ(row(sheet().Grid1, 2), (Texts{" 2", "Kutno", "-1.000", "1000.000"}));
    EXPECT_TRUE(session.DataStates[1].Dirty);
    EXPECT_FALSE(session.DataStates[1].Deleted);
    EXPECT_EQ(session.PendingRecCount, 2);
    EXPECT_EQ(session.PendingVarCount, 2);
    EXPECT_EQ(sheet().Width, static_cast<int>(0.95 * screen.widthTwips));
    EXPECT_EQ(sheet().Height, static_cast<int>(0.8 * screen.heightTwips));
    EXPECT_EQ(signals.cursors, (std::vector<Cursor>{Cursor::Wait, Cursor::Default}));
}

TEST_F(ImportingText, TheSecondSheetIsNamedByItsSlot) {
    import(file("towns.csv", Towns));
    import(file("more.csv", Towns));
    EXPECT_EQ(sheet(2).Caption, "[DATA]: Untitled2");
}

TEST_F(ImportingText, NamelessVariablesAreNumberedAndNamelessRecordsStayEmpty) {
    import(file("bare.csv", "1;2\n3;4\n"), Bare);
    EXPECT_EQ(row(sheet().Grid1, 0), (Texts{"Number", "Record Name", "VAR  1", "VAR  2"}));
    EXPECT_EQ(row(sheet().Grid1, 1), (Texts{" 1", "", "1.000", "2.000"}));
}

TEST_F(ImportingText, AnEmptyNameAmongOthersIsNumberedToo) {
    import(file("some.csv", "c;;b\nr;1;2\n"));
    EXPECT_EQ(row(sheet().Grid1, 0), (Texts{"Number", "Record Name", "VAR  1", "b"}));
}

TEST_F(ImportingText, NamesAreNeitherTrimmedNorCut) {
    import(file("long.csv", "c;  a variable's name \n a record's long, long name ;1\n"));
    EXPECT_EQ(sheet().Grid1.Text(0, 2), "  a variable's name ");
    EXPECT_EQ(sheet().Grid1.Text(1, 1), " a record's long, long name ");
}

TEST_F(ImportingText, BytesOfTheCodePageAndUtf8ReadAlike) {
    session.codePage = CodePage(1250);
    import(file("page.csv", CodePage(1250).FromUtf8(Towns)));
    import(file("utf8.csv", Towns));
    import(file("forced.csv", Towns), [](frmImportText& dialog) { dialog.CodePageForced = true;
});
EXPECT_EQ(sheet(1).Grid1.Text(1, 1), "Łódź");
EXPECT_EQ(sheet(2).Grid1.Text(1, 1), "Łódź");
EXPECT_EQ(sheet(3).Grid1.Text(1, 1), CodePage(1250).ToUtf8("Łódź"));
}

TEST_F(ImportingText, AtMostAHundredVariables) {
    import(file("widest.csv", Table(1, 100)), Bare);
    EXPECT_EQ(sheet().VariableCount(), 100);
    import(file("names.csv", Table(2, 101)), [](frmImportText& dialog) { dialog.Check2.Value = true;
});
EXPECT_EQ(sheet(2).VariableCount(), 100);
import(file("wide.csv", Table(1, 101)), Bare);
EXPECT_EQ(messages.shown, std::vector<Message>{criticalMessage("Over 100 variables!")});
EXPECT_EQ(session.Children.size(), 2u);
}

TEST_F(ImportingText, AtMost250Records) {
    session.MaxDiagramRecords = 10; // of no account here
    import(file("tallest.csv", Table(250, 1)), Bare);
    EXPECT_EQ(sheet().RecordCount(), 250);
    import(file("names.csv", Table(251, 2)), [](frmImportText& dialog) {
        dialog.Check1.Value = true;
    dialog.Check2.Value = true;
});
EXPECT_EQ(sheet(2).RecordCount(), 250);
import(file("tall.csv", Table(251, 1)), Bare);
EXPECT_EQ(messages.shown, std::vector<Message>{criticalMessage("Over 250 records!")});
EXPECT_EQ(session.Children.size(), 2u);
}

TEST_F(ImportingText, TheVariablesAreRefusedFirstAndBothBeforeAnyFault) {
    import(file("both.csv", "x" + Table(251, 101)), Bare);
    expectOnlyMessage(criticalMessage("Over 100 variables!"));
}

TEST_F(ImportingText, AMillionColumnsAreRefused) {
    import(file("million.csv", std::string(999'999, ';') + "\n"), Bare);
    expectOnlyMessage(criticalMessage("Over 100 variables!"));
}

TEST_F(ImportingText, AFaultIsToldWithItsPlaceAndNothingChanges) {
    const std::string path = file("faulty.csv", "c;a;b\nr;1;N/A\n");
    import(path);
    expectOnlyMessage(
        criticalMessage(fmt::format("Line 2, field 3: \"N/A\" is not a number. File: {}", path)));
    EXPECT_EQ(session.PendingRecCount, 0);
}

TEST_F(ImportingText, AFileThatIsNotThereIsToldAndNothingChanges) {
    import(folder / "missing.csv");
    expectOnlyMessage(criticalMessage("The file cannot be read: No such file or directory. File: " +
                                      (folder / "missing.csv")));
}

TEST_F(ImportingText, IsRefusedWhileADiagramIsBeingMade) {
    session.DiagramBusy = 1;
    ImportTextFile(session);
    EXPECT_EQ(signals.beeps, 1);
    expectNothingChanged();
}

} // namespace dorvan::test
