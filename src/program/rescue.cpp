#include "program/rescue.h"

#include "files/disk.h"
#include "numbers/text.h"
#include "numbers/utf8.h"
#include "program/document_copies.h"
#include "session/registry.h"

#include <fmt/format.h>

#include <cerrno>
#include <exception>
#include <filesystem>

#include <sys/stat.h>

namespace dorvan {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t LongestStem = 150; // bytes: a file name holds 255, of which time and number need some

// The start of a text, cut between two characters.
std::string CutToBytes(const std::string& text, std::size_t most) {
    std::size_t size = 0;
    while (size < text.size()) {
        const std::size_t next = size + Utf8CharacterAt(text, size).length;
        if (next > most) break;
        size = next;
    }
    return text.substr(0, size);
}

// "[DATA]: /home/ann/iris.mdt" gives "iris", "[MATRIX]: Untitled:2" gives "untitled-2".
std::string NameOf(const std::string& caption) {
    const std::string name = fs::path(CaptionPath(caption)).stem().string();
    return CutToBytes(ReplaceAll(ReplaceAll(name, "Untitled", "untitled"), ":", "-"), LongestStem);
}

void MakeFolder(const fs::path& folder) {
    fs::create_directories(folder.parent_path());
    if (::mkdir(folder.c_str(), 0700) != 0 && errno != EEXIST) throw FileError(errno);
}

// Under the copy's name, numbered where another file has it.
std::string WriteInto(const fs::path& folder, const RescueCopy& copy) {
    MakeFolder(folder);
    const fs::path name(copy.FileName);
    for (int number = 1;; ++number) {
        const fs::path path = folder / (number == 1 ? copy.FileName
                                                    : fmt::format("{} ({}){}", name.stem().string(), number,
                                                                  name.extension().string()));
        try {
            WriteNewFile(path.string(), copy.Bytes);
            return path.string();
        } catch (const FileError& error) {
            if (error.Number() != EEXIST) throw;
        }
    }
}

void Rescue(const RescueCopy& copy, const RescueFolders& folders, RescueReport& report) {
    std::string reason = "there is no folder for it";
    for (const auto& folder : folders) {
        try {
            report.Written.push_back(WriteInto(folder, copy));
            return;
        } catch (const std::exception& failure) {
            reason = failure.what();
        }
    }
    report.Failures.push_back(fmt::format("{}: {}", copy.FileName, reason));
}

} // namespace

std::vector<RescueCopy> CopiesToRescue(const Session& session, const std::string& time,
                                       std::vector<std::string>& failures) {
    std::vector<RescueCopy> copies;
    for (const auto& window : session.Children) {
        try {
            const auto document = SnapshotOf(session, *window);
            if (!document || IsHeldByFile(*document)) continue;
            copies.push_back({fmt::format("{} {}.{}", NameOf(window->Caption), time, ExtensionOf(*document)),
                              ComposeReadable(*document)});
        } catch (const std::exception& failure) {
            failures.push_back(fmt::format("{}: {}", window->Caption, failure.what()));
        }
    }
    return copies;
}

RescueFolders RescueFoldersOf(const std::string& documentsFolder, const std::string& stateFolder) {
    return {(fs::path(documentsFolder) / "Dorvan rescued documents").string(),
            (fs::path(stateFolder) / "rescued").string()};
}

RescueReport RescueDocuments(const Session& session, const RescueFolders& folders, const std::string& time) {
    RescueReport report;
    for (const auto& copy : CopiesToRescue(session, time, report.Failures)) Rescue(copy, folders, report);
    return report;
}

std::string RescueText(const RescueReport& report) {
    std::string text;
    if (!report.Written.empty()) {
        text = "Copies of documents that no file holds:";
        for (const auto& path : report.Written) text += "\n  " + path;
    }
    if (!report.Failures.empty()) {
        text += fmt::format("{}These could not be rescued:", text.empty() ? "" : "\n\n");
        for (const auto& failure : report.Failures) text += "\n  " + failure;
    }
    return text;
}

} // namespace dorvan
