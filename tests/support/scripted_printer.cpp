#include "support/scripted_printer.h"

#include "numbers/text.h"

#include <gtest/gtest.h>

#include <fmt/format.h>

#include <stdexcept>

namespace dorvan::test {

TextExtent PrinterMeasure::extentOf(const std::string& text, const drawing::Font& font) {
    return {double(CharacterCount(text)) * font.Size * (font.Bold ? 12 : 10), font.Size * 20};
}

std::string ScriptedPrinter::deviceName() {
    if (!installed) throw std::runtime_error("no printer");
    return device;
}

void ScriptedPrinter::choose(const std::string& deviceName) {
    log.push_back("choose " + deviceName);
    device = deviceName;
}

int ScriptedPrinter::value(PrinterValue which) {
    if (!values.contains(which)) throw std::runtime_error("no such value");
    return values.at(which);
}

void ScriptedPrinter::setValue(PrinterValue which, int number) {
    log.push_back(fmt::format("set {} to {}", int(which), number));
    if (!values.contains(which) || refused.contains(which)) throw std::runtime_error("refused");
    values[which] = number;
}

bool ScriptedPrinter::showSetup(PrinterSetup& setup) {
    if (setups.empty()) {
        ADD_FAILURE() << "an unexpected setup dialog";
        throw std::logic_error("unanswered setup dialog");
    }
    const auto script = setups.front();
    setups.pop_front();
    return script(setup);
}

void ScriptedPrinter::print(const Drawing& pages, const std::string& documentName) {
    if (!failure.empty()) throw std::runtime_error(failure);
    printed.emplace_back(pages, documentName);
}

} // namespace dorvan::test
