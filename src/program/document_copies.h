#pragma once

#include "files/file_text.h"
#include "session/session.h"
#include "sheet/sheet_table.h"

#include <optional>
#include <string>
#include <variant>

// Open documents as values, apart from their windows: what copies of them are made of.
namespace dorvan {

// A document as it stands, and what tells it from others. Nothing in it belongs to the session, so that
// another thread may work on it.
struct DocumentSnapshot {
    std::string Kind;    // a DocumentKind
    std::string Caption; // of its window
    std::string Path;    // of its own file; empty when it has none
    std::string Description;
    std::variant<SheetTable, DistanceMatrix, DiagramDocument> Content = DistanceMatrix();
    FileText Text;
};

// Nothing for a window that holds no such document.
std::optional<DocumentSnapshot> SnapshotOf(const Session& session, const ChildWindow& window);

// "mdt", "mtx" or "dgr".
std::string_view ExtensionOf(const DocumentSnapshot& document);

// The bytes that a save would write. Fails with a RuntimeFailure for what no file can hold.
std::string ComposeAsSaved(const DocumentSnapshot& document);

// The same, but that it always opens again: a cell of a sheet that is no number (one being typed, one of a
// new record) becomes what it evaluates to.
std::string ComposeReadable(const DocumentSnapshot& document);

// The document's own file holds it: the bytes of a save, or what this run would save had it opened the file
// now, so that a file in the style of another locale or an older one holds its document too. Whatever is
// wrong with the file, it then does not.
bool IsHeldByFile(const DocumentSnapshot& document);

} // namespace dorvan
