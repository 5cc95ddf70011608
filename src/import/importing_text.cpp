#include "import/import_commands.h"

#include "files/disk.h"
#include "files/reading.h"
#include "import/frmImportText.h"
#include "import/imported_sheet.h"
#include "import/separators.h"
#include "numbers/text.h"
#include "session/busy.h"
#include "session/opening.h"
#include "sheet/frmNotePad.h"

#include <fmt/format.h>

#include <optional>
#include <utility>

namespace dorvan {

namespace {

constexpr int MostVariables = 100; // constants of this import, apart from what a diagram takes
constexpr int MostRecords = 250;

bool RefusesSize(Session& session, const TextTable& table) {
    const char* refusal = table.Variables() > MostVariables ? "Over 100 variables!"
                          : table.Records() > MostRecords   ? "Over 250 records!"
                                                            : nullptr;
    if (refusal) session.platform.messages.show({.Text = refusal, .Icon = MessageIcon::Critical});
    return refusal;
}

std::optional<TableOfRecords> ReadTable(Session& session, const std::string& path, const TextTableForm& form,
                                        const TextCodes& codes) {
    std::optional<TableOfRecords> table;
    ReadsWithoutFault(session, path, Wait::No, [&] {
        const std::string text = TextOfFile(LoadFile(path), codes);
        const TextTable reader(text, form);
        if (!RefusesSize(session, reader)) table = reader.Read(session.DecimalSeparator);
    });
    return table;
}

void NameVariables(Names& names) {
    for (std::int32_t variable = 1; variable <= names.Count(); ++variable)
        if (names(variable).empty()) names(variable) = "VAR " + SignedText(variable);
}

} // namespace

void ImportTextFile(Session& session) {
    if (RefusedWhileBusy(session) || !Accepted<frmImportText>(session)) return;
    const auto& dialog = session.forms.Load<frmImportText>(session);
    auto table = ReadTable(session, dialog.ImportPath,
                           {.Separator = SeparatorOf(session.MatrixTextSeparator),
                            .FirstRowNames = dialog.ImportFirstRowNames,
                            .FirstColumnNames = dialog.ImportFirstColumnNames},
                           dialog.Codes());
    if (!table) return;
    const WaitCursor wait(session.platform);
    NameVariables(table->VariableNames);
    HandOver(session, std::move(*table));
    const std::int16_t slot = FindFreeDataSlot(session);
    // No colon stands in this caption, unlike in those of other untitled documents.
    OpenDocumentWindow<frmNotePad>(session,
                                   {.Caption = fmt::format("[DATA]: Untitled{}", slot), .Slot = slot},
                                   [](frmNotePad& sheet) { sheet.Present({}); });
}

} // namespace dorvan
