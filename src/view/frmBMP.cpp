#include "view/frmBMP.h"

#include "numbers/rounding.h"
#include "session/busy.h"
#include "session/registry.h"
#include "session/window_switches.h"

#include <fmt/format.h>

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace dorvan {

frmBMP::frmBMP(Session& session) : ChildWindow("frmBMP"), session_(session) {
    XBmp.Visible = YBmp.Visible = Command4.Visible = false;
}

void frmBMP::ShowPicture(Drawing picture) {
    XBmp.Text = fmt::format("{}", picture.Width);
    YBmp.Text = fmt::format("{}", picture.Height);
    Bmp.Show(std::move(picture));
}

void frmBMP::BitmapClip() {
    if (RefusedWhileBusy(session_)) return;
    const WaitCursor waiting(session_.platform);
    try {
        session_.platform.clipboard.clear();
        session_.platform.clipboard.put(Bmp.Shown());
    } catch (const std::runtime_error&) { // the clipboard stays as it is
    }
}

// The picture goes back to its upper left corner. The bars' ends are whole twips; they may pass what 16 bits
// hold, or the end of a large picture would be out of reach.
void frmBMP::Form_Resize() {
    if (Mode == WindowMode::Minimized || ScaleHeight <= 0) return;
    const int visibleWidth = std::max(ScaleWidth - BarThickness, 0);
    const int visibleHeight = std::max(ScaleHeight - BarThickness, 0);
    const int width = RoundToInt32(Bmp.Shown().Width);
    const int height = RoundToInt32(Bmp.Shown().Height);
    BmpArea = {0, 0, width, height};
    VScroll1Area = {visibleWidth, 0, BarThickness, visibleHeight};
    HScroll1Area = {0, visibleHeight, visibleWidth, BarThickness};
    HScroll1.Max = std::max(width - visibleWidth, 0);
    VScroll1.Max = std::max(height - visibleHeight, 0);
    HScroll1.LargeChange = visibleWidth;
    VScroll1.LargeChange = visibleHeight;
    HScroll1.Value = VScroll1.Value = 0;
    Picture1Area = {visibleWidth, visibleHeight, BarThickness, BarThickness};
}

void frmBMP::HScroll1_Change() { BmpArea.Left = -HScroll1.Value; }

void frmBMP::VScroll1_Change() { BmpArea.Top = -VScroll1.Value; }

void frmBMP::Form_Activate() {
    TypeOfForm = DocumentKind::Bitmap;
    SwitchCommands(session_.mainWindow, DocumentKind::Bitmap, WindowEvent::Activated);
}

void frmBMP::Form_Deactivate() {
    SwitchCommands(session_.mainWindow, DocumentKind::Bitmap, WindowEvent::Deactivated);
}

// The slot stays taken.
void frmBMP::Form_Unload() {
    SwitchCommands(session_.mainWindow, DocumentKind::Bitmap, WindowEvent::Unloaded);
}

frmBMP& BitmapWindow(Session& session, std::int16_t slot) {
    return WindowInSlot<frmBMP>(session.BitmapWindows, slot);
}

} // namespace dorvan
