#include "distance/frmOpcjeMacierzy.h"

#include "distance/distance.h"
#include "distance/frmCustomized.h"
#include "distance/measures.h"

namespace dorvan {

frmOpcjeMacierzy::frmOpcjeMacierzy(Session& session) : Dialog("frmOpcjeMacierzy", "Matrix", session) {}

void frmOpcjeMacierzy::Form_Load() {
    cboData.List = DataKinds();
    cboData.ListIndex = 0;
    cboData_Click();
}

void frmOpcjeMacierzy::Enter(const MeasureChoices& options) {
    if (options.Measure) SelectMeasure(*options.Measure, cboData, Combo1);
}

void frmOpcjeMacierzy::cboData_Click() {
    Combo1.List = MeasuresOfKind(cboData.ListIndex);
    Combo1.ListIndex = 0;
}

void frmOpcjeMacierzy::Command2_Click() {
    session_.CurrentDistType = MeasureCode(cboData.ListIndex, Combo1.ListIndex);
    if (session_.CurrentDistType == DistanceType::Customized && !Accepted<frmCustomized>(session_)) return;
    Close(DialogResult::Accepted);
    if (session_.ActiveWindow) session_.platform.children.update(*session_.ActiveWindow);
}

} // namespace dorvan
