#include "making/frmBestOrder.h"

#include "making/best_order_run.h"

#include <fmt/format.h>

namespace dorvan {

frmBestOrder::frmBestOrder(Session& session)
    : ProgressWindow("frmBestOrder", "Best order"), session_(session) {}

void frmBestOrder::ShowProgress(const BestOrderProgress& progress) {
    lblCriterion.Caption = CriterionText(progress.Criterion, session_.DecimalSeparator);
    Procent1.Width = progress.Share * Procent.Width;
}

std::string frmBestOrder::onOneLine() const {
    return fmt::format("{} {}", Label1.Caption, lblCriterion.Caption);
}

void frmBestOrder::Command1_Click() {
    Cancelled = true;
    session_.platform.forms.close(*this);
}

} // namespace dorvan
