#include "print/modPrinterDlg.h"

#include "numbers/text.h"
#include "platform/printer.h"

#include <stdexcept>

namespace dorvan {

namespace {

constexpr std::size_t LongestDeviceName = 32; // characters, in the dialog's record

constexpr PrinterValue AllValues[] = {
    PrinterValue::Copies,  PrinterValue::Orientation, PrinterValue::PaperSize, PrinterValue::PaperSource,
    PrinterValue::Quality, PrinterValue::Duplex,      PrinterValue::ColourMode,    PrinterValue::Scale};

template <class Step> void Tried(const Step& step) {
    try {
        step();
    } catch (const std::runtime_error&) { // the next step runs all the same
    }
}

PrinterSetup SetupOf(Printer& printer) {
    PrinterSetup setup;
    Tried([&] { setup.DeviceName = LeftCharacters(printer.deviceName(), LongestDeviceName); });
    for (const PrinterValue which : AllValues)
        Tried([&] { setup.Values.push_back({which, printer.value(which)}); });
    return setup;
}

// Names are the same whatever the case of their letters.
bool SameName(std::string_view one, std::string_view other) { return LowerCase(one) == LowerCase(other); }

void ChooseDevice(Printer& printer, const std::string& name) {
    if (SameName(name, printer.deviceName())) return;
    for (const std::string& device : printer.deviceNames())
        if (SameName(device, name)) return printer.choose(device);
}

} // namespace

bool PrinterInstalled(Session& session) {
    try {
        session.platform.printer.deviceName();
        return true;
    } catch (const std::runtime_error&) {
        session.platform.messages.show({.Text = "W systmie nie zainstalowano drukarki!",
                                        .Icon = MessageIcon::Exclamation,
                                        .Title = "Błąd drukarki"});
        return false;
    }
}

void ShowPrinterDialog(Session& session) {
    Printer& printer = session.platform.printer;
    Tried([&] {
        PrinterSetup setup = SetupOf(printer);
        if (!printer.showSetup(setup)) return;
        const std::string name = setup.DeviceName.substr(0, setup.DeviceName.find('\0'));
        Tried([&] { ChooseDevice(printer, name); });
        for (const auto& value : setup.Values) Tried([&] { printer.setValue(value.Which, value.Number); });
    });
}

} // namespace dorvan
