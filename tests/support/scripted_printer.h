#pragma once

#include "platform/drawing_ports.h"
#include "platform/printer.h"

#include <deque>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace dorvan::test {

// A font of plain numbers: a character is 10 twips wide for each point of its size, 12 in bold, and 20 high.
struct PrinterMeasure : TextMeasure {
    TextExtent extentOf(const std::string& text, const drawing::Font& font) override;
};

// A printer that remembers what it was given. A setup dialog that no script answers fails the test.
class ScriptedPrinter : public Printer {
public:
    bool installed = true;
    std::string device = "Office";
    std::vector<std::string> devices = {"Office", "Cellar"};
    std::map<PrinterValue, int> values; // those that it has; what it lacks cannot be read or set
    std::set<PrinterValue> refused;
    std::vector<std::string> fonts = {"Courier New", "Arial"};
    std::string font = "Courier New";
    double width = 11500;
    double height = 16440;
    std::string failure; // of printing; empty: it works

    std::deque<std::function<bool(PrinterSetup&)>> setups; // what the user does in the setup dialog
    std::vector<std::string> log;                          // "choose Cellar", "set 0 to 2"
    std::vector<std::pair<Drawing, std::string>> printed;

    std::string deviceName() override;
    std::vector<std::string> deviceNames() override { return devices; }
    void choose(const std::string& deviceName) override;
    int value(PrinterValue which) override;
    void setValue(PrinterValue which, int number) override;
    bool showSetup(PrinterSetup& setup) override;
    std::vector<std::string> fontNames() override { return fonts; }
    std::string fontName() override { return font; }
    void setFontName(const std::string& name) override { font = name; }
    double printableWidth() override { return width; }
    double printableHeight() override { return height; }
    void print(const Drawing& pages, const std::string& documentName) override;
};

} // namespace dorvan::test
