#include "cli/export_pictures.h"

#include "cli/run.h"
#include "export/modFreeImage.h"
#include "export/modWMF.h"
#include "files/disk.h"
#include "numbers/text.h"
#include "view/bitmap_drawing.h"
#include "view/frmDiagram.h"

#include <fmt/format.h>

#include <memory>

namespace dorvan::cli {

namespace {

struct Given {
    std::string diagram;
    std::string out;
    Surroundings surroundings;
};

const DiagramDocument& OpenDiagram(Run& run, const std::string& path) {
    run.Open(path, {DocumentKind::Diagram});
    return DiagramWindow(run.session, run.session.ActiveWindow->Index).Document();
}

int ExportImage(const Given& given) {
    return Reported(given.diagram, [&] {
        Run run(given.surroundings);
        const auto& document = OpenDiagram(run, given.diagram);
        const Drawing drawing = BitmapDrawing(document, run.ports.drawing, run.session.DecimalSeparator);
        WriteOutput(given.out,
                    EncodedImage(run.ports.drawing.pixelsOf(drawing), ImageFormatOf(LowerCase(given.out))));
    });
}

int ExportMetafile(const Given& given) {
    return Reported(given.diagram, [&] {
        Run run(given.surroundings);
        const auto& document = OpenDiagram(run, given.diagram);
        const std::string bytes = PlaceableHeader(BoxOfDiagram(document.RecCount)) +
                                  DrawDiagram(document, run.session.DecimalSeparator, run.session.codePage);
        try {
            WriteOverStart(given.out, bytes);
        } catch (const FileError& error) {
            throw SaveFailure(fmt::format("{}: {}", given.out, error.what()));
        }
    });
}

void AddImage(Options& options, std::string& path) {
    const auto take = [&path](const std::string& text) -> std::string {
        if (!ImageFormatOf(LowerCase(text))) return "no .bmp, .tif or .png: " + text;
        path = text;
        return {};
    };
    options.Checked("OUT", "TEXT", take, "image to write (.bmp, .tif or .png)");
}

} // namespace

Subcommand ImageExport() {
    const auto given = std::make_shared<Given>();
    Options options;
    options.Argument("DIAGRAM", given->diagram, "diagram (.dgr)");
    AddImage(options, given->out);
    AddYes(options, given->surroundings);
    AddCodePage(options, given->surroundings);
    return {.Name = "image",
            .Help = "The bitmap of a diagram as an image of 256 greys",
            .Takes = options,
            .Footer = "Example:\n  dorvan-cli export image USArrests.dgr USArrests.png",
            .Run = [given] { return ExportImage(*given); }};
}

Subcommand MetafileExport() {
    const auto given = std::make_shared<Given>();
    Options options;
    options.Argument("DIAGRAM", given->diagram, "diagram (.dgr)");
    options.Argument("OUT", given->out, "metafile to write (.wmf); a longer file keeps its tail");
    AddYes(options, given->surroundings);
    AddCodePage(options, given->surroundings);
    return {.Name = "metafile",
            .Help = "The dots form of a diagram as a placeable metafile (WMF)",
            .Takes = options,
            .Footer = "Example:\n  dorvan-cli export metafile USArrests.dgr USArrests.wmf",
            .Run = [given] { return ExportMetafile(*given); }};
}

} // namespace dorvan::cli
