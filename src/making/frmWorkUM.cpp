#include "making/frmWorkUM.h"

#include "making/elapsed_text.h"
#include "making/ordering_options.h"
#include "numbers/number_text.h"

#include <fmt/format.h>

#include <optional>
#include <string>

namespace dorvan {

namespace {

std::string Counter(const std::optional<std::int32_t>& count) {
    return count ? fmt::format("{}", *count) : std::string();
}

template <class Float> std::string Figure(const std::optional<Float>& value, char separator) {
    return value ? FormatPattern(*value, "###0.00000", separator) : std::string();
}

} // namespace

frmWorkUM::frmWorkUM(Session& session) : ProgressWindow("frmWorkUM", "At work..."), session_(session) {}

void frmWorkUM::ShowProgress(const RavelinProgress& progress, float seconds) {
    const char separator = session_.DecimalSeparator;
    Generacje.Caption = Counter(progress.Generation);
    lblChangesG.Caption = Counter(progress.GenerationsLost);
    Mutacje.Caption = Counter(progress.Mutation);
    lblChangeM.Caption = Counter(progress.MutationsLost);
    lblFunkcja.Caption = Figure(progress.Base, separator);
    lblActualUM.Caption = Figure(progress.Trial, separator);
    BestUm.Caption = Figure(progress.BestUm, separator);
    if (progress.TimeDue) InfoTime.Caption = ElapsedText(seconds, separator);
}

std::string frmWorkUM::onOneLine() const {
    return fmt::format("generation {}  mutation {}  UM {}  best {}  {}", Generacje.Caption, Mutacje.Caption,
                       lblFunkcja.Caption, BestUm.Caption, InfoTime.Caption);
}

void frmWorkUM::Command1_Click() {
    session_.Of<OrderingOptions>().WorkCancelled = true;
    session_.platform.forms.close(*this);
}

} // namespace dorvan
