#include "session/frmAbout.h"

namespace dorvan {

frmAbout::frmAbout(Session& session) : Form("frmAbout", "About Dorvan") {
    lblVersion.Caption = MainCaption(session.version);
}

} // namespace dorvan
