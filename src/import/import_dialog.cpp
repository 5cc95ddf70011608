#include "import/import_dialog.h"

#include <string>
#include <utility>

namespace dorvan {

void ImportDialog::ChooseFile(Label& path, const FileFilters& filters, std::string_view title) {
    if (std::string chosen = PickFileToOpen(session_, filters, title); !chosen.empty())
        path.Caption = std::move(chosen);
}

bool ImportDialog::HasFile(const Label& path) {
    if (!path.Caption.empty()) return true;
    Tell("Select file to import");
    return false;
}

void ImportDialog::Tell(std::string_view text) {
    session_.platform.messages.show(
        {.Text = std::string(text), .Icon = MessageIcon::Exclamation, .Title = "Import"});
}

} // namespace dorvan
