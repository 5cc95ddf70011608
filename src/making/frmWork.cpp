#include "making/frmWork.h"

#include "making/elapsed_text.h"
#include "making/ordering_options.h"
#include "numbers/number_text.h"

#include <fmt/format.h>

namespace dorvan {

frmWork::frmWork(Session& session) : ProgressWindow("frmWork", "At work..."), session_(session) {}

void frmWork::ShowProgress(const GeneticProgress& progress, float seconds) {
    const char separator = session_.DecimalSeparator;
    InfoTime.Caption = ElapsedText(seconds, separator);
    InfoString.Caption = FormatPattern(progress.Percent, "#0.0", separator) + " %";
    lblFunkcja.Caption = FormatPattern(progress.Fitness, "###0.000", separator);
    Procent1.Width = progress.Percent / 100.0 * Procent.Width;
}

std::string frmWork::onOneLine() const {
    return fmt::format("{}  {}  F = {}", InfoString.Caption, InfoTime.Caption, lblFunkcja.Caption);
}

void frmWork::ShowEnd() { InfoString.Caption = "100 %"; }

void frmWork::Command1_Click() {
    session_.Of<OrderingOptions>().WorkCancelled = true;
    session_.platform.forms.close(*this);
}

} // namespace dorvan
