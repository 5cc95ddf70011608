#include "making/frmPrzedzal.h"

#include "distance/distance.h"
#include "distance/frmCustomized.h"
#include "distance/measures.h"
#include "making/making_values.h"
#include "making/ordering_method.h"
#include "numbers/number_text.h"
#include "numbers/runtime_failure.h"
#include "platform/number_field.h"

#include <algorithm>

namespace dorvan {

namespace {

// With fewer records the automatic limits are not offered.
constexpr std::int32_t FewestRecordsForAutomatic = 6;

constexpr const char* DefaultLimits[] = {"15", "30", "45", "60"};

} // namespace

frmPrzedzal::frmPrzedzal(Session& session) : Dialog("frmPrzedzal", "Czekanowski", session) {}

void frmPrzedzal::Form_Load() {
    if (session_.CurrentDiagType == 1) Option1_Click();
    if (session_.CurrentDiagType == 2) Option2_Click();
    if (session_.CurrentOrderMethod == 1) Option6_Click();
    if (session_.CurrentOrderMethod == 2) Option7_Click();
    if (session_.CurrentOrderMethod == 3) Option8_Click();
    LoadLimits();
    cboData.List = DataKinds();
    cboData.ListIndex = 0;
    cboData_Click();
    chkAuto.Value = chkAuto.Enabled =
        session_.Of<MakingValues>().DiagramRecordCount >= FewestRecordsForAutomatic;
    EnableLimits(!chkAuto.Value);
}

void frmPrzedzal::LoadLimits() {
    const auto fields = LimitFields();
    const bool anyBlank = std::ranges::any_of(fields, [](const auto* field) {
        return field->Text == "" || field->Text == " " || field->Text == "  ";
    });
    for (std::int32_t k = 1; k <= 4; ++k)
        fields[std::size_t(k - 1)]->Text =
            anyBlank ? DefaultLimits[k - 1] : PlainText(session_.SectionLimits(k), session_.DecimalSeparator);
}

void frmPrzedzal::Form_Show() {
    Frame1.Visible = !session_.DiagramFromMatrix;
    const auto& methods = session_.Of<OrderingMethods>();
    Option8.Enabled = methods.contains(3);
    Option9.Enabled = methods.contains(4);
}

void frmPrzedzal::Enter(const DiagramChoices& options) {
    if (options.Measure.Measure) SelectMeasure(*options.Measure.Measure, cboData, Combo1);
    if (options.DiagType) Choose(TypeOptions(), *TypeOptions().at(std::size_t(*options.DiagType - 1)));
    if (options.OrderMethod)
        Choose(OrderOptions(), *OrderOptions().at(std::size_t(*options.OrderMethod - 1)));
}

void frmPrzedzal::cboData_Click() {
    Combo1.List = MeasuresOfKind(cboData.ListIndex);
    Combo1.ListIndex = 0;
}

void frmPrzedzal::chkAuto_Click() {
    EnableLimits(!chkAuto.Value);
    if (!chkAuto.Value) SetFocus(Text1);
}

void frmPrzedzal::EnableLimits(bool enabled) {
    for (auto* field : LimitFields()) field->Enabled = enabled;
    for (auto* label : {&Label1, &Label2, &Label3, &Label4, &Label5, &Label6, &Label7})
        label->Enabled = enabled;
}

void frmPrzedzal::Choose(const Options& options, OptionButton& chosen) {
    for (auto* option : options) option->Value = option == &chosen;
}

void frmPrzedzal::Store(const Options& options, std::int16_t& value) {
    for (std::size_t place = 0; place < options.size(); ++place)
        if (options[place]->Value) value = static_cast<std::int16_t>(place + 1);
}

// No comma, whatever the locale.
void frmPrzedzal::FilterKey(int& keyAscii) { FilterNumberKey(session_.platform.keyboard, keyAscii, "+-."); }

void frmPrzedzal::Command3_Click() {
    session_.SectionLimits = Array1<float>(4);
    StoreChoices();
    if (chkAuto.Value)
        session_.Of<MakingValues>().AutoLimits = true;
    else if (!TypedLimitsAccepted())
        return;
    if (!FurtherDialogsAccepted()) return;
    Close(DialogResult::Accepted);
    if (session_.ActiveWindow) session_.platform.children.update(*session_.ActiveWindow);
}

void frmPrzedzal::StoreChoices() {
    if (!session_.DiagramFromMatrix)
        session_.CurrentDistType = MeasureCode(cboData.ListIndex, Combo1.ListIndex);
    Store(TypeOptions(), session_.CurrentDiagType);
    Store(OrderOptions(), session_.CurrentOrderMethod);
}

bool frmPrzedzal::TypedLimitsAccepted() {
    for (const auto* field : LimitFields())
        if (field->Text == "" || field->Text == " ")
            return Refuse("Limits of all sections are needed!", MessageIcon::None);
    if (!ParseLimits()) return Refuse("Invalid number!", MessageIcon::Critical);
    const auto& limits = session_.SectionLimits.Cells();
    if (std::ranges::all_of(limits, [](float limit) { return limit == 0; }))
        return Refuse("Error - all limits = 0!", MessageIcon::Critical);
    if (std::ranges::adjacent_find(limits, std::greater_equal<>()) != limits.end())
        return Refuse("Invalid section limits!", MessageIcon::Critical);
    session_.Of<MakingValues>().AutoLimits = false;
    return true;
}

// A text that is no number leaves its limit at 0; the ones behind it are still read.
bool frmPrzedzal::ParseLimits() {
    bool allParsed = true;
    std::int32_t k = 0;
    for (const auto* field : LimitFields()) {
        ++k;
        try {
            session_.SectionLimits(k) = ParseSheetNumber(field->Text, session_.DecimalSeparator);
        } catch (const RuntimeFailure&) {
            allParsed = false;
        }
    }
    return allParsed;
}

bool frmPrzedzal::FurtherDialogsAccepted() {
    if (!session_.DiagramFromMatrix && session_.CurrentDistType == DistanceType::Customized)
        if (!Accepted<frmCustomized>(session_)) return false;
    const auto& methods = session_.Of<OrderingMethods>();
    const auto method = methods.find(session_.CurrentOrderMethod);
    if (method != methods.end()) {
        method->second.askOptions(session_);
        if (session_.DialogOutcome == DialogResult::Cancelled) return false;
    }
    return true;
}

bool frmPrzedzal::Refuse(const std::string& text, MessageIcon icon) {
    session_.platform.messages.show({.Text = text, .Icon = icon});
    return false;
}

bool ShowDiagramOptions(Session& session) { return Accepted<frmPrzedzal>(session); }

} // namespace dorvan
