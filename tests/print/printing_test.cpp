#include "distance/frmMacierz.h"
#include "drawn.h"
#include "files/disk.h"
#include "numbers/runtime_failure.h"
#include "print/diagram_pages.h"
#include "print/frmOpisDiagramu.h"
#include "print/frmPrintMatrix.h"
#include "print/matrix_pages.h"
#include "print/modPrinterDlg.h"
#include "print/print_values.h"
#include "program/program.h"
#include "session/opening.h"
#include "support/expect_failure.h"
#include "view/diagram_session.h"

#include <gtest/gtest.h>

namespace dorvan::test {
namespace {

const Message noPrinter{.Text = "W systmie nie zainstalowano drukarki!",
                        .Icon = MessageIcon::Exclamation,
                        .Title = "Błąd drukarki"};

class Printing : public ::testing::Test, protected TestSession {
protected:
    Printing() {
        Compose(session);
        for (const auto which : {PrinterValue::Copies, PrinterValue::Orientation, PrinterValue::PaperSize,
                                 PrinterValue::PaperSource, PrinterValue::Quality, PrinterValue::Duplex,
                                 PrinterValue::ColourMode, PrinterValue::Scale})
            printer.values[which] = 10 + int(which);
    }
    ~Printing() override {
        expectScriptsUsedUp();
        EXPECT_TRUE(printer.setups.empty());
    }

