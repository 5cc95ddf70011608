#pragma once

#include "platform/ports.h"
#include "platform/printer.h"

#include <QPrinter>

#include <memory>

namespace dorvan {

class EventDispatch;

// The printers of the system, and beside them always the printing to a PDF file. The current one is the
// system's default at first.
class QtPrinter : public Printer {
public:
    QtPrinter(EventDispatch& dispatch, FileChoice& files) : dispatch_(dispatch), files_(files) {}

    std::string deviceName() override;
    std::vector<std::string> deviceNames() override;
    void choose(const std::string& deviceName) override;
    int value(PrinterValue which) override;
    void setValue(PrinterValue which, int number) override;
    bool showSetup(PrinterSetup& setup) override;
    std::vector<std::string> fontNames() override;
    std::string fontName() override { return fontName_; }
    void setFontName(const std::string& name) override { fontName_ = name; }
    double printableWidth() override;
    double printableHeight() override;

    // Asks for the file where the printer is one and the setup dialog has not just named it.
    void print(const Drawing& pages, const std::string& documentName) override;

private:
    QPrinter& Current(); // asks the system for its printers at the first call
    void PrintToFile(const Drawing& pages, const std::string& documentName);

    EventDispatch& dispatch_;
    FileChoice& files_;
    std::unique_ptr<QPrinter> printer_;
    std::string file_; // of the next print, as the setup dialog named it
    std::string fontName_;
};

} // namespace dorvan
