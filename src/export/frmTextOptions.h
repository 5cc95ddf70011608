#pragma once

#include "export/separator_dialog.h"

namespace dorvan {

// The dialog "Export text options": how a matrix goes out as text, `MatrixTextSeparator`.
class frmTextOptions : public SeparatorDialog {
public:
    explicit frmTextOptions(Session& session)
        : SeparatorDialog("frmTextOptions", "Export text options", session, &Session::MatrixTextSeparator,
                          "semicolon (;)", "comma (,)") {}
};

} // namespace dorvan
