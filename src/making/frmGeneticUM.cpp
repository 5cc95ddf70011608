#include "making/frmGeneticUM.h"

#include "making/ordering_options.h"
#include "numbers/number_text.h"
#include "numbers/runtime_failure.h"
#include "platform/number_field.h"

namespace dorvan {

frmGeneticUM::frmGeneticUM(Session& session) : Dialog("frmGeneticUM", "Ravelin", session) {}

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
    FilterNumberKey(session_.platform.keyboard, keyAscii, &field == &Text11 ? "." : "");
}

// A text that does not convert leaves its value unchanged.
bool frmGeneticUM::Store(const Row& row) {
    const char separator = session_.DecimalSeparator;
    auto& options = session_.Of<OrderingOptions>();
    try {
        if (row.Value)
            options.*row.Value = StrictInt16(row.Field->Text, separator);
        else
            options.MatrixConversionCoefficient = ParseSheetNumber(row.Field->Text, separator);
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
    session_.Of<OrderingOptions>().WorkCancelled = false;
    Close(DialogResult::Accepted);
}

} // namespace dorvan
