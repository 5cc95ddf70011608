#include "export/modFreeImage.h"
#include "files/disk.h"
#include "files/file_dialogs.h"
#include "numbers/text.h"
#include "session/busy.h"
#include "view/frmBMP.h"

#include <utility>

namespace dorvan {

namespace {

FileFilters ImageFileFilters() {
    return {{"BMP (*.bmp)", "*.bmp"}, {"TIFF (*.tif)", "*.tif"}, {"PNG (*.png)", "*.png"}};
}

// The name in small letters, in the folder as it was chosen: where case tells folders apart, one in small
// letters would be another one.
std::string TargetOf(const std::string& path) {
    const std::size_t name = path.rfind('/') + 1; // 0 without a folder
    return path.substr(0, name) + LowerCase(path.substr(name));
}

} // namespace

// What FreeImage or the disk refuses is not told.
void frmBMP::SaveBMP(const std::string& path) {
    if (RefusedWhileBusy(session_)) return;
    std::string chosen =
        path.empty() ? PickFileToSave(session_, ImageFileFilters(), " - Save bitmap As", "*.bmp") : path;
    if (chosen.empty()) return;
    const std::string shown = LowerCase(chosen);
    if (path.empty() || shown != LowerCase(chosenPath_)) chosenPath_ = std::move(chosen);
    WriteImage(TargetOf(chosenPath_));
    if (session_.ActiveWindow) session_.ActiveWindow->Caption = "[BITMAP]: " + shown;
}

void frmBMP::WriteImage(const std::string& target) {
    const WaitCursor waiting(session_.platform);
    std::string& silentFailure = session_.Of<FileValues>().SilentFailure;
    silentFailure.clear();
    try {
        const auto format = ImageFormatOf(target);
        const std::string bytes = EncodedImage(session_.platform.raster.pixelsOf(Bmp.Shown()), format);
        if (format) ReplaceFile(target, bytes);
    } catch (const NoDib&) {
        session_.platform.messages.show(
            {.Text = "Error: FreeImage_DIB_From_BMP", .Icon = MessageIcon::Critical, .Title = "Save bitmap"});
    } catch (const NoEncoding& fault) {
        silentFailure = fault.what();
    } catch (const FileError& error) {
        silentFailure = error.what();
    }
}

} // namespace dorvan
