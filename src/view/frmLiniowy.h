#pragma once

#include "platform/controls.h"
#include "session/session.h"

#include <cstdint>

namespace dorvan {

// The linear graph of a diagram: the distances between following records. It draws once an opening, at the
// resize that comes with its showing; later resizes keep the picture.
class frmLiniowy : public Form {
public:
    static constexpr std::int16_t DrawAtNextResize = 999;

    explicit frmLiniowy(Session& session) : Form("frmLiniowy", "Linear graph"), session_(session) {}

    Label Label1{"Label1", "Distance between following records in diagram."};
    Picture Picture1{"Picture1"};
    CommandButton Command1{"Command1", "O&K"};

    std::int16_t LinearGraphIndex = 0; // the diagram's slot
    std::int16_t GraphPending = 0;     // DrawAtNextResize, or 0

    void Command1_Click() { Hide(); }

    void Form_Resize() override;

private:
    Session& session_;
};

} // namespace dorvan
