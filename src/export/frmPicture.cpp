#include "export/frmPicture.h"

#include "numbers/number_text.h"
#include "numbers/runtime_failure.h"
#include "platform/number_field.h"

#include <fmt/format.h>

namespace dorvan {

DiagramPicture frmPicture::What() const {
    if (Option2.Value) return DiagramPicture::Histogram;
    if (Option3.Value) return DiagramPicture::CumulativeHistogram;
    return Option4.Value ? DiagramPicture::LinearGraph : DiagramPicture::Diagram;
}

void frmPicture::Text1_KeyPress(int& keyAscii) { FilterNumberKey(session_.platform.keyboard, keyAscii); }

void frmPicture::Command1_Click() {
    int percent = 0;
    try {
        percent = StrictInt16(Text1.Text, session_.DecimalSeparator);
    } catch (const RuntimeFailure&) {
        // 0 is refused
    }
    if (percent < LeastPercent || percent > MostPercent) {
        session_.platform.messages.show(
            {.Text = fmt::format("The size must be {} to {} percent.", LeastPercent, MostPercent),
             .Icon = MessageIcon::Exclamation});
        return;
    }
    Scale = percent / 100.0;
    Close(DialogResult::Accepted);
}

} // namespace dorvan
