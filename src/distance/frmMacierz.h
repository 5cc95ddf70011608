#pragma once

#include "platform/child_window.h"
#include "platform/grid.h"
#include "session/session.h"

#include <string>

namespace dorvan {

// The window that shows one matrix of distances. The matrix itself is `MatrixDocuments(Index)`; the grid
// shows its cells through "###0.000" and is read-only.
class frmMacierz : public ChildWindow {
public:
    explicit frmMacierz(Session& session);

    TextBox BottomText{"BottomText"}; // the description
    Grid Siatka{"Siatka"};

    DistanceMatrix& Document();

    // Builds the grid from the document and shows the description.
    void Present(const std::string& description) override;

    void BottomText_Change(); // after any change of the text by the user
    void BottomText_KeyPress(int& keyAscii);

    // Saves under the path; an empty one asks for it.
    void SaveMatrix(const std::string& path);
    void SaveMatrixNew(const std::string& path);

    void Form_Activate() override;
    void Form_Deactivate() override;
    bool Form_QueryUnload() override;
    void Form_Unload() override;
    void Form_Resize() override;

private:
    Session& session_;
};

frmMacierz& MatrixWindow(Session& session, std::int16_t slot);

} // namespace dorvan
