#pragma once

#include "platform/drawing.h"

#include <string>
#include <vector>

namespace dorvan {

// What the setup dialog of a printer changes beside the device itself. The meaning of the numbers is the
// platform's; a value that is unknown there cannot be read and is refused.
enum class PrinterValue { Copies, Orientation, PaperSize, PaperSource, Quality, Duplex, ColourMode, Scale };

struct PrinterSetup {
    struct Value {
        PrinterValue Which;
        int Number;
        bool operator==(const Value&) const = default;
    };

    std::string DeviceName;
    std::vector<Value> Values; // in the order in which they are set
};

// The current printer and the others of the system. Lengths are twips: one pixel of the device. Every
// operation can fail, with a std::runtime_error: no printer, a value that the driver refuses, no paper.
struct Printer {
    virtual ~Printer() = default;

    virtual std::string deviceName() = 0; // fails where no printer is installed
    virtual std::vector<std::string> deviceNames() = 0;
    virtual void choose(const std::string& deviceName) = 0;

    virtual int value(PrinterValue which) = 0;
    virtual void setValue(PrinterValue which, int number) = 0;

    // The platform's setup dialog over the form that asks for it. False, and nothing changed, on Cancel.
    virtual bool showSetup(PrinterSetup& setup) = 0;

    virtual std::vector<std::string> fontNames() = 0; // in the printer's order
    virtual std::string fontName() = 0;
    virtual void setFontName(const std::string& name) = 0;

    virtual double printableWidth() = 0;
    virtual double printableHeight() = 0;

    // An empty sheet at the end does not reach the device.
    virtual void print(const Drawing& pages, const std::string& documentName) = 0;
};

} // namespace dorvan
