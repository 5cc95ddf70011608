#include "import/import_commands.h"

#include "distance/frmMacierz.h"
#include "files/disk.h"
#include "files/reading.h"
#include "import/frmImpMatrix.h"
#include "import/separators.h"
#include "import/text_matrix.h"
#include "numbers/number_text.h"
#include "numbers/rounding.h"
#include "numbers/text.h"
#include "session/busy.h"
#include "session/opening.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>

namespace dorvan {

namespace {

std::optional<NamedDistances> ReadMatrix(Session& session, const std::string& path,
                                         const TextMatrixForm& form, const TextCodes& codes) {
    std::optional<NamedDistances> matrix;
    Message refusal{.Text = {}, .Icon = MessageIcon::Exclamation};
    const bool read = ReadsWithoutFault(session, path, Wait::No, [&] {
        const std::string text = TextOfFile(LoadFile(path), codes);
        const TextMatrix reader(text, form);
        if (reader.Size() > session.MaxDiagramRecords) {
            refusal.Text = fmt::format("Matrix > {}", session.MaxDiagramRecords);
            return;
        }
        try {
            matrix = reader.Read(session.DecimalSeparator);
        } catch (const TooManyLines&) {
            refusal.Text =
                "Invalid matrix: height <> width, or option: Record names in first column is invalid.";
            refusal.Title = "Import matrix";
        }
    });
    if (read && !matrix) session.platform.messages.show(refusal);
    return matrix;
}

// In twips, by the longest text of a value.
int ColumnWidth(const FloatTable& distances, char decimalSeparator) {
    static constexpr double factors[] = {1.0, 1.3, 1.5, 1.75, 2.0, 2.3, 2.5, 2.75}; // below 6, 6, ..., 12 on
    std::size_t longest = 0;
    for (const float distance : distances.Cells())
        longest = std::max(longest, CharacterCount(PlainText(distance, decimalSeparator)));
    return RoundToInt32(frmMacierz::BaseColumnWidth * factors[std::clamp<std::size_t>(longest, 5, 12) - 5]);
}

void FillDocument(const Session& session, DistanceMatrix& document) {
    document.Size = NarrowToInt16(session.tables.RecordNames.Count());
    document.Names = session.tables.RecordNames;
    document.Cells = Array2<std::string>(document.Size, document.Size);
    std::transform(session.tables.DistanceValues.Cells().begin(), session.tables.DistanceValues.Cells().end(),
                   document.Cells.Cells().begin(),
                   [&](float distance) { return PlainText(distance, session.DecimalSeparator); });
}

} // namespace

void ImportMatrixFile(Session& session) {
    if (RefusedWhileBusy(session) || !Accepted<frmImpMatrix>(session)) return;
    const auto& dialog = session.forms.Load<frmImpMatrix>(session);
    auto matrix = ReadMatrix(session, dialog.ImpMatrixPath,
                             {.Separator = SeparatorOf(dialog.ImpMatrixSeparator),
                              .FirstColumnNames = dialog.ImpMatrixFirstColumn,
                              .Precision = dialog.ImpMatrixPrecision},
                             dialog.Codes());
    if (!matrix) return;
    session.tables.RecordNames = std::move(matrix->RecordNames);
    session.tables.DistanceValues = std::move(matrix->Distances);
    const std::string description(TrimSpaces("Matrix from: " + dialog.ImpMatrixPath));
    OpenDocumentWindow<frmMacierz>(
        session, {.Caption = "[MATRIX]: Imported matrix"}, [&](frmMacierz& window) {
            FillDocument(session, window.Document());
            window.PresentDistances(session.tables.DistanceValues, description,
                                    ColumnWidth(session.tables.DistanceValues, session.DecimalSeparator));
        });
}

} // namespace dorvan
