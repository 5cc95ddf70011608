#include "cli/information.h"

#include "distance/frmMacierz.h"
#include "distance/measures.h"
#include "making/order_quality.h"
#include "numbers/number_text.h"
#include "numbers/runtime_failure.h"
#include "numbers/text.h"
#include "sheet/frmNotePad.h"
#include "view/frmDiagram.h"

#include <fmt/format.h>

#include <array>

namespace dorvan::cli {

namespace {

class Lines {
public:
    void add(std::string_view key, std::string_view value) { text_ += fmt::format("{}: {}\n", key, value); }
    void add(std::string_view key, long value) { add(key, fmt::format("{}", value)); }
    const std::string& text() const { return text_; }

private:
    std::string text_;
};

std::string MeasureText(std::int16_t code) {
    const MeasureRow* row = FindMeasure(code);
    return row ? fmt::format("{} ({})", row->ListText, code) : fmt::format("{}", code);
}

std::string TypeText(std::int16_t type) {
    constexpr std::array<const char*, 3> names = {"greyscale", "dots", "classic"};
    return type < 1 || type > 3 ? fmt::format("{}", type) : names.at(std::size_t(type - 1));
}

std::string Number(double value, char separator) { return FormatPattern(value, "###0.000", separator); }

// A score, or why there is none, such as "overflow".
std::string Score(float (*scoreOf)(const FloatTable&), const FloatTable& distances, char separator) {
    try {
        return FormatPattern(double(scoreOf(distances)), "###0.00000", separator);
    } catch (const RuntimeFailure& failure) {
        return LowerCase(FailureText(failure.Kind()));
    }
}

// How good the order is as it stands.
void AddQuality(Lines& lines, const FloatTable& distances, char separator) {
    lines.add("path length", Number(PathLength(distances), separator));
    lines.add("F", Score(ScoreOfOrder, distances, separator));
    lines.add("UM coefficient", Score(UmOfOrder, distances, separator));
    lines.add("anti-Robinson events", AntiRobinsonEvents(distances));
}

long MissingValues(const frmNotePad& sheet) {
    long missing = 0;
    for (int row = 1; row <= sheet.RecordCount(); ++row)
        for (int column = DocumentGrid::FirstValueColumn; column < sheet.Grid1.Columns(); ++column)
            if (sheet.Grid1.Text(row, column) == NaText) ++missing;
    return missing;
}

std::string AboutSheet(const frmNotePad& sheet) {
    Lines lines;
    lines.add("kind", "data sheet");
    lines.add("records", sheet.RecordCount());
    lines.add("variables", sheet.VariableCount());
    lines.add("description", sheet.OpisText.Text);
    lines.add("missing values", MissingValues(sheet));
    return lines.text();
}

std::string AboutMatrix(frmMacierz& window, char separator) {
    const DistanceMatrix& document = window.Document();
    FloatTable distances(document.Size, document.Size);
    for (int i = 1; i <= document.Size; ++i)
        for (int j = 1; j <= document.Size; ++j)
            distances(i, j) = StrictFloat(document.Cells(i, j), separator);
    Lines lines;
    lines.add("kind", "matrix");
    lines.add("records", document.Size);
    lines.add("description", window.BottomText.Text);
    AddQuality(lines, distances, separator);
    return lines.text();
}

void AddClasses(Lines& lines, const DiagramDocument& document) {
    std::array<long, 7> cells{};
    for (const auto cellClass : document.Classes.Cells()) ++cells.at(std::size_t(cellClass));
    for (std::size_t cellClass = 5; cellClass >= 1; --cellClass)
        lines.add(fmt::format("cells in class {}", cellClass), cells[cellClass]);
    if (cells[6] > 0) lines.add("cells in no class", cells[6]);
}

std::string AboutDiagram(frmDiagram& window, char separator) {
    const DiagramDocument& document = window.Document();
    Lines lines;
    lines.add("kind", "diagram");
    lines.add("records", document.RecCount);
    lines.add("variables", document.VarCount);
    lines.add("description", window.BottomText.Text);
    lines.add("measure", MeasureText(document.DistType));
    if (document.DistType == DistanceType::Customized) {
        lines.add("p", document.Par_P);
        lines.add("r", document.Par_R);
    }
    lines.add("diagram type", TypeText(document.DiagType));
    std::string limits;
    for (int k = 1; k <= 4; ++k) limits += (k > 1 ? " " : "") + Number(document.SectionLimits(k), separator);
    lines.add("limits", limits);
    AddClasses(lines, document);
    AddQuality(lines, document.Matrix, separator);
    return lines.text();
}

} // namespace

std::string InformationAbout(Session& session) {
    const std::int16_t slot = session.ActiveWindow->Index;
    const char separator = session.DecimalSeparator;
    if (session.ActiveWindow->TypeOfForm == DocumentKind::Data) return AboutSheet(DataWindow(session, slot));
    if (session.ActiveWindow->TypeOfForm == DocumentKind::Matrix)
        return AboutMatrix(MatrixWindow(session, slot), separator);
    return AboutDiagram(DiagramWindow(session, slot), separator);
}

} // namespace dorvan::cli
