#include "export/picture_commands.h"

#include "export/frmPicture.h"
#include "files/disk.h"
#include "files/file_dialogs.h"
#include "numbers/runtime_failure.h"
#include "numbers/text.h"
#include "session/busy.h"
#include "session/status_bar.h"
#include "view/frmDiagram.h"

#include <fmt/format.h>

#include <new>
#include <optional>
#include <stdexcept>

namespace dorvan {

namespace {

const FileFilters& PictureFilters() {
    static const FileFilters filters = {
        {"SVG (*.svg)", "*.svg"}, {"PDF (*.pdf)", "*.pdf"}, {"PNG (*.png)", "*.png"}};
    return filters;
}

void Tell(Session& session, const std::string& what, const std::string& why) {
    session.platform.messages.show(
        {.Text = fmt::format("{}\r\n{}", what, why), .Icon = MessageIcon::Critical});
}

// Nothing after a message.
std::optional<Drawing> Drawn(Session& session, const DiagramDocument& diagram, DiagramPicture what) {
    try {
        return DrawPicture(diagram, what, session.platform.fonts, session.DecimalSeparator);
    } catch (const RuntimeFailure& failure) {
        Tell(session, "This diagram has no such picture.", failure.what());
        return {};
    }
}

} // namespace

void SavePicture(Session& session, std::int16_t slot) {
    if (RefusedWhileBusy(session) || !Accepted<frmPicture>(session)) return;
    const auto& dialog = session.forms.Load<frmPicture>(session);
    const auto drawing = Drawn(session, DiagramWindow(session, slot).Document(), dialog.What());
    if (!drawing) return;
    const std::string path = PickFileToSave(session, PictureFilters(), " - Save picture", "svg");
    if (path.empty()) return;
    if (!IsPictureName(path)) return Tell(session, path, "A picture is a file .svg, .pdf or .png.");
    try {
        const WaitCursor waiting(session.platform);
        ReplaceFile(path, session.Of<PictureWriter>().Bytes(*drawing, path, dialog.Scale));
        StatusText(session) = "Saved: " + path;
    } catch (const FileError& error) {
        Tell(session, path, error.what());
    } catch (const std::bad_alloc&) {
        Tell(session, path, "The picture is too large for the memory.");
    }
}

void CopyPicture(Session& session, std::int16_t slot) {
    if (RefusedWhileBusy(session) || !Accepted<frmPicture>(session)) return;
    const auto& dialog = session.forms.Load<frmPicture>(session);
    auto drawing = Drawn(session, DiagramWindow(session, slot).Document(), dialog.What());
    if (!drawing) return;
    try {
        session.platform.clipboard.clear();
        session.platform.clipboard.put(Scaled(std::move(*drawing), dialog.Scale));
        StatusText(session) = "The picture is on the clipboard.";
    } catch (const std::exception& error) {
        Tell(session, "The picture could not be copied.", error.what());
    }
}

} // namespace dorvan
