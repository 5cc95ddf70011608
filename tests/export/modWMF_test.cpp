#include "export/modWMF.h"

#include "export/metafile_device.h"
#include "files/disk.h"
#include "metafile_records.h"
#include "support/expect_failure.h"
#include "support/golden.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>

namespace dorvan::test {
namespace {

constexpr int MoveTo = 0x214;
constexpr int LineTo = 0x213;
constexpr int Ellipse = 0x418;
constexpr int TextOut = 0x521;
constexpr int CreateFont = 0x2FB;
constexpr int CreateBrush = 0x2FC;
constexpr int Select = 0x12D;
constexpr int Delete = 0x1F0;

DiagramDocument diagramOf(int count, std::int16_t cellClass = 5) {
    DiagramDocument diagram;
    diagram.RecCount = static_cast<std::int16_t>(count);
    diagram.DiagType = 2;
    diagram.RecordNames = Array1<std::string>(count, "a name of twenty sig");
    diagram.Classes = Array2<std::int16_t>(count, count, cellClass);
    diagram.SectionLimits.Cells() = {1.5f, 2.25f, 3.125f, 4.0f};
    return diagram;
}

std::vector<MetafileRecord> drawn(const DiagramDocument& diagram) {
    return metafileRecordsOf(DrawDiagram(diagram, '.', CodePage(1250)));
}

struct Placed {
    int X;
    int Y;
    std::string Text;
    bool operator==(const Placed&) const = default;
};

std::vector<Placed> textsOf(const std::vector<MetafileRecord>& records) {
    std::vector<Placed> texts;
    for (const auto& record : records) {
        if (record.Function != TextOut) continue;
        const int length = record.Word(0);
        const auto behind = std::size_t(1 + (length + 1) / 2);
        texts.push_back(
            {record.Word(behind + 1), record.Word(behind), record.Parameters.substr(2, std::size_t(length))});
    }
    return texts;
}

// x1, y1, x2, y2 of a line, or of the box of an ellipse.
using Four = std::array<int, 4>;

std::vector<Four> linesOf(const std::vector<MetafileRecord>& records) {
    std::vector<Four> lines;
    for (std::size_t k = 0; k + 1 < records.size(); ++k)
        if (records[k].Function == MoveTo) {
            EXPECT_EQ(records[k + 1].Function, LineTo);
            lines.push_back(
                {records[k].Word(1), records[k].Word(0), records[k + 1].Word(1), records[k + 1].Word(0)});
        }
    return lines;
}

std::vector<Four> dotsOf(const std::vector<MetafileRecord>& records) {
    std::vector<Four> dots;
    for (const auto& record : records)
        if (record.Function == Ellipse)
            dots.push_back({record.Word(3), record.Word(2), record.Word(1), record.Word(0)});
    return dots;
}

TEST(MetafileDevice, RecordsAnObjectWhenItIsFirstSelected) {
    MetafileDevice device;
    const auto unused = device.CreateSolidBrush(0);
    const auto font = device.CreateFont({.Height = -60, .Face = "Courier New"});
    device.SelectObject(font);
    device.SelectObject(font);
    device.DeleteObject(unused);
    const auto records = metafileRecordsOf(device.Close());
    ASSERT_EQ(records.size(), 3U);
    EXPECT_EQ(records[0].Function, CreateFont);
    EXPECT_EQ(records[1], (MetafileRecord{Select, std::string("\0\0", 2)}));
    EXPECT_EQ(records[2], records[1]);
}

TEST(MetafileDevice, TakesAFreedPlaceAgain) {
    MetafileDevice device;
    const auto first = device.CreateSolidBrush(0);
    const auto second = device.CreateSolidBrush(0);
    device.SelectObject(first);
    device.SelectObject(second);
    device.DeleteObject(first);
    device.SelectObject(device.CreateSolidBrush(0x123456));
    const std::string bytes = device.Close();
    const auto records = metafileRecordsOf(bytes);
    EXPECT_EQ(wordAt(bytes, 10), 2);
    EXPECT_EQ(records.back().Word(0), 0);
    EXPECT_EQ(records[records.size() - 2].Parameters, std::string("\0\0\x56\x34\x12\0\0\0", 8));
}

TEST(MetafileDevice, FontIsADescriptionOf50Bytes) {
    MetafileDevice device;
    device.SelectObject(device.CreateFont({.Height = -60, .Face = "Courier New"}));
    const auto font = metafileRecordsOf(device.Close()).at(0);
    std::string expected("\xC4\xFF\0\0\0\0\0\0\x90\x01\0\0\0\x01\0\0\x02\0Courier New", 29);
    expected.resize(50, '\0');
    EXPECT_EQ(font.Parameters, expected);
}

TEST(MetafileDevice, TextIsPaddedToWords) {
    MetafileDevice device;
    device.TextOut(3, 4, "abc");
    device.TextOut(5, 6, "ab");
    const auto records = metafileRecordsOf(device.Close());
    EXPECT_EQ(records[0].Parameters, std::string("\x03\0abc\0\x04\0\x03\0", 10));
    EXPECT_EQ(records[1].Parameters, std::string("\x02\0ab\x06\0\x05\0", 8));
}

TEST(Metafile, BeginsWithTheOneFontOfTheDrawing) {
    const auto records = drawn(diagramOf(2));
    EXPECT_EQ(records[0].Function, CreateFont);
    EXPECT_EQ(records[0].Word(0), -60);
    EXPECT_EQ(records[1].Function, Select);
    EXPECT_EQ(
        std::count_if(records.begin(), records.end(), [](const auto& r) { return r.Function == CreateFont; }),
        1);
}

TEST(Metafile, LinesOfTwoRecords) {
    const std::vector<Four> expected{// rows over the whole width
                                     {0, 0, 980, 0},
                                     {0, 140, 980, 140},
                                     {0, 280, 980, 280},
                                     // number column and edges
                                     {140, 0, 140, 420},
                                     {0, 0, 0, 420},
                                     {0, 420, 980, 420},
                                     {980, 0, 980, 420},
                                     // columns
                                     {700, 0, 700, 420},
                                     {840, 0, 840, 420},
                                     // name column
                                     {140, 0, 700, 0},
                                     {140, 140, 700, 140},
                                     {140, 280, 700, 280}};
    auto lines = linesOf(drawn(diagramOf(2)));
    ASSERT_EQ(lines.size(), expected.size() + 20);
    lines.resize(expected.size());
    EXPECT_EQ(lines, expected);
}

TEST(Metafile, TextsOfTwoRecordsAndTheLegend) {
    const std::vector<Placed> expected{{25, 150, "1"},
                                       {25, 290, "2"},
                                       {725, 10, "1"},
                                       {865, 10, "2"},
                                       {165, 10, "Name"},
                                       {165, 150, "a name of tw"},
                                       {165, 290, "a name of tw"},
                                       {260, 585, "0 - 1.50"},
                                       {260, 725, "1.50 - 2.25"},
                                       {260, 865, "2.25 - 3.125"},
                                       {260, 1005, "3.125 - 4.00"},
                                       {260, 1145, ">= 4.00"}};
    EXPECT_EQ(textsOf(drawn(diagramOf(2))), expected);
}

TEST(Metafile, DotsByClassWithTheRadiusRoundedToEven) {
    for (const auto& [cellClass, radius] : {std::pair{0, 0}, {1, 0}, {2, 10}, {3, 22}, {4, 32}, {5, 45}}) {
        const auto dots = dotsOf(drawn(diagramOf(1, static_cast<std::int16_t>(cellClass))));
        ASSERT_EQ(dots.size(), 6U) << cellClass;
        EXPECT_EQ(dots[0], (Four{770 - radius, 210 - radius, 770 + radius, 210 + radius})) << cellClass;
    }
}

TEST(Metafile, FirstIndexOfTheClassesRunsAlongTheRow) {
    DiagramDocument diagram = diagramOf(2, 1);
    diagram.Classes(2, 1) = 5;
    const auto dots = dotsOf(drawn(diagram));
    EXPECT_EQ(dots[2], (Four{910 - 45, 210 - 45, 910 + 45, 210 + 45})); // the third: column 2, row 1
}

TEST(Metafile, EachDotHasABrushOfItsOwnThatGoesAtOnce) {
    const auto records = drawn(diagramOf(1));
    const auto dot =
        std::find_if(records.begin(), records.end(), [](const auto& r) { return r.Function == Ellipse; });
    ASSERT_GE(dot - records.begin(), 2);
    EXPECT_EQ((dot - 2)->Function, CreateBrush);
    EXPECT_EQ((dot - 2)->Parameters, std::string(8, '\0'));
    EXPECT_EQ((dot - 1)->Function, Select);
    EXPECT_EQ((dot - 1)->Word(0), 1);
    EXPECT_EQ((dot + 1)->Function, Delete);
    EXPECT_EQ((dot + 1)->Word(0), 1);
}

TEST(Metafile, LegendFromTheNearestToTheFarthest) {
    const auto records = drawn(diagramOf(1));
    const auto dots = dotsOf(records);
    const auto lines = linesOf(records);
    const int radii[] = {45, 32, 22, 10, 0};
    for (int item = 0; item < 5; ++item) {
        const int y = 280 + 200 + item * 140;
        const int r = radii[item];
        EXPECT_EQ(dots[std::size_t(1 + item)], (Four{120 - r, y - r, 120 + r, y + r}));
        const auto side = lines.size() - 20 + std::size_t(4 * item);
        EXPECT_EQ(lines[side], (Four{50, y - 70, 190, y - 70}));
        EXPECT_EQ(lines[side + 1], (Four{190, y - 70, 190, y + 70}));
        EXPECT_EQ(lines[side + 2], (Four{190, y + 70, 50, y + 70}));
        EXPECT_EQ(lines[side + 3], (Four{50, y + 70, 50, y - 70}));
    }
}

TEST(Metafile, IsTheSameForEveryType) {
    DiagramDocument diagram = diagramOf(3);
    const auto dots = drawn(diagram);
    for (const std::int16_t type : {1, 3}) {
        diagram.DiagType = type;
        EXPECT_EQ(drawn(diagram), dots);
    }
}

TEST(Metafile, NamesAreInTheCodePage) {
    DiagramDocument diagram = diagramOf(1);
    diagram.RecordNames(1) = "Łódź Ω";
    EXPECT_EQ(textsOf(drawn(diagram)).at(3).Text, "\xA3\xF3"
                                                  "d\x9F ?");
}

TEST(Metafile, CellWithoutASectionEndsTheRun) {
    EXPECT_FAILURE(Failure::SubscriptOutOfRange, drawn(diagramOf(2, 6)));
    EXPECT_FAILURE(Failure::SubscriptOutOfRange, drawn(diagramOf(2, -1)));
}

TEST(Metafile, CoordinatesPast16BitsKeepTheirLowBits) {
    const auto records = drawn(diagramOf(250, 1));
    const auto lines = linesOf(records);
    EXPECT_EQ(lines[0], (Four{0, 0, 255 * 140 - 65536, 0}));
    EXPECT_EQ(BoxOfDiagram(250), (MetafileBox{0, 0, 35840, 36140}));
    EXPECT_EQ(wordAt(PlaceableHeader(BoxOfDiagram(250)), 10), 35840);
}

TEST(PlaceableHeader, HasKeyBoxUnitsAndChecksum) {
    EXPECT_EQ(BoxOfDiagram(10), (MetafileBox{0, 0, 2240, 2540}));
    const std::string header = PlaceableHeader(BoxOfDiagram(10));
    ASSERT_EQ(header.size(), 22U);
    EXPECT_EQ(longAt(header, 0), 0x9AC6CDD7U);
    EXPECT_EQ(wordAt(header, 4), 0);
    EXPECT_EQ(wordAt(header, 6), 0);
    EXPECT_EQ(wordAt(header, 8), 0);
    EXPECT_EQ(wordAt(header, 10), 2240);
    EXPECT_EQ(wordAt(header, 12), 2540);
    EXPECT_EQ(wordAt(header, 14), 1000);
    EXPECT_EQ(longAt(header, 16), 0U);
    EXPECT_EQ(wordAt(header, 20), 0xCDD7 ^ 0x9AC6 ^ 2240 ^ 2540 ^ 1000);
}

TEST(Metafile, OfTwoRecordsIsTheGoldenFile) {
    const std::string bytes =
        PlaceableHeader(BoxOfDiagram(2)) + DrawDiagram(diagramOf(2), '.', CodePage(1252));
    EXPECT_TRUE(matchesGolden(bytes, "export/golden/two_records.wmf"));
}

TEST(WriteOverStart, LeavesTheTailOfALongerFile) {
    const TemporaryFolder folder;
    writeFile(folder / "a.wmf", "0123456789");
    WriteOverStart(folder / "a.wmf", "abc");
    EXPECT_EQ(fileBytes(folder / "a.wmf"), "abc3456789");
    WriteOverStart(folder / "b.wmf", "abc");
    EXPECT_EQ(fileBytes(folder / "b.wmf"), "abc");
    EXPECT_THROW(WriteOverStart(folder / "missing/c.wmf", "abc"), FileError);
}

} // namespace
} // namespace dorvan::test
