#include "cli/cli_platform.h"

#include "distance/frmCustomized.h"
#include "distance/frmOpcjeMacierzy.h"
#include "distance/measure_lists.h"
#include "making/frmPrzedzal.h"
#include "numbers/text.h"

#include <algorithm>
#include <ctime>
#include <map>

namespace dorvan::cli {

namespace {

std::string OneLine(std::string_view text) { return ReplaceAll(ReplaceAll(text, "\r\n", " "), "\n", " "); }

// Chooses the measure in the two lists that both options dialogs have.
template <class Options> void ChooseMeasure(Options& form, const Choices& choices) {
    if (choices.measure.empty()) return;
    const MeasurePlace place = PlaceOfMeasure(MeasureNumber(choices.measure).value());
    form.cboData.ListIndex = place.DataKind;
    form.cboData_Click();
    form.Combo1.ListIndex = place.Position;
}

void Fill(frmOpcjeMacierzy& form, const Choices& choices) {
    ChooseMeasure(form, choices);
    form.Command2_Click();
}

void Fill(frmCustomized& form, const Choices& choices) {
    if (!choices.parameterP.empty()) form.Text1.Text = choices.parameterP;
    if (!choices.parameterR.empty()) form.Text2.Text = choices.parameterR;
    form.Command1_Click();
}

void Fill(frmPrzedzal& form, const Choices& choices) {
    ChooseMeasure(form, choices);
    if (choices.type == "greyscale") form.Option1_Click();
    if (choices.type == "dots") form.Option2_Click();
    if (choices.type == "classic") form.Option3_Click();
    if (choices.order == "none") form.Option6_Click();
    if (choices.order == "simple") form.Option7_Click();
    if (choices.order == "genetic") form.Option8_Click();
    if (choices.order == "ravelin") form.Option9_Click();
    form.Command3_Click();
}

} // namespace

Answer CliPlatform::show(const Message& message) {
    messages.push_back(OneLine(message.Text));
    if (message.Buttons != MessageButtons::Ok)
        throw Refusal("a question that nobody can answer: " + messages.back());
    return Answer::Ok;
}

void CliPlatform::showModal(Form& form) {
    form.Visible = true;
    form.Form_Show();
    if (auto* matrix = dynamic_cast<frmOpcjeMacierzy*>(&form)) Fill(*matrix, choices);
    if (auto* customized = dynamic_cast<frmCustomized*>(&form)) Fill(*customized, choices);
    if (auto* diagram = dynamic_cast<frmPrzedzal*>(&form)) Fill(*diagram, choices);
    if (!form.Visible) return;
    const std::string reason =
        messages.empty() ? "the dialog " + form.Name + " has no answer" : messages.back();
    form.CancelCommand();
    throw Refusal(reason);
}

void CliPlatform::show(Form& form) { running_ = &form; }

void CliPlatform::close(Form&) { running_ = nullptr; }

void CliPlatform::update(Form&) {}

int CliPlatform::run() { return 1; }

double CliPlatform::seconds() {
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    tm local{};
    localtime_r(&now.tv_sec, &local);
    return local.tm_hour * 3600 + local.tm_min * 60 + local.tm_sec + static_cast<double>(now.tv_nsec) / 1e9;
}

} // namespace dorvan::cli
