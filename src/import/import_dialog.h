#pragma once

#include "files/file_dialogs.h"
#include "import/text_codes.h"
#include "session/dialog.h"

#include <string_view>

namespace dorvan {

// What the dialogs of the three imports share.
class ImportDialog : public Dialog {
public:
    using Dialog::Dialog;

    // The code page of files was asked for: it is not looked at whether a file is UTF-8.
    bool CodePageForced = false;

    // How this run reads what other programs wrote.
    TextCodes Codes() const { return {session_.codePage, CodePageForced}; }

protected:
    // Asks for a file and puts its path into the label; a cancelled question leaves what stands there.
    void ChooseFile(Label& path, const FileFilters& filters, std::string_view title);

    // False after a message: no file is chosen.
    bool HasFile(const Label& path);

    // A refusal.
    void Tell(std::string_view text);
};

} // namespace dorvan
