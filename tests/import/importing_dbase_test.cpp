#include "import/dbase_bytes.h"
#include "import/frmImpDBF.h"
#include "import/import_commands.h"
#include "import/import_session.h"
#include "numbers/text.h"
#include "platform/keys.h"

#include <fmt/format.h>

namespace dorvan::test {

namespace {

class ImportingDBase : public ImportSession {
protected:
    ImportingDBase() { fillWorkingArrays(); }

    // What the user does once the table is open.
    void browse(const std::string& path, const std::function<void(frmImpDBF&)>& does) {
        files.paths.push_back(path);
        inDialog<frmImpDBF>([does](frmImpDBF& dialog) {
            dialog.cmdBrowse_Click();
            does(dialog);
        });
        ImportDBaseFile(session);
    }

    void importAll(const std::string& path) {
        browse(path, [](frmImpDBF& dialog) {
            dialog.AList.SelectAll();
            dialog.cmdCopyToRight_Click();
            dialog.cmdOK_Click();
            if (dialog.Visible) dialog.cmdCancel_Click();
        });
    }

    std::string table(const DBaseBytes& bytes) { return file("Table.DBF", bytes.bytes()); }
};

void CancelDialog(frmImpDBF& dialog) { dialog.cmdCancel_Click(); }

void Select(MultiListBox& list, const std::vector<std::size_t>& places) {
    for (const std::size_t place : places) list.Selected.at(place) = true;
}

const DBaseBytes& Counties() {
    static const DBaseBytes table = CountiesTable();
    return table;
}

DBaseBytes NumbersTable(int records) {
    DBaseBytes table({{"A", 'N', 4}});
    for (int record = 1; record <= records; ++record) table.record({std::to_string(record)});
    return table;
}

} // namespace

TEST_F(ImportingDBase, TheDialogOpensEmpty) {
    inDialog<frmImpDBF>([](frmImpDBF& dialog) {
        EXPECT_EQ(dialog.Name, "frmImpDBF");
        EXPECT_EQ(dialog.Caption, "Import DBF");
        EXPECT_EQ(dialog.cmdBrowse.Caption, "Browse");
        EXPECT_EQ(dialog.Frame1.Caption, "File:");
        EXPECT_EQ(dialog.Label1.Caption, "");
        EXPECT_EQ(dialog.Frame2.Caption, "Date:");
        EXPECT_EQ(dialog.Frame3.Caption, "Records:");
        EXPECT_EQ(dialog.Frame4.Caption, "Select fields:");
        EXPECT_EQ(dialog.Label2.Caption, "Available numeric fields:");
        EXPECT_EQ(dialog.Label3.Caption, "Selected fields:");
        EXPECT_EQ(dialog.Label4.Caption, "Get record name from:");
        EXPECT_EQ(dialog.cmdCancel.Caption, "Cancel");
        EXPECT_TRUE(dialog.AList.List.empty());
        EXPECT_TRUE(dialog.SList.List.empty());
        EXPECT_TRUE(dialog.cmbString.List.empty());
        dialog.CancelCommand();
        EXPECT_FALSE(dialog.Visible);
    });
    ImportDBaseFile(session);
    EXPECT_EQ(session.DialogOutcome, -99);
    expectNothingChanged();
}

TEST_F(ImportingDBase, BrowseAsksForATableAndShowsIt) {
    const std::string path = table(Counties());
    browse(path, [&](frmImpDBF& dialog) {
        EXPECT_EQ(dialog.Label1.Caption, LowerCase(folder.path()) + "/table.dbf");
        EXPECT_EQ(dialog.lblDate.Caption, "07.03.2004");
        EXPECT_EQ(dialog.lblRec.Caption, "3");
        EXPECT_EQ(dialog.AList.List, (Texts{"AREA", "BIRTHS"}));
        EXPECT_TRUE(dialog.SList.List.empty());
        EXPECT_EQ(dialog.cmbString.List, Texts{"NAME"});
        EXPECT_EQ(dialog.cmbString.ListIndex, 0);
        EXPECT_TRUE(dialog.cmbString.Enabled);
        EXPECT_EQ(dialog.Table.DBPath, path);
        CancelDialog(dialog);
    });
    EXPECT_EQ(files.requests[0],
              (FileRequest{.Title = "Dorvan - Select dbf file",
                           .Filters = {{"dbf file (*.dbf)", "*.dbf"}, {"all (*.*)", "*.*"}},
                           .Extension = "",
                           .StartFolder = "program-folder"}));
    EXPECT_EQ(signals.cursors, (std::vector<Cursor>{Cursor::Wait, Cursor::Default}));
}

TEST_F(ImportingDBase, ACancelledBrowseLeavesTheDialogButForgetsThePath) {
    browse(table(Counties()), [&](frmImpDBF& dialog) {
        files.paths.push_back("");
        dialog.cmdBrowse_Click();
        EXPECT_EQ(dialog.AList.List.size(), 2u);
        EXPECT_FALSE(dialog.Label1.Caption.empty());
        EXPECT_EQ(dialog.Table.DBPath, "");
        dialog.AList.SelectAll();
        dialog.cmdCopyToRight_Click();
        dialog.cmdOK_Click();
        EXPECT_TRUE(dialog.Visible);
        EXPECT_EQ(messages.shown, std::vector<Message>{criticalMessage(
                                      "The file cannot be read: No such file or directory. File: ")});
        CancelDialog(dialog);
    });
    expectNothingChanged();
}

TEST_F(ImportingDBase, DatesArePaddedToTwoDigits) {
    DBaseBytes bytes = Counties();
    bytes.Year = 95;
    bytes.Month = 11;
    bytes.Day = 30;
    browse(table(bytes), [](frmImpDBF& dialog) {
        EXPECT_EQ(dialog.lblDate.Caption, "30.11.1995");
        CancelDialog(dialog);
    });
}

TEST_F(ImportingDBase, AnErrorIsToldByItsNumberAndTheListsStay) {
    DBaseBytes version = Counties();
    version.Version = 5;
    DBaseBytes headerSize = Counties();
    headerSize.HeaderSize = 160;
    const std::pair<std::string, std::string> cases[] = {
        {folder / "missing.dbf", "Error in file: DBError = 2"},
        {file("short.dbf", "\x03"), "Error in file: DBError = 2"},
        {file("version.dbf", version.bytes()), "Error in file: DBError = 3"},
        {file("size.dbf", headerSize.bytes()), "Error in file: DBError = 4"},
        {file("cut.dbf", Counties().bytes().substr(0, 100)), "Error in file: DBError = 7"}};
    browse(table(Counties()), [&](frmImpDBF& dialog) {
        for (const auto& [path, text] : cases) {
            files.paths.push_back(path);
            messages.shown.clear();
            dialog.cmdBrowse_Click();
            EXPECT_EQ(messages.shown, std::vector<Message>{Message{.Text = text}});
            EXPECT_EQ(dialog.Table.DBStatus, 0);
            EXPECT_EQ(dialog.AList.List.size(), 2u);
            EXPECT_EQ(dialog.Label1.Caption, LowerCase(folder.path()) + "/table.dbf");
        }
        CancelDialog(dialog);
    });
}

TEST_F(ImportingDBase, AFaultOfTheHeaderIsToldWithTheFile) {
    DBaseBytes bytes = Counties();
    bytes.RecordSize = 40000;
    const std::string path = table(bytes);
    browse(path, [&](frmImpDBF& dialog) {
        EXPECT_EQ(messages.shown, std::vector<Message>{criticalMessage(fmt::format(
                                      "Byte 11: the record size -25536 is below 0. File: {}", path))});
        EXPECT_EQ(dialog.Label1.Caption, "");
        CancelDialog(dialog);
    });
}

TEST_F(ImportingDBase, ASecondTableTakesThePlaceOfTheFirst) {
    browse(table(Counties()), [&](frmImpDBF& dialog) {
        dialog.AList.SelectAll();
        dialog.cmdCopyToRight_Click();
        files.paths.push_back(file("numbers.dbf", NumbersTable(2).bytes()));
        dialog.cmdBrowse_Click();
        EXPECT_EQ(dialog.AList.List, Texts{"A"});
        EXPECT_TRUE(dialog.SList.List.empty());
        EXPECT_TRUE(dialog.cmbString.List.empty());
        EXPECT_FALSE(dialog.cmbString.Enabled);
        EXPECT_EQ(dialog.cmbString.ListIndex, -1);
        files.paths.push_back(folder / "Table.DBF");
        dialog.cmdBrowse_Click();
        EXPECT_TRUE(dialog.cmbString.Enabled);
        CancelDialog(dialog);
    });
}

TEST_F(ImportingDBase, SelectedItemsMoveInTheirOrderAndBack) {
    DBaseBytes bytes({{"A", 'N', 1}, {"B", 'N', 1}, {"C", 'N', 1}, {"D", 'N', 1}});
    browse(table(bytes), [](frmImpDBF& dialog) {
        Select(dialog.AList, {1, 3});
        dialog.cmdCopyToRight_Click();
        EXPECT_EQ(dialog.AList.List, (Texts{"A", "C"}));
        EXPECT_EQ(dialog.SList.List, (Texts{"B", "D"}));
        EXPECT_FALSE(dialog.AList.AnySelected());
        EXPECT_FALSE(dialog.SList.AnySelected());
        Select(dialog.AList, {0});
        dialog.cmdCopyToRight_Click();
        EXPECT_EQ(dialog.SList.List, (Texts{"B", "D", "A"}));
        Select(dialog.SList, {0, 2});
        dialog.cmdCopyToLeft_Click();
        EXPECT_EQ(dialog.AList.List, (Texts{"C", "B", "A"}));
        EXPECT_EQ(dialog.SList.List, Texts{"D"});
        CancelDialog(dialog);
    });
}

TEST_F(ImportingDBase, MovingWithoutASelectionIsRefused) {
    const Message refusal{.Text = "No item selected.", .Icon = MessageIcon::Exclamation};
    browse(table(Counties()), [&](frmImpDBF& dialog) {
        dialog.cmdCopyToRight_Click();
        dialog.cmdCopyToLeft_Click();
        EXPECT_EQ(messages.shown, (std::vector<Message>{refusal, refusal}));
        EXPECT_EQ(dialog.AList.List.size(), 2u);
        CancelDialog(dialog);
    });
}

TEST_F(ImportingDBase, ADoubleClickMovesTheOneItem) {
    browse(table(Counties()), [](frmImpDBF& dialog) {
        dialog.AList.SelectAll();
        dialog.AList.ListIndex = 1;
        dialog.AList_DblClick();
        EXPECT_EQ(dialog.AList.List, Texts{"AREA"});
        EXPECT_EQ(dialog.SList.List, Texts{"BIRTHS"});
        dialog.SList.ListIndex = 0;
        dialog.SList_DblClick();
        EXPECT_EQ(dialog.AList.List, (Texts{"AREA", "BIRTHS"}));
        dialog.SList_DblClick(); // on nothing
        EXPECT_TRUE(dialog.SList.List.empty());
        CancelDialog(dialog);
    });
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(ImportingDBase, TheArrowTowardsTheOtherListMovesToo) {
    browse(table(Counties()), [](frmImpDBF& dialog) {
        Select(dialog.AList, {0});
        int code = key::Left;
        dialog.AList_KeyDown(code);
        EXPECT_EQ(code, key::Left);
        EXPECT_TRUE(dialog.SList.List.empty());
        code = key::Right;
        dialog.AList_KeyDown(code);
        EXPECT_EQ(code, key::None);
        EXPECT_EQ(dialog.SList.List, Texts{"AREA"});
        Select(dialog.SList, {0});
        code = key::Right;
        dialog.SList_KeyDown(code);
        EXPECT_EQ(code, key::Right);
        code = key::Left;
        dialog.SList_KeyDown(code);
        EXPECT_EQ(code, key::None);
        EXPECT_EQ(dialog.AList.List, (Texts{"BIRTHS", "AREA"}));
        CancelDialog(dialog);
    });
}

TEST_F(ImportingDBase, OkAsksForAFileThenForVariables) {
    inDialog<frmImpDBF>([this](frmImpDBF& dialog) {
        dialog.cmdOK_Click();
        EXPECT_EQ(messages.shown, std::vector<Message>{importRefusal("Select file to import")});
        files.paths.push_back(table(Counties()));
        dialog.cmdBrowse_Click();
        dialog.cmdOK_Click();
        EXPECT_EQ(messages.shown.back(), importRefusal("No variables selected."));
        EXPECT_TRUE(dialog.Visible);
        dialog.cmdCancel_Click();
    });
    ImportDBaseFile(session);
    expectNothingChanged();
}

TEST_F(ImportingDBase, OpensAnUntitledChangedSheet) {
    const std::string path = table(Counties());
    browse(path, [](frmImpDBF& dialog) {
        Select(dialog.AList, {1});
        dialog.cmdCopyToRight_Click();
        Select(dialog.AList, {0});
        dialog.cmdCopyToRight_Click();
        dialog.cmdOK_Click();
        EXPECT_FALSE(dialog.Visible);
    });
    EXPECT_TRUE(messages.shown.empty());
    EXPECT_EQ(session.DialogOutcome, 1);
    EXPECT_EQ(sheet().Caption, "[DATA]: Untitled:1");
    EXPECT_EQ(sheet().Tag, "1");
    EXPECT_EQ(sheet().OpisText.Text, "Data from " + path);
    EXPECT_EQ(row(sheet().Grid1, 0), (Texts{"Number", "Record Name", "BIRTHS", "AREA"}));
    EXPECT_EQ(row(sheet().Grid1, 1), (Texts{" 1", "Ashe", "1091.000", "0.114"}));
    EXPECT_EQ(row(sheet().Grid1, 3), (Texts{" 3", "Surry", "3188.000", "-1.500"}));
    EXPECT_EQ(sheet().RecordCount(), 3);
    EXPECT_TRUE(session.DataStates[1].Dirty);
    EXPECT_EQ(session.PendingRecCount, 3);
    EXPECT_EQ(session.PendingVarCount, 2);
    EXPECT_EQ(signals.cursors.back(), Cursor::Default);
}

TEST_F(ImportingDBase, AnotherCharacterFieldGivesTheNames) {
    DBaseBytes bytes({{"A", 'N', 1}, {"ONE", 'C', 4}, {"TWO", 'C', 4}});
    browse(table(bytes.record({"1", "un", "deux"})), [](frmImpDBF& dialog) {
        EXPECT_EQ(dialog.cmbString.List, (Texts{"ONE", "TWO"}));
        dialog.cmbString.ListIndex = 1;
        dialog.AList.SelectAll();
        dialog.cmdCopyToRight_Click();
        dialog.cmdOK_Click();
    });
    EXPECT_EQ(sheet().Grid1.Text(1, 1), "deux");
}

TEST_F(ImportingDBase, WithoutCharacterFieldsTheNamesStayEmpty) {
    browse(table(NumbersTable(2)), [](frmImpDBF& dialog) {
        EXPECT_FALSE(dialog.cmbString.Enabled);
        dialog.AList.SelectAll();
        dialog.cmdCopyToRight_Click();
        dialog.cmdOK_Click();
    });
    EXPECT_EQ(row(sheet().Grid1, 2), (Texts{" 2", "", "2.000"}));
}

TEST_F(ImportingDBase, AfterOkAndCancelTheDialogIsEmptyAgain) {
    importAll(table(Counties()));
    const auto expectEmpty = [](frmImpDBF& dialog) {
        EXPECT_EQ(dialog.Label1.Caption, "");
        EXPECT_TRUE(dialog.AList.List.empty());
        EXPECT_TRUE(dialog.SList.List.empty());
        EXPECT_TRUE(dialog.cmbString.List.empty());
    };
    inDialog<frmImpDBF>([&](frmImpDBF& dialog) {
        expectEmpty(dialog);
        files.paths.push_back(folder / "Table.DBF");
        dialog.cmdBrowse_Click();
        Select(dialog.AList, {0});
        dialog.cmdCopyToRight_Click();
        dialog.cmdCancel_Click();
        expectEmpty(dialog);
    });
    ImportDBaseFile(session);
    EXPECT_EQ(session.DialogOutcome, -99);
    EXPECT_EQ(session.Children.size(), 1u);
}

TEST_F(ImportingDBase, OnlyTheFirst250RecordsAreRead) {
    importAll(table(NumbersTable(300)));
    EXPECT_EQ(messages.shown,
              std::vector<Message>{(Message{.Text = "Maximum number of record in Dorvan data file is 250. In "
                                                    "this database is  300 records. Only first 250 have been "
                                                    "imported.",
                                            .Icon = MessageIcon::Exclamation})});
    EXPECT_EQ(sheet().RecordCount(), 250);
    EXPECT_EQ(sheet().Grid1.Text(250, 2), "250.000");
    EXPECT_EQ(session.PendingRecCount, 250);
}

TEST_F(ImportingDBase, Exactly250RecordsNeedNoMessage) {
    importAll(table(NumbersTable(250)));
    EXPECT_TRUE(messages.shown.empty());
    EXPECT_EQ(sheet().RecordCount(), 250);
}

TEST_F(ImportingDBase, DeletedRecordsBehindTheLimitAreNeverLookedAt) {
    DBaseBytes bytes = NumbersTable(250);
    importAll(table(bytes.record({"x"}, '*').record({"x"}, '?')));
    EXPECT_EQ(messages.shown.size(), 1u);
}

TEST_F(ImportingDBase, DeletedRecordsKeepAZeroRowAndAreCounted) {
    DBaseBytes bytes({{"A", 'N', 1}, {"N", 'C', 3}});
    importAll(table(
        bytes.record({"1", "one"}).record({"2", "two"}, '*').record({"3", "thr"}).record({"4", "fou"}, '*')));
    EXPECT_EQ(messages.shown, std::vector<Message>{Message{.Text = "2 record(s) deleted and no reading"}});
    EXPECT_EQ(row(sheet().Grid1, 2), (Texts{" 2", "", "0.000"}));
    EXPECT_EQ(row(sheet().Grid1, 3), (Texts{" 3", "thr", "3.000"}));
    EXPECT_EQ(sheet().RecordCount(), 4);
}

TEST_F(ImportingDBase, ARecordWithNeitherMarkIsToldAndTheRestIsRead) {
    DBaseBytes bytes({{"A", 'N', 1}});
    importAll(table(bytes.record({"1"}).record({"2"}, '?').record({"3"}, '*')));
    EXPECT_EQ(messages.shown, (std::vector<Message>{Message{.Text = "Error in record: 2"},
                                                    Message{.Text = "1 record(s) deleted and no reading"}}));
    EXPECT_EQ(sheet().Grid1.Text(1, 2), "1.000");
    EXPECT_EQ(sheet().Grid1.Text(2, 2), "0.000");
}

TEST_F(ImportingDBase, ARecordSizeOfZeroIsToldForEveryRecord) {
    DBaseBytes bytes = Counties();
    bytes.RecordSize = 0;
    importAll(table(bytes));
    EXPECT_EQ(messages.shown.size(), 3u);
    EXPECT_EQ(messages.shown[0].Text, "Error in record: 1");
    EXPECT_EQ(sheet().Grid1.Text(3, 2), "0.000");
}

TEST_F(ImportingDBase, AFaultIsToldAndTheDialogStays) {
    DBaseBytes bytes({{"GOOD", 'N', 2}, {"BAD", 'N', 2}});
    const std::string path = table(bytes.record({"1", ""}));
    browse(path, [&](frmImpDBF& dialog) {
        dialog.AList.SelectAll();
        dialog.cmdCopyToRight_Click();
        dialog.cmdOK_Click();
        EXPECT_TRUE(dialog.Visible);
        EXPECT_EQ(messages.shown, std::vector<Message>{criticalMessage(fmt::format(
                                      "Record 1, field BAD: \"  \" is not a number. File: {}", path))});
        expectNothingChanged();
        Select(dialog.SList, {1});
        dialog.cmdCopyToLeft_Click();
        dialog.cmdOK_Click();
    });
    EXPECT_EQ(sheet().VariableCount(), 1);
}

TEST_F(ImportingDBase, ATableWithoutRecordsCannotBeSized) {
    const std::string path = table(NumbersTable(0));
    importAll(path);
    EXPECT_EQ(messages.shown,
              std::vector<Message>{criticalMessage("The table's count of records is 0. File: " + path)});
    expectNothingChanged();
}

TEST_F(ImportingDBase, ANegativeRecordCountCannotBeSized) {
    DBaseBytes bytes = NumbersTable(1);
    bytes.RecordCount = 0xFFFFFFFF;
    const std::string path = table(bytes);
    importAll(path);
    EXPECT_EQ(messages.shown,
              std::vector<Message>{criticalMessage("The table's count of records is -1. File: " + path)});
    expectNothingChanged();
}

TEST_F(ImportingDBase, AHugeRecordCountReadsWhatIsThere) {
    DBaseBytes bytes = NumbersTable(1);
    bytes.RecordCount = 0x7FFFFFFF;
    importAll(table(bytes));
    EXPECT_EQ(messages.shown.size(), 250u); // one about the limit, then one for each record but the first
    EXPECT_EQ(messages.shown[0].Text,
              "Maximum number of record in Dorvan data file is 250. In this database is "
              " 2147483647 records. Only first 250 have been imported.");
    EXPECT_EQ(messages.shown[1].Text, "Error in record: 2");
    EXPECT_EQ(sheet().RecordCount(), 250);
}

TEST_F(ImportingDBase, ATableThatIsGoneAtOkIsAFault) {
    const std::string path = table(Counties());
    browse(path, [&](frmImpDBF& dialog) {
        dialog.AList.SelectAll();
        dialog.cmdCopyToRight_Click();
        std::remove(path.c_str());
        dialog.cmdOK_Click();
        EXPECT_TRUE(dialog.Visible);
        EXPECT_EQ(messages.shown, std::vector<Message>{criticalMessage(
                                      "The file cannot be read: No such file or directory. File: " + path)});
        CancelDialog(dialog);
    });
    expectNothingChanged();
}

TEST_F(ImportingDBase, AHeaderWithoutFieldsOpensAnEmptyTable) {
    DBaseBytes bytes({});
    bytes.HeaderSize = 20;
    browse(table(bytes), [&](frmImpDBF& dialog) {
        EXPECT_TRUE(messages.shown.empty());
        EXPECT_TRUE(dialog.AList.List.empty());
        dialog.cmdOK_Click();
        EXPECT_EQ(messages.shown.back(), importRefusal("No variables selected."));
        CancelDialog(dialog);
    });
}

TEST_F(ImportingDBase, MemoFieldsDoNotAppear) {
    DBaseBytes bytes({{"A", 'N', 1}, {"NOTES", 'M', 10}, {"WHEN", 'D', 8}});
    bytes.Version = 131;
    browse(table(bytes), [&](frmImpDBF& dialog) {
        EXPECT_TRUE(messages.shown.empty());
        EXPECT_EQ(dialog.AList.List, Texts{"A"});
        EXPECT_TRUE(dialog.cmbString.List.empty());
        CancelDialog(dialog);
    });
}

TEST_F(ImportingDBase, ALongNameIsCutInTheSheetOnly) {
    DBaseBytes bytes({{"TENLETTERS", 'N', 1}});
    browse(table(bytes.record({"1"})), [](frmImpDBF& dialog) {
        EXPECT_EQ(dialog.AList.List, Texts{"TENLETTERS"});
        dialog.AList.SelectAll();
        dialog.cmdCopyToRight_Click();
        dialog.cmdOK_Click();
    });
    EXPECT_EQ(sheet().Grid1.Text(0, 2), "TENLETTE");
}

TEST_F(ImportingDBase, IsRefusedWhileADiagramIsBeingMade) {
    session.DiagramBusy = 1;
    ImportDBaseFile(session);
    EXPECT_EQ(signals.beeps, 1);
    expectNothingChanged();
}

} // namespace dorvan::test
