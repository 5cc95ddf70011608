#pragma once

#include "platform/controls.h"
#include "session/session.h"

#include <cstdint>

namespace dorvan {

// Chooses the type of a finished diagram. OK writes it into the document.
class frmDiagramType : public Form {
public:
    explicit frmDiagramType(Session& session)
        : Form("frmDiagramType", "Select diagram type"), session_(session) {}

    Frame Frame2{"Frame2", "Diagram type:"};
    OptionButton Option1{"Option1", "greyscale"};
    OptionButton Option2{"Option2", "dots"};
    OptionButton Option3{"Option3", "classic"};
    CommandButton OKButton{"OKButton", "OK"};
    CommandButton CancelButton{"CancelButton", "Cancel"};

    std::int16_t Index = 0; // the diagram's slot

    void Enter(std::int16_t type);

    void OKButton_Click();
    void CancelButton_Click() { Hide(); }

    void Form_Load() override;
    void CancelCommand() override { CancelButton_Click(); }

private:
    std::int16_t& Type() { return session_.DiagramDocuments.at(std::size_t(Index)).DiagType; }

    Session& session_;
};

} // namespace dorvan
