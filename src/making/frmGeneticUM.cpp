#include "making/frmGeneticUM.h"

#include "numbers/number_text.h"
#include "numbers/runtime_failure.h"
#include "platform/keys.h"

namespace dorvan {

frmGeneticUM::frmGeneticUM(Session& session) : Form("frmGeneticUM", "Ravelin"), session_(session) {}

std::array<frmGeneticUM::Row, frmGeneticUM::RowCount> frmGeneticUM::Rows() {
    return {{{&Label1, &Text1, &OrderingOptions::SequenceChange},
             {&Label2, &Text2, &OrderingOptions::FragmentTransfer},
             {&Label3, &Text3, &OrderingOptions::SomeSingleTransfers},
             {&Label4, &Text4, &OrderingOptions::SingleTransfer},
             {&Label5, &Text5, &OrderingOptions::SomeRemoteConversions},
             {&Label6, &Text6, &OrderingOptions::RemoteConversion},
             {&Label7, &Text7, &OrderingOptions::SomeNeighbourConversions},
             {&Label8, &Text8, &OrderingOptions::NeighbourConversion},
             {&Label9, &Text9, &OrderingOptions::CriticalMutationNumber},
             {&Label10, &Text10, &OrderingOptions::CriticalGenerationNumber},
             {&Label11, &Text11, nullptr}}};
}

void frmGeneticUM::Enter(const std::map<RavelinParameter, std::string>& texts) {
    for (const auto& [parameter, text] : texts) Rows().at(std::size_t(parameter)).Field->Text = text;
}

void frmGeneticUM::Text_KeyPress(const TextBox& field, int& keyAscii) {
    const bool digit = keyAscii >= '0' && keyAscii <= '9';
    const bool pointOfCoefficient = keyAscii == '.' && &field == &Text11;
    if (digit || pointOfCoefficient || keyAscii == key::Backspace) return;
    if (keyAscii == key::Enter) session_.platform.keyboard.send("{TAB}");
    keyAscii = key::None;
}

// A text that does not convert leaves its value unchanged.
bool frmGeneticUM::Store(const Row& row) {
    const char separator = session_.DecimalSeparator;
    try {
        if (row.Value)
            session_.ordering.*row.Value = StrictInt16(row.Field->Text, separator);
        else
            session_.ordering.MatrixConversionCoefficient = ParseSheetNumber(row.Field->Text, separator);
        return true;
    } catch (const RuntimeFailure&) {
        return false;
    }
}

void frmGeneticUM::Command1_Click() {
    bool allStored = true;
    for (const Row& row : Rows()) allStored = Store(row) && allStored;
    if (!allStored) {
        session_.platform.messages.show({.Text = "Parametr error!"});
        return;
    }
    session_.DialogOutcome = 1;
    session_.ordering.WorkCancelled = false;
    Hide();
}

void frmGeneticUM::Command2_Click() {
    session_.DialogOutcome = -99;
    Hide();
}

} // namespace dorvan