    frmMacierz& OpenMatrix() {
        const std::int16_t slot = FindFreeMatrixSlot(session);
        DistanceMatrix matrix{Array1<std::string>(2), Array2<std::string>(2, 2), 2};
        matrix.Names.Cells() = {"a", "b"};
        matrix.Cells.Cells() = {"0", "1.5", "1.5", "0"};
        session.MatrixDocuments.at(std::size_t(slot)) = matrix;
        return OpenDocumentWindow<frmMacierz>(session, {.Slot = slot},
                                              [](frmMacierz& window) { window.Present("a matrix"); });
    }
    frmDiagram& OpenDiagram() {
        const std::int16_t slot = FindFreeDiagramSlot(session);
        DiagramDocument diagram = SampleDocument(3);
        ClassifyDiagram(diagram);
        session.DiagramDocuments.at(std::size_t(slot)) = diagram;
        return OpenDocumentWindow<frmDiagram>(session, {.Slot = slot},
                                              [](frmDiagram& window) { window.Present("a diagram"); });
    }
    template <class Dialog> void InDialog(std::function<void(Dialog&)> action) {
        forms.scripts.push_back([action](Form& form) { action(dynamic_cast<Dialog&>(form)); });
    }
};

TEST_F(Printing, PrinterIsInstalledWhenItsNameCanBeRead) {
    EXPECT_TRUE(PrinterInstalled(session));
    EXPECT_TRUE(messages.shown.empty());
    printer.installed = false;
    EXPECT_FALSE(PrinterInstalled(session));
    EXPECT_EQ(messages.shown, (std::vector{noPrinter}));
}

TEST_F(Printing, SetupDialogStartsFromTheCurrentPrinter) {
    printer.device = "A device with a name of more than 32 characters";
    printer.values.erase(PrinterValue::Scale); // cannot be read
    printer.setups.push_back([](PrinterSetup& setup) {
        EXPECT_EQ(setup.DeviceName, "A device with a name of more tha");
        EXPECT_EQ(setup.Values, (std::vector<PrinterSetup::Value>{{PrinterValue::Copies, 10},
                                                                  {PrinterValue::Orientation, 11},
                                                                  {PrinterValue::PaperSize, 12},
                                                                  {PrinterValue::PaperSource, 13},
                                                                  {PrinterValue::Quality, 14},
                                                                  {PrinterValue::Duplex, 15},
                                                                  {PrinterValue::ColourMode, 16}}));
        return false;
    });
    ShowPrinterDialog(session);
}

TEST_F(Printing, CancelOfTheSetupLeavesEverything) {
    const auto values = printer.values;
    printer.setups.push_back([](PrinterSetup& setup) {
        setup.DeviceName = "Cellar";
        setup.Values[0].Number = 99;
        return false;
    });
    ShowPrinterDialog(session);
    EXPECT_TRUE(printer.log.empty());
    EXPECT_EQ(printer.device, "Office");
    EXPECT_EQ(printer.values, values);
}

TEST_F(Printing, SetupSetsTheDeviceThenItsValuesEachInTurn) {
    printer.setups.push_back([](PrinterSetup& setup) {
        setup.DeviceName = "CELLAR";
        setup.Values[0].Number = 3;
        return true;
    });
    ShowPrinterDialog(session);
    EXPECT_EQ(printer.log, (std::vector<std::string>{"choose Cellar", "set 0 to 3", "set 1 to 11",
                                                     "set 2 to 12", "set 3 to 13", "set 4 to 14",
                                                     "set 5 to 15", "set 6 to 16", "set 7 to 17"}));
}

TEST_F(Printing, TheSameDeviceInOtherLettersStays) {
    printer.setups.push_back([](PrinterSetup& setup) {
        setup.DeviceName = "OFFICE";
        setup.Values.clear();
        return true;
    });
    ShowPrinterDialog(session);
    EXPECT_TRUE(printer.log.empty());
}

TEST_F(Printing, DeviceNameEndsAtItsFirstZero) {
    printer.setups.push_back([](PrinterSetup& setup) {
        setup.DeviceName = std::string("cellar\0rest", 11);
        setup.Values.clear();
        return true;
    });
    ShowPrinterDialog(session);
    EXPECT_EQ(printer.log, (std::vector<std::string>{"choose Cellar"}));
}

TEST_F(Printing, TheFirstDeviceOfThatNameIsTaken) {
    printer.devices = {"Office", "Attic", "attic"};
    printer.setups.push_back([](PrinterSetup& setup) {
        setup.DeviceName = "ATTIC";
        setup.Values.clear();
        return true;
    });
    ShowPrinterDialog(session);
    EXPECT_EQ(printer.log, (std::vector<std::string>{"choose Attic"}));
}

TEST_F(Printing, AnUnknownDeviceChangesNothingButTheValues) {
    printer.setups.push_back([](PrinterSetup& setup) {
        setup.DeviceName = "Roof";
        setup.Values = {{PrinterValue::Copies, 2}};
        return true;
    });
    ShowPrinterDialog(session);
    EXPECT_EQ(printer.log, (std::vector<std::string>{"set 0 to 2"}));
}

TEST_F(Printing, ValueThatTheDriverRefusesIsSkipped) {
    printer.refused = {PrinterValue::Orientation};
    printer.setups.push_back([](PrinterSetup& setup) {
        for (auto& value : setup.Values) value.Number = 1;
        return true;
    });
    ShowPrinterDialog(session);
    EXPECT_EQ(printer.values[PrinterValue::Copies], 1);
    EXPECT_EQ(printer.values[PrinterValue::Orientation], 11);
    EXPECT_EQ(printer.values[PrinterValue::PaperSize], 1);
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(Printing, MatrixDialog) {
    frmPrintMatrix form(session);
    EXPECT_EQ(form.Name, "frmPrintMatrix");
    EXPECT_EQ(form.Caption, "Print matrix");
    EXPECT_EQ(form.Command1.Caption, "OK");
    EXPECT_EQ(form.Command2.Caption, "Cancel");
    EXPECT_EQ(form.Command3.Caption, "&Printer options");
    form.Visible = true;
    printer.setups.push_back([](PrinterSetup&) { return false; });
    form.Command3_Click();
    EXPECT_TRUE(form.Visible);
    form.Command1_Click();
    EXPECT_FALSE(form.Visible);
    EXPECT_EQ(session.OutputDialogOutcome, 1);
    form.Visible = true;
    form.CancelCommand();
    EXPECT_FALSE(form.Visible);
    EXPECT_EQ(session.OutputDialogOutcome, 0);
}

TEST_F(Printing, DiagramDialog) {
    frmOpisDiagramu form(session);
    form.Form_Load();
    EXPECT_EQ(form.Name, "frmOpisDiagramu");
    EXPECT_EQ(form.Caption, "Print setup");
    EXPECT_EQ(form.Label1.Caption, "Select font:");
    EXPECT_EQ(form.Frame1.Caption, "Diagram size:");
    EXPECT_EQ(form.Option1.Caption, "Normal");
    EXPECT_EQ(form.Option2.Caption, "Small");
    EXPECT_EQ(form.Option3.Caption, "Large");
    EXPECT_EQ(form.Command3.Caption, "&Printer options");
    EXPECT_TRUE(form.Option1.Value);
    EXPECT_FALSE(form.Option2.Value || form.Option3.Value);
    form.Visible = true;
    printer.setups.push_back([](PrinterSetup&) { return false; });
    form.Command3_Click();
    EXPECT_TRUE(form.Visible);
    form.CancelCommand();
    EXPECT_FALSE(form.Visible);
    EXPECT_EQ(session.OutputDialogOutcome, 0);
    EXPECT_EQ(session.Of<PrintValues>().DiagramPrintSize, 0);
}

TEST_F(Printing, FontsOfThePrinterFillTheListWhileEventsRun) {
    frmOpisDiagramu form(session);
    std::vector<std::size_t> sizes;
    events.onRun = [&](int) { sizes.push_back(form.Combo1.List.size()); };
    form.Form_Load();
    EXPECT_EQ(form.Combo1.List, (std::vector<std::string>{"Courier New", "Arial"}));
    EXPECT_EQ(form.Combo1.ListIndex, 0);
    EXPECT_EQ(sizes, (std::vector<std::size_t>{1, 2}));
    printer.fonts = {};
    form.Form_Load(); // emptied first
    EXPECT_TRUE(form.Combo1.List.empty());
    EXPECT_EQ(form.Combo1.ListIndex, -1);
}

TEST_F(Printing, AcceptedDiagramDialogSetsSizeAndFont) {
    frmOpisDiagramu form(session);
    form.Form_Load();
    form.Combo1.ListIndex = 1;
    const std::pair<OptionButton frmOpisDiagramu::*, int> sizes[] = {
        {&frmOpisDiagramu::Option1, 1}, {&frmOpisDiagramu::Option2, 2}, {&frmOpisDiagramu::Option3, 3}};
    for (const auto& [option, size] : sizes) {
        form.Option1.Value = form.Option2.Value = form.Option3.Value = false;
        (form.*option).Value = true;
        form.Visible = true;
        session.OutputDialogOutcome = 0;
        form.Command1_Click();
        EXPECT_FALSE(form.Visible);
        EXPECT_EQ(session.OutputDialogOutcome, 1);
        EXPECT_EQ(session.Of<PrintValues>().DiagramPrintSize, size);
    }
    EXPECT_EQ(printer.font, "Arial");
    // None selected: the old one stays.
    form.Option3.Value = false;
    form.Command1_Click();
    EXPECT_EQ(session.Of<PrintValues>().DiagramPrintSize, 3);
}

TEST_F(Printing, DialogsWithoutAPrinterSaySo) {
    printer.installed = false;
    frmOpisDiagramu diagram(session);
    diagram.Form_Load();
    EXPECT_TRUE(diagram.Combo1.List.empty());
    EXPECT_EQ(messages.shown.size(), 1u);
    diagram.Command3_Click();
    EXPECT_EQ(messages.shown.size(), 2u);
    diagram.Command1_Click();
    EXPECT_EQ(session.OutputDialogOutcome, 1);
    EXPECT_EQ(session.Of<PrintValues>().DiagramPrintSize, 1);
    EXPECT_EQ(printer.font, "Courier New");
    EXPECT_EQ(messages.shown.size(), 3u);
    frmPrintMatrix(session).Command3_Click();
    EXPECT_EQ(messages.shown, std::vector<Message>(4, noPrinter));
}

TEST_F(Printing, MatrixGoesToThePrinter) {
    auto& window = OpenMatrix();
    InDialog<frmPrintMatrix>([](auto& form) { form.Command1_Click(); });
    signals.cursors.clear();
    session.commands.Call("frmMacierz.PrintMatrix", {.Index = window.Index, .Path = {}});
    ASSERT_EQ(printer.printed.size(), 1u);
    const Paper paper{11500, 16440, "Courier New"};
    EXPECT_EQ(printer.printed[0].first, MatrixPages(window.Document(), "a matrix", paper, fonts, '.'));
    EXPECT_EQ(printer.printed[0].second, "Untitled:1");
    EXPECT_EQ(signals.cursors, (std::vector{Cursor::Wait, Cursor::Default}));
}

TEST_F(Printing, DiagramGoesToThePrinter) {
    auto& window = OpenDiagram();
    window.Caption = "[DIAGRAM]: /tmp/three.dgr";
    InDialog<frmOpisDiagramu>([](auto& form) {
        form.Option1.Value = false;
        form.Option2.Value = true;
        form.Combo1.ListIndex = 1;
        form.Command1_Click();
    });
    session.commands.Call("frmDiagram.PrintDiagram", {.Index = window.Index, .Path = {}});
    ASSERT_EQ(printer.printed.size(), 1u);
    const Paper paper{11500, 16440, "Arial"};
    EXPECT_EQ(printer.printed[0].first, DiagramPages(window.Document(), "a diagram", 2, paper, fonts, '.'));
    EXPECT_EQ(printer.printed[0].second, "/tmp/three.dgr");
}

TEST_F(Printing, DialogKeepsItsChoiceForTheNextPrint) {
    auto& window = OpenDiagram();
    InDialog<frmOpisDiagramu>([](auto& form) {
        form.Option1.Value = false;
        form.Option3.Value = true;
        form.Command1_Click();
    });
    window.PrintDiagram();
    InDialog<frmOpisDiagramu>([](auto& form) {
        EXPECT_TRUE(form.Option3.Value);
        form.Command1_Click();
    });
    window.PrintDiagram();
    EXPECT_EQ(printer.printed.size(), 2u);
    EXPECT_EQ(printer.printed[0].first, printer.printed[1].first);
}

TEST_F(Printing, NothingIsPrintedOnCancel) {
    InDialog<frmPrintMatrix>([](auto& form) { form.Command2_Click(); });
    OpenMatrix().PrintMatrix();
    InDialog<frmOpisDiagramu>([](auto& form) { form.Command2_Click(); });
    OpenDiagram().PrintDiagram();
    EXPECT_TRUE(printer.printed.empty());
}

TEST_F(Printing, NothingIsAskedWithoutAPrinter) {
    printer.installed = false;
    OpenMatrix().PrintMatrix();
    OpenDiagram().PrintDiagram();
    EXPECT_EQ(messages.shown, std::vector<Message>(2, noPrinter));
    EXPECT_TRUE(forms.log.empty());
}

TEST_F(Printing, RefusedWhileADiagramIsBeingMade) {
    auto& matrix = OpenMatrix();
    auto& diagram = OpenDiagram();
    session.DiagramBusy = 1;
    matrix.PrintMatrix();
    diagram.PrintDiagram();
    EXPECT_EQ(signals.beeps, 2);
    EXPECT_TRUE(forms.log.empty());
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(Printing, FailureOfThePrinterIsSilent) {
    printer.failure = "out of paper";
    InDialog<frmPrintMatrix>([](auto& form) { form.Command1_Click(); });
    OpenMatrix().PrintMatrix();
    EXPECT_TRUE(messages.shown.empty());
    EXPECT_EQ(session.Of<FileValues>().SilentFailure, "out of paper");
    EXPECT_EQ(signals.cursors.back(), Cursor::Default);
    printer.failure = "";
    InDialog<frmOpisDiagramu>([](auto& form) { form.Command1_Click(); });
    OpenDiagram().PrintDiagram();
    EXPECT_EQ(session.Of<FileValues>().SilentFailure, "");
}

// The boxes are measured before failures count for nothing.
TEST_F(Printing, MatrixWithoutNumbersEndsTheRun) {
    auto& window = OpenMatrix();
    window.Document().Cells(2, 1) = "x";
    InDialog<frmPrintMatrix>([](auto& form) { form.Command1_Click(); });
    EXPECT_FAILURE(Failure::TypeMismatch, window.PrintMatrix());
}

} // namespace
} // namespace dorvan::test
