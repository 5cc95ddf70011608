#pragma once

#include "platform/child_window.h"
#include "platform/scroll_bar.h"
#include "session/session.h"

#include <string>
#include <string_view>

namespace dorvan {

// The window that shows the bitmap of a diagram, a snapshot without a link back. Closing asks nothing, and
// the slot is never released.
class frmBMP : public ChildWindow {
public:
    static constexpr std::string_view Kind = DocumentKind::Bitmap;
    static constexpr int BarThickness = 255; // twips, of both scroll bars

    explicit frmBMP(Session& session);

    Picture Bmp{"Bmp"};
    TextBox XBmp{"XBmp"}; // the picture's width in twips; hidden
    TextBox YBmp{"YBmp"}; // its height
    ScrollBar HScroll1{"HScroll1"};
    ScrollBar VScroll1{"VScroll1"};
    Frame Picture1{"Picture1"};                  // fills the corner between the bars
    CommandButton Command4{"Command4", "&Font"}; // has no action, and is not shown

    Area BmpArea;
    Area HScroll1Area;
    Area VScroll1Area;
    Area Picture1Area;

    void ShowPicture(Drawing picture);

    void BitmapClip(); // passes over a failure of the clipboard

    // Saves under the path, in lower case; an empty one asks for it. The extension chooses the format: .bmp,
    // .tif or .png; with another nothing is written and nothing said. The caption takes the path in any case.
    void SaveBMP(const std::string& path);

    void HScroll1_Change();
    void VScroll1_Change();

    void Form_Activate() override;
    void Form_Deactivate() override;
    void Form_Unload() override;
    void Form_Resize() override;

private:
    void WriteImage(const std::string& target);

    Session& session_;
    std::string chosenPath_; // as the dialog gave it; the caption shows it in lower case
};

frmBMP& BitmapWindow(Session& session, std::int16_t slot);

} // namespace dorvan
