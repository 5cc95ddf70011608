#include "view/frmHistogram.h"

#include "numbers/number_text.h"
#include "numbers/text.h"
#include "platform/keys.h"
#include "view/histogram_drawing.h"

#include <algorithm>
#include <string_view>

namespace dorvan {

namespace {

constexpr int LimitCharacters = 8;

// Fewer decimals for longer numbers.
std::string_view PatternFor(float fourthLimit) {
    if (fourthLimit < 100) return "#0.000";
    return fourthLimit < 1000 ? "#0.00" : "#0.0";
}

} // namespace

frmHistogram::frmHistogram(Session& session) : Dialog("frmHistogram", "Histogram", session) {
    for (TextBox* box : Boxes()) box->MaxLength = LimitCharacters;
}

DiagramDocument& frmHistogram::Document() { return session_.DiagramDocuments.at(std::size_t(Index)); }

void frmHistogram::Form_Load() {
    Option1.Value = true;
    Index = session_.NewWindowIndex;
    const auto& limits = Document().SectionLimits;
    for (int number = 1; TextBox * box : Boxes())
        box->Text = FormatPattern(limits(number++), PatternFor(limits(4)), session_.DecimalSeparator);
    Draw(limits);
}

void frmHistogram::Enter(const std::array<std::string, 4>& limits) {
    const auto boxes = Boxes();
    for (std::size_t place = 0; place < boxes.size(); ++place) boxes[place]->Text = limits[place];
}

void frmHistogram::Draw(const Array1<float>& limits) {
    Counts = CountSections(Document(), limits);
    if (Option2.Value) Counts.Accumulate();
    Picture1.Show(HistogramDrawing(BarHeights(Counts), Option2.Value, session_.platform.fonts));
}

bool frmHistogram::Refuse(const char* text, MessageIcon icon) {
    session_.platform.messages.show({.Text = text, .Icon = icon});
    return false;
}

bool frmHistogram::ReadLimits(Order order, Array1<float>& limits) {
    for (const TextBox* box : Boxes())
        if (TrimSpaces(box->Text).empty())
            return Refuse("Limits of all sections are needed!", MessageIcon::None);
    bool allNumbers = true;
    for (int number = 1; const TextBox* box : Boxes()) {
        try {
            limits(number++) = ParseSheetNumber(box->Text, session_.DecimalSeparator);
        } catch (const RuntimeFailure&) {
            allNumbers = false;
        }
    }
    if (!allNumbers) return Refuse("Invalid number!");
    const auto& values = limits.Cells();
    if (std::count(values.begin(), values.end(), 0.0f) == 4) return Refuse("Error - all limits = 0!");
    const auto wrong = [order](float lower, float upper) {
        return order == Order::Strict ? lower >= upper : lower > upper;
    };
    if (std::adjacent_find(values.begin(), values.end(), wrong) != values.end())
        return Refuse("Invalid section limits!");
    return true;
}

void frmHistogram::Command1_Click() {
    Array1<float> limits(4);
    if (!ReadLimits(Order::Strict, limits)) return;
    Document().SectionLimits = limits;
    Close(DialogResult::Accepted);
}

void frmHistogram::Command2_Click() { Close(DialogResult::Cancelled); }

void frmHistogram::Command3_Click() {
    Array1<float> limits(4);
    if (ReadLimits(Order::EqualNeighboursToo, limits)) Draw(limits);
}

// Enter is dropped as well.
void frmHistogram::FilterKey(int& keyAscii) {
    constexpr std::string_view taken = "+-.0123456789";
    const bool passes = keyAscii == key::Backspace ||
                        (keyAscii > 0 && keyAscii < 128 && taken.find(char(keyAscii)) != taken.npos);
    if (!passes) keyAscii = key::None;
}

} // namespace dorvan
