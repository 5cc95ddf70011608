#include "program/rescue.h"

#include "distance/frmMacierz.h"
#include "files/data_file.h"
#include "files/diagram_file.h"
#include "files/disk.h"
#include "files/file_text.h"
#include "files/matrix_file.h"
#include "numbers/number_text.h"
#include "numbers/runtime_failure.h"
#include "numbers/text.h"
#include "session/registry.h"
#include "sheet/expression.h"
#include "sheet/frmNotePad.h"
#include "view/frmDiagram.h"

#include <fmt/format.h>

#include <exception>
#include <filesystem>

namespace dorvan {

namespace {

namespace fs = std::filesystem;

constexpr const char* FolderName = "Dorvan rescued documents";

struct Copied {
    std::string Extension;
    std::string Path; // of the document's own file, if it has one
    std::string Bytes;
};

bool Reads(const std::string& cell, char decimalSeparator) {
    if (TrimSpaces(cell) == NaText) return true;
    try {
        ParseSheetNumber(TrimSpaces(cell), decimalSeparator);
        return true;
    } catch (const RuntimeFailure&) {
        return false;
    }
}

// The sheet with every value cell a number or "N/A".
SheetTable ReadableSheet(SheetTable sheet, char decimalSeparator) {
    for (std::string& cell : sheet.Cells.Cells()) {
        if (Reads(cell, decimalSeparator)) continue;
        const double value = EvaluateCellText(ReplaceAll(cell, ",", ".")).Value;
        cell = FormatPattern(value, "###0.000", decimalSeparator);
    }
    return sheet;
}

Copied CopyOf(const Session& session, const frmNotePad& window) {
    return {"mdt", window.NamedFile(),
            ComposeDataFile(ReadableSheet(window.Table(), session.DecimalSeparator), window.OpisText.Text,
                            FileTextOf(session))};
}

Copied CopyOf(const Session& session, const frmMacierz& window) {
    return {"mtx", CaptionPath(window.Caption),
            ComposeMatrixFile(session.MatrixDocuments.at(std::size_t(window.Index)), window.BottomText.Text,
                              FileTextOf(session))};
}

Copied CopyOf(const Session& session, const frmDiagram& window) {
    return {"dgr", CaptionPath(window.Caption),
            ComposeDiagramFile(session.DiagramDocuments.at(std::size_t(window.Index)), window.BottomText.Text,
                               FileTextOf(session))};
}

Copied CopyOfDocument(const Session& session, const ChildWindow& window) {
    if (const auto* sheet = dynamic_cast<const frmNotePad*>(&window)) return CopyOf(session, *sheet);
    if (const auto* matrix = dynamic_cast<const frmMacierz*>(&window)) return CopyOf(session, *matrix);
    if (const auto* diagram = dynamic_cast<const frmDiagram*>(&window)) return CopyOf(session, *diagram);
    return {};
}

bool FileHolds(const Copied& copy) {
    if (IsUntitled(copy.Path)) return false;
    try {
        return LoadFile(copy.Path) == copy.Bytes;
    } catch (const std::exception&) {
        return false;
    }
}

// "[DATA]: /home/ann/iris.mdt" gives "iris", "[MATRIX]: Untitled:2" gives "untitled-2".
std::string NameOf(const std::string& caption) {
    const std::string name = fs::path(CaptionPath(caption)).stem().string();
    return ReplaceAll(ReplaceAll(name, "Untitled", "untitled"), ":", "-");
}

// A name that no file of the folder has.
fs::path FreeName(const fs::path& folder, const fs::path& wanted) {
    fs::path path = folder / wanted;
    for (int number = 2; fs::exists(path); ++number)
        path = folder / fmt::format("{} ({}){}", wanted.stem().string(), number, wanted.extension().string());
    return path;
}

} // namespace

std::vector<RescueCopy> CopiesToRescue(const Session& session, const std::string& time,
                                       std::vector<std::string>& failures) {
    std::vector<RescueCopy> copies;
    for (const auto& window : session.Children) {
        try {
            Copied copy = CopyOfDocument(session, *window);
            if (copy.Bytes.empty() || FileHolds(copy)) continue;
            copies.push_back({fmt::format("{} {}.{}", NameOf(window->Caption), time, copy.Extension),
                              std::move(copy.Bytes)});
        } catch (const std::exception& failure) {
            failures.push_back(fmt::format("{}: {}", window->Caption, failure.what()));
        }
    }
    return copies;
}

RescueReport RescueDocuments(const Session& session, const std::string& documentsFolder,
                             const std::string& time) {
    RescueReport report;
    const fs::path folder = fs::path(documentsFolder) / FolderName;
    report.Folder = folder.string();
    for (const auto& copy : CopiesToRescue(session, time, report.Failures)) {
        try {
            fs::create_directories(folder);
            const fs::path path = FreeName(folder, copy.FileName);
            ReplaceFile(path.string(), copy.Bytes);
            report.Written.push_back(path.filename().string());
        } catch (const std::exception& failure) {
            report.Failures.push_back(fmt::format("{}: {}", copy.FileName, failure.what()));
        }
    }
    return report;
}

std::string RescueText(const RescueReport& report) {
    std::string text;
    if (!report.Written.empty()) {
        text = fmt::format("Copies of documents that no file holds are in the folder\n{}", report.Folder);
        for (const auto& name : report.Written) text += "\n  " + name;
    }
    if (!report.Failures.empty()) {
        text += fmt::format("{}These could not be rescued:", text.empty() ? "" : "\n\n");
        for (const auto& failure : report.Failures) text += "\n  " + failure;
    }
    return text;
}

} // namespace dorvan
