#pragma once

#include "platform/form.h"
#include "session/session.h"

namespace dorvan {

// The about box: what the program is, its version and its credits.
class frmAbout : public Form {
public:
    explicit frmAbout(Session& session);

    Label lblTitle{"lblTitle", "Graphical system for cluster analysis"};
    Label lblVersion{"lblVersion"}; // "Dorvan 3.3.44"
    Label lblLicence{"lblLicence", "This program is FREEWARE"};
    Label lblDisclaimer{"lblDisclaimer",
                        "This software is provided 'as is', without warranty of any kind. Author does not "
                        "guarantee that the all functions of this software will meet your requirements or "
                        "that the using of this software will be uninterrupted or error-free."};
    Label lblFreeImage{"lblFreeImage", "TIFF and PNG support: the FreeImage library"};
    Label lblSpreadsheet{"lblSpreadsheet", "Export to Excel: the program's own spreadsheet code"};
    CommandButton cmdOK{"cmdOK", "OK"};

    void cmdOK_Click() { Hide(); }
};

} // namespace dorvan
