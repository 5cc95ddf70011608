#include "files/file_dialogs.h"

#include "numbers/text.h"

#include <fmt/format.h>

namespace dorvan {

namespace {

constexpr std::size_t LongestPath = 255; // characters

FileRequest RequestOf(const Session& session, const FileFilters& filters, std::string_view title,
                      std::string_view extension) {
    return {.Title = fmt::format("Dorvan{}", title),
            .Filters = filters,
            .Extension = std::string(extension),
            .StartFolder = session.AppPath};
}

std::string Accepted(Session& session, std::string path) {
    if (CharacterCount(path) <= LongestPath) return path;
    session.platform.messages.show(
        {.Text = fmt::format("The path is longer than {} characters: {}", LongestPath, path),
         .Icon = MessageIcon::Exclamation});
    return {};
}

} // namespace

FileFilters FileFiltersOf(std::string_view kind, std::string_view extension) {
    const std::string wildcard = fmt::format("*.{}", extension);
    return {{fmt::format("{} file ({})", kind, wildcard), wildcard}, {"all (*.*)", "*.*"}};
}

FileFilters DataFileFilters() { return FileFiltersOf("mdt", "mdt"); }
FileFilters MatrixFileFilters() { return FileFiltersOf("mtx", "mtx"); }
FileFilters DiagramFileFilters() { return FileFiltersOf("dgr", "dgr"); }
FileFilters DiagramFileSaveFilters() { return FileFiltersOf("diagram", "dgr"); }

std::string PickFileToOpen(Session& session, const FileFilters& filters, std::string_view title) {
    return Accepted(session, session.platform.files.toOpen(RequestOf(session, filters, title, {})));
}

std::string PickFileToSave(Session& session, const FileFilters& filters, std::string_view title,
                           std::string_view extension) {
    return Accepted(session, session.platform.files.toSave(RequestOf(session, filters, title, extension)));
}

} // namespace dorvan
