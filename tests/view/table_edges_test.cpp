#include "view/table_edges.h"

#include "support/drawings.h"

#include <gmock/gmock.h>

namespace dorvan::test {
namespace {

using namespace drawing;
using ::testing::ElementsAre;

constexpr Font Own{"", 8, false};

TableEdges edgesOfTwoByOne() {
    TableEdges edges;
    edges.Cell = 100;
    edges.Rows = 2;
    edges.Columns = 1;
    edges.NumberOffset = {1, 2};
    edges.HeaderOffset = {3, 4};
    edges.NameOffset = {5, 6};
    edges.TitleOffset = {7, 8};
    return edges;
}

Array1<std::string> names(std::initializer_list<const char*> texts) {
    Array1<std::string> result;
    for (const char* text : texts) result.Append(text);
    return result;
}

std::vector<Operation> drawn(const TableEdges& edges, const Array1<std::string>& labels) {
    Canvas canvas(1000, 1000);
    DrawTableEdges(canvas, edges, labels);
    return canvas.Take().Operations;
}

TEST(TableEdges, NumbersHeaderAndNamesInTheirBoxes) {
    EXPECT_THAT(
        drawn(edgesOfTwoByOne(), names({"first", "second"})),
        ElementsAre(Operation(Box{{0, 0}, {100, 100}, {}}), Operation(Box{{0, 100}, {100, 200}, {}}),
                    Operation(Text{{1, 102}, "1", Own, Black}), Operation(Box{{0, 200}, {100, 300}, {}}),
                    Operation(Text{{1, 202}, "2", Own, Black}), Operation(Box{{500, 0}, {600, 100}, {}}),
                    Operation(Text{{503, 4}, "1", Own, Black}), Operation(Box{{100, 0}, {500, 100}, {}}),
                    Operation(Text{{107, 8}, "Name", Own, Black}), Operation(Box{{100, 100}, {500, 200}, {}}),
                    Operation(Text{{105, 106}, "first", Own, Black}),
                    Operation(Box{{100, 200}, {500, 300}, {}}),
                    Operation(Text{{105, 206}, "second", Own, Black})));
}

TEST(TableEdges, WithoutHeaderTheRowsStartAtTheTop) {
    TableEdges edges = edgesOfTwoByOne();
    edges.WithHeader = false;
    edges.FirstRow = 2;
    edges.Rows = 1;
    EXPECT_EQ(edges.Top(), 0);
    EXPECT_EQ(edges.Left(), 500);
    EXPECT_THAT(drawn(edges, names({"first", "second"})),
                ElementsAre(Operation(Box{{0, 0}, {100, 100}, {}}), Operation(Text{{1, 2}, "2", Own, Black}),
                            Operation(Box{{100, 0}, {500, 100}, {}}),
                            Operation(Text{{105, 6}, "second", Own, Black})));
}

TEST(TableEdges, WithoutColumnsTheHeaderStartsAtTheLeft) {
    TableEdges edges = edgesOfTwoByOne();
    edges.WithColumns = false;
    edges.FirstColumn = 38;
    EXPECT_EQ(edges.Top(), 100);
    EXPECT_EQ(edges.Left(), 0);
    EXPECT_THAT(
        drawn(edges, names({"first", "second"})),
        ElementsAre(Operation(Box{{0, 0}, {100, 100}, {}}), Operation(Text{{3, 4}, "38", Own, Black})));
}

TEST(TableEdges, NamesShowTwelveCharacters) {
    TableEdges edges = edgesOfTwoByOne();
    edges.Rows = 1;
    Canvas canvas(1000, 1000);
    DrawTableEdges(canvas, edges, names({"zażółć gęślą jaźń"}));
    EXPECT_EQ(operationsOf<Text>(canvas.Take()).back().Content, "zażółć gęślą");
}

} // namespace
} // namespace dorvan::test
