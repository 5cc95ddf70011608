#include "export/text_export.h"

#include "export/delimited_text.h"
#include "export_session.h"
#include "support/expect_failure.h"

#include <filesystem>

namespace dorvan::test {
namespace {

namespace fs = std::filesystem;

class SheetToText : public ExportSession {
protected:
    // The user accepts the dialog as it stands.
    void accept() {
        InDialog<frmExportOptions>([](auto& form) { form.Command2_Click(); });
    }
    std::string exported() {
        files.paths.push_back(target);
        ExportData(session);
        return fileBytes(target);
    }
};

TEST_F(SheetToText, FirstLineHasOneFieldLessThanTheOthers) {
    OpenSmallSheet();
    accept();
    EXPECT_EQ(exported(), "VAR  1;Width;Depth\r\n"
                          "r1;1.000;2.500;N/A\r\n"
                          "r2;-4.000;0.000;1234.567\r\n");
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(SheetToText, TheFileIsAskedFor) {
    OpenSmallSheet();
    accept();
    exported();
    EXPECT_EQ(files.requests,
              (std::vector<FileRequest>{{.Title = "Dorvan - Export *.txt file",
                                         .Filters = {{"txt file (*.txt)", "*.txt"}, {"all (*.*)", "*.*"}},
                                         .Extension = "txt",
                                         .StartFolder = session.AppPath}}));
}

TEST_F(SheetToText, EverySeparator) {
    OpenSmallSheet();
    InDialog<frmExportOptions>([](auto& form) {
        form.Option1.Value = false;
        form.Option2.Value = true;
        form.Command2_Click();
    });
    EXPECT_EQ(exported(), "VAR  1,Width,Depth\r\nr1,1.000,2.500,N/A\r\nr2,-4.000,0.000,1234.567\r\n");
    EXPECT_EQ(session.DataTextSeparator, 2);
    InDialog<frmExportOptions>([](auto& form) {
        EXPECT_TRUE(form.Option2.Value); // as it was left
        form.Option2.Value = false;
        form.Option3.Value = true;
        form.Command2_Click();
    });
    EXPECT_EQ(exported(), "VAR  1\tWidth\tDepth\r\nr1\t1.000\t2.500\tN/A\r\nr2\t-4.000\t0.000\t1234.567\r\n");
    EXPECT_EQ(session.DataTextSeparator, 3);
    InDialog<frmExportOptions>([](auto& form) {
        form.Option3.Value = false;
        form.Option1.Value = true;
        form.Command2_Click();
    });
    EXPECT_EQ(exported().substr(0, 13), "VAR  1;Width;");
    EXPECT_EQ(session.DataTextSeparator, 1);
    EXPECT_EQ(session.MatrixTextSeparator, 1);
}

TEST_F(SheetToText, NamesCanBeLeftOut) {
    OpenSmallSheet();
    InDialog<frmExportOptions>([](auto& form) {
        form.Check1.Value = false;
        form.Command2_Click();
    });
    EXPECT_EQ(exported(), "r1;1.000;2.500;N/A\r\nr2;-4.000;0.000;1234.567\r\n");
    EXPECT_EQ(session.DataTextNames, 0);
}

TEST_F(SheetToText, EmptyNamesAtTheBeginningLeaveNoField) {
    auto& sheet = OpenSmallSheet();
    const auto firstLine = [&](const char* one, const char* two, const char* three) {
        sheet.Grid1.SetText(0, 2, one);
        sheet.Grid1.SetText(0, 3, two);
        sheet.Grid1.SetText(0, 4, three);
        const std::string text = SheetAsText(sheet.Grid1, ';', true, CodePage(1252));
        return text.substr(0, text.find("\r\n"));
    };
    EXPECT_EQ(firstLine("", "b", "c"), "b;c");
    EXPECT_EQ(firstLine("  ", "", "c"), "c");
    EXPECT_EQ(firstLine("a", "", "c"), "a;;c");
    EXPECT_EQ(firstLine("a", "b", " "), "a;b;");
    EXPECT_EQ(firstLine("", "", ""), "");
}

TEST_F(SheetToText, CellsGoOutAsTheyStand) {
    auto& sheet = OpenSmallSheet();
    sheet.Grid1.SetText(1, 1, "");
    sheet.Grid1.SetText(1, 2, " 1,5 ");
    sheet.Grid1.SetText(2, 1, "a;\"b\"");
    EXPECT_EQ(SheetAsText(sheet.Grid1, ';', false, CodePage(1252)),
              "; 1,5 ;2.500;N/A\r\na;\"b\";-4.000;0.000;1234.567\r\n");
}

TEST_F(SheetToText, TextsAreInTheCodePage) {
    auto& sheet = OpenSmallSheet();
    sheet.Grid1.SetText(0, 2, "Ćma");
    sheet.Grid1.SetText(1, 1, "Łódź漢");
    session.codePage = CodePage(1250);
    accept();
    EXPECT_EQ(exported().substr(0, 34), "\xC6ma;Width;Depth\r\n\xA3\xF3"
                                        "d\x9F?;1.000;2.500");
}

TEST_F(SheetToText, SheetWithoutVariablesOrRecords) {
    Grid grid("Grid1");
    grid.SetSize(3, 2);
    grid.SetText(1, 1, "a");
    grid.SetText(2, 1, "b");
    EXPECT_EQ(SheetAsText(grid, ';', true, CodePage(1252)), "\r\na\r\nb\r\n");
    grid.SetSize(1, 3);
    grid.SetText(0, 2, "v");
    EXPECT_EQ(SheetAsText(grid, ';', true, CodePage(1252)), "v\r\n");
}

TEST_F(SheetToText, NothingHappensOnCancel) {
    OpenSmallSheet();
    InDialog<frmExportOptions>([](auto& form) {
        form.Option1.Value = false;
        form.Option3.Value = true;
        form.Check1.Value = false;
        form.Command1_Click();
    });
    ExportData(session);
    EXPECT_EQ(session.OutputDialogOutcome, -99);
    EXPECT_EQ(session.DataTextSeparator, 1);
    EXPECT_EQ(session.DataTextNames, 1);
    EXPECT_TRUE(files.requests.empty());
    // Pending events run before the outcome is looked at.
    EXPECT_EQ(events.runs, 1);
    accept();
    files.paths = {""};
    ExportData(session);
    EXPECT_TRUE(fs::is_empty(folder.path()));
    EXPECT_TRUE(signals.cursors.empty());
}

TEST_F(SheetToText, WaitCursorCoversTheWriting) {
    OpenSmallSheet();
    accept();
    signals.cursors.clear();
    exported();
    EXPECT_EQ(signals.cursors, (std::vector{Cursor::Wait, Cursor::Default}));
}

TEST_F(SheetToText, ErrorIsToldAtTheEnd) {
    OpenSmallSheet();
    accept();
    files.paths = {folder / "none/out.txt"};
    ExportData(session);
    ASSERT_EQ(messages.shown.size(), 1u);
    EXPECT_EQ(messages.shown[0],
              (Message{.Text = "No such file or directory. File: " + (folder / "none/out.txt"),
                       .Icon = MessageIcon::Exclamation,
                       .Title = "Dorvan"}));
    EXPECT_EQ(signals.cursors.back(), Cursor::Default);
}

TEST_F(SheetToText, ContentThatStoodThereIsReplaced) {
    OpenSmallSheet();
    writeFile(target, std::string(10000, 'x'));
    accept();
    EXPECT_EQ(exported().size(), 66u);
}

TEST_F(SheetToText, RefusedWhileADiagramIsBeingMade) {
    OpenSmallSheet();
    session.DiagramBusy = 1;
    ExportData(session);
    EXPECT_EQ(signals.beeps, 1);
    EXPECT_TRUE(forms.log.empty());
}

TEST_F(SheetToText, IsReachedByItsCommand) {
    OpenSmallSheet();
    accept();
    files.paths = {target};
    session.commands.Call("ExportData");
    EXPECT_TRUE(fs::exists(target));
}

class ExportOptions : public ExportSession {};

TEST_F(ExportOptions, CaptionsOfTheSheetsDialog) {
    auto& form = session.forms.Load<frmExportOptions>(session);
    EXPECT_EQ(form.Name, "frmExportOptions");
    EXPECT_EQ(form.Caption, "Export to text file options");
    EXPECT_EQ(form.Frame1.Caption, "Separator:");
    EXPECT_EQ(form.Option1.Caption, "&semicolon (;)");
    EXPECT_EQ(form.Option2.Caption, "&comma (,)");
    EXPECT_EQ(form.Option3.Caption, "&tab separator");
    EXPECT_EQ(form.Check1.Caption, "&Insert variable names");
    EXPECT_EQ(form.Command2.Caption, "O&K");
    EXPECT_EQ(form.Command1.Caption, "Cancel");
}

TEST_F(ExportOptions, CaptionsOfTheMatrixDialog) {
    auto& form = session.forms.Load<frmTextOptions>(session);
    EXPECT_EQ(form.Name, "frmTextOptions");
    EXPECT_EQ(form.Caption, "Export text options");
    EXPECT_EQ(form.Frame1.Caption, "Separator:");
    EXPECT_EQ(form.Option1.Caption, "semicolon (;)");
    EXPECT_EQ(form.Option2.Caption, "comma (,)");
    EXPECT_EQ(form.Option3.Caption, "&tab separator");
    EXPECT_EQ(form.Command2.Caption, "O&K");
    EXPECT_EQ(form.Command1.Caption, "Cancel");
}

TEST_F(ExportOptions, OptionOfTheSeparatorIsOnAtLoad) {
    for (std::int16_t separator = 1; separator <= 3; ++separator) {
        session.DataTextSeparator = separator;
        session.MatrixTextSeparator = separator;
        frmExportOptions sheet(session);
        sheet.Form_Load();
        frmTextOptions matrix(session);
        matrix.Form_Load();
        EXPECT_EQ(sheet.Option1.Value, separator == 1);
        EXPECT_EQ(sheet.Option2.Value, separator == 2);
        EXPECT_EQ(sheet.Option3.Value, separator == 3);
        EXPECT_EQ(matrix.Option1.Value, separator == 1);
        EXPECT_EQ(matrix.Option2.Value, separator == 2);
        EXPECT_EQ(matrix.Option3.Value, separator == 3);
    }
}

TEST_F(ExportOptions, TheTickDoesNotFollowTheSession) {
    session.DataTextNames = 0;
    frmExportOptions form(session);
    form.Form_Load();
    EXPECT_TRUE(form.Check1.Value);
}

TEST_F(ExportOptions, ButtonsAndEscapeHideTheDialogs) {
    frmExportOptions sheet(session);
    frmTextOptions matrix(session);
    for (Form* form : std::initializer_list<Form*>{&sheet, &matrix}) {
        form->Form_Load();
        form->Visible = true;
        form->CancelCommand();
        EXPECT_FALSE(form->Visible);
        EXPECT_EQ(session.OutputDialogOutcome, -99);
    }
    sheet.Visible = matrix.Visible = true;
    sheet.Command2_Click();
    EXPECT_EQ(session.OutputDialogOutcome, 1);
    session.OutputDialogOutcome = 0;
    matrix.Command2_Click();
    EXPECT_EQ(session.OutputDialogOutcome, 1);
    EXPECT_FALSE(sheet.Visible || matrix.Visible);
}

class MatrixToText : public ExportSession {
protected:
    frmMacierz& window = OpenMatrix(SmallMatrix());

    void accept() {
        InDialog<frmTextOptions>([](auto& form) { form.Command2_Click(); });
    }
    std::string exported() {
        files.paths.push_back(target);
        window.ExportMatrix();
        return fileBytes(target);
    }
};

TEST_F(MatrixToText, ALineForEachRecordAndNoHeader) {
    session.codePage = CodePage(1250);
    signals.cursors.clear();
    accept();
    EXPECT_EQ(exported(), "\xA3\xF3"
                          "d\x9F;0;1.234568E-05\r\nb;c;1.234568E-05;0\r\n");
    EXPECT_TRUE(signals.cursors.empty());
}

TEST_F(MatrixToText, TheFileIsAskedFor) {
    accept();
    exported();
    EXPECT_EQ(files.requests,
              (std::vector<FileRequest>{{.Title = "Dorvan - Export matrix to text file",
                                         .Filters = {{"txt file (*.txt)", "*.txt"}, {"all (*.*)", "*.*"}},
                                         .Extension = "*.txt",
                                         .StartFolder = session.AppPath}}));
}

TEST_F(MatrixToText, EverySeparatorAndNoneOfTheSheets) {
    const auto choose = [&](OptionButton frmTextOptions::*option) {
        InDialog<frmTextOptions>([option](auto& form) {
            for (auto each : {&frmTextOptions::Option1, &frmTextOptions::Option2, &frmTextOptions::Option3})
                (form.*each).Value = each == option;
            form.Command2_Click();
        });
    };
    session.DataTextSeparator = 3;
    choose(&frmTextOptions::Option2);
    EXPECT_NE(exported().find("d?,0,1.2"), std::string::npos);
    EXPECT_EQ(session.MatrixTextSeparator, 2);
    choose(&frmTextOptions::Option3);
    EXPECT_NE(exported().find("d?\t0\t1.2"), std::string::npos);
    choose(&frmTextOptions::Option1);
    EXPECT_NE(exported().find("d?;0;1.2"), std::string::npos);
    EXPECT_EQ(session.MatrixTextSeparator, 1);
    EXPECT_EQ(session.DataTextSeparator, 3);
}

TEST_F(MatrixToText, NothingHappensOnCancel) {
    InDialog<frmTextOptions>([](auto& form) {
        form.Option1.Value = false;
        form.Option2.Value = true;
        form.Command1_Click();
    });
    window.ExportMatrix();
    EXPECT_EQ(session.MatrixTextSeparator, 1);
    EXPECT_TRUE(files.requests.empty());
    accept();
    files.paths = {""};
    window.ExportMatrix();
    EXPECT_TRUE(fs::is_empty(folder.path()));
}

// Nothing catches it but the end of the run.
TEST_F(MatrixToText, FileThatCannotBeOpenedEndsTheRun) {
    accept();
    files.paths = {folder / "none/out.txt"};
    EXPECT_FAILURE(Failure::PathNotFound, window.ExportMatrix());
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(MatrixToText, RefusedWhileADiagramIsBeingMade) {
    session.DiagramBusy = 1;
    window.ExportMatrix();
    EXPECT_EQ(signals.beeps, 1);
    EXPECT_TRUE(forms.log.empty());
}

TEST_F(MatrixToText, IsReachedByItsCommand) {
    accept();
    files.paths = {target};
    session.commands.Call("frmMacierz.ExportMatrix", {.Index = window.Index, .Path = {}});
    EXPECT_TRUE(fs::exists(target));
}

} // namespace
} // namespace dorvan::test
