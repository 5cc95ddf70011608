#include "files/allocations.h"
#include "files/faults.h"
#include "import/plain_imports.h"
#include "import/text_table.h"
#include "numbers/text.h"

#include <gtest/gtest.h>

namespace dorvan::test {

namespace {

const TextTableForm Named{';', true, true};
const TextTableForm Bare{';', false, false};

TableOfRecords Read(std::string_view text, const TextTableForm& form = Named, char separator = '.') {
    return TextTable(text, form).Read(separator);
}

std::string Fault(std::string_view text, const TextTableForm& form = Named) {
    return faultOf([&] { Read(text, form); });
}

using Texts = std::vector<std::string>;
using Floats = std::vector<float>;

} // namespace

TEST(TextTable, ReadsNamesAndNumbers) {
    const TableOfRecords table = Read("name;Length;Width\r\nfirst;1;-2.5\r\nsecond;1e2;.5\r\n");
    EXPECT_EQ(table.RecordNames.Cells(), (Texts{"first", "second"}));
    EXPECT_EQ(table.VariableNames.Cells(), (Texts{"Length", "Width"}));
    EXPECT_EQ(table.Values.Rows(), 2);
    EXPECT_EQ(table.Values.Cells(), (Floats{1, -2.5f, 100, 0.5f}));
}

TEST(TextTable, TellsItsSizeBeforeItReads) {
    const TextTable table("corner;a;b\n1;2;3\n4;x\n", Named);
    EXPECT_EQ(table.Records(), 2);
    EXPECT_EQ(table.Variables(), 2);
}

TEST(TextTable, WithoutNamesEveryLineIsARecordAndEveryFieldAVariable) {
    const TableOfRecords table = Read("1;2\n3;4\n", Bare);
    EXPECT_EQ(table.RecordNames.Cells(), (Texts{"", ""}));
    EXPECT_EQ(table.VariableNames.Cells(), (Texts{"", ""}));
    EXPECT_EQ(table.Values.Cells(), (Floats{1, 2, 3, 4}));
}

TEST(TextTable, NamesOfVariablesAloneHaveNoCorner) {
    const TableOfRecords table = Read("a;b\n3;4\n", {';', true, false});
    EXPECT_EQ(table.VariableNames.Cells(), (Texts{"a", "b"}));
    EXPECT_EQ(table.RecordNames.Cells(), Texts{""});
    EXPECT_EQ(table.Values.Cells(), (Floats{3, 4}));
}

TEST(TextTable, NamesOfRecordsAloneLeaveTheFirstLineARecord) {
    const TableOfRecords table = Read("r;3;4\ns;5;6", {';', false, true});
    EXPECT_EQ(table.RecordNames.Cells(), (Texts{"r", "s"}));
    EXPECT_EQ(table.VariableNames.Cells(), (Texts{"", ""}));
    EXPECT_EQ(table.Values.Cells(), (Floats{3, 4, 5, 6}));
}

TEST(TextTable, TabsSeparateWhenAskedFor) {
    const TableOfRecords table = Read("x\ta;b\n r 1\t2\n", {'\t', true, true});
    EXPECT_EQ(table.VariableNames.Cells(), Texts{"a;b"});
    EXPECT_EQ(table.RecordNames.Cells(), Texts{" r 1"});
    EXPECT_EQ(Fault("x\ta\n", {';', false, false}), "Line 1, field 1: \"x?a\" is not a number. File: f");
}

TEST(TextTable, NamesStandAsTheyAreNeitherTrimmedNorCut) {
    const TableOfRecords table = Read(";  a name of more than eight \n  a record of more than fifteen ;1\n");
    EXPECT_EQ(table.VariableNames(1), "  a name of more than eight ");
    EXPECT_EQ(table.RecordNames(1), "  a record of more than fifteen ");
}

TEST(TextTable, EitherNotationOfDecimalsReads) {
    EXPECT_EQ(Read("1,5; 2,25 \n", Bare).Values.Cells(), (Floats{1.5f, 2.25f}));
    EXPECT_EQ(Read("1,5;2.25\n", Bare, ',').Values.Cells(), (Floats{1.5f, 2.25f}));
}

TEST(TextTable, TheLineOfNamesDoesNotSetTheWidth) {
    EXPECT_EQ(TextTable("c;a;b;d;e\nr;1;2\n", Named).Variables(), 2);
    EXPECT_EQ(Read("c;a;b;d;e\nr;1;2\n").VariableNames.Cells(), (Texts{"a", "b"}));
    EXPECT_EQ(TextTable("c;a;b\n", {';', false, true}).Variables(), 2);
    EXPECT_EQ(Fault("c;a\nr;1;2\n"), "Line 1: 2 fields stand where 3 are needed. File: f");
}

TEST(TextTable, FurtherFieldsAreIgnored) {
    EXPECT_EQ(Read("c;a\nr;1\ns;2;x;;y\n").Values.Cells(), (Floats{1, 2}));
}

TEST(TextTable, TooFewFieldsAreAFault) {
    EXPECT_EQ(Fault("c;a;b\nr;1;2\ns;3\n"), "Line 3: 2 fields stand where 3 are needed. File: f");
}

TEST(TextTable, AFieldThatIsNoNumberIsAFault) {
    EXPECT_EQ(Fault("c;a;b\nr;1;2\ns;3;N/A\n"), "Line 3, field 3: \"N/A\" is not a number. File: f");
    EXPECT_EQ(Fault("c;a;b\nr;1;\n"), "Line 2, field 3: \"\" is not a number. File: f");
    EXPECT_EQ(Fault("1;\"2\"", Bare), "Line 1, field 2: \"\"2\"\" is not a number. File: f");
    EXPECT_EQ(Fault("1;1 000", Bare), "Line 1, field 2: \"1 000\" is not a number. File: f");
    EXPECT_EQ(Fault("1;1e39", Bare), "Line 1, field 2: \"1e39\" is out of range. File: f");
    EXPECT_EQ(Fault("Łódź", Bare), "Line 1, field 1: \"Łódź\" is not a number. File: f");
}

TEST(TextTable, ALongFieldIsToldInShort) {
    EXPECT_EQ(Fault(std::string(39, 'x') + "ó" + "yz", Bare),
              "Line 1, field 1: \"" + std::string(39, 'x') + "ó...\" is not a number. File: f");
}

TEST(TextTable, LineEndsAreThoseOfAnySystem) {
    const Floats values = Read("c;a\r\nr;1\r\ns;2\r\n").Values.Cells();
    EXPECT_EQ(Read("c;a\nr;1\ns;2\n").Values.Cells(), values);
    EXPECT_EQ(Read("c;a\nr;1\r\ns;2").Values.Cells(), values); // the last line without an end
}

TEST(TextTable, ABlankLineAtTheEndIsARecordThatFails) {
    EXPECT_EQ(Fault("c;a\r\nr;1\r\n\r\n"), "Line 3: 1 fields stand where 2 are needed. File: f");
    EXPECT_EQ(Fault("1\n2\n\n", Bare), "Line 3, field 1: \"\" is not a number. File: f");
    EXPECT_EQ(TextTable("c;a\r\nr;1\r\n\r\n\r\n", Named).Records(), 3);
}

TEST(TextTable, ATableWithoutRecordsOrVariablesCannotBeSized) {
    EXPECT_EQ(TextTable("", Named).Records(), -1);
    EXPECT_EQ(Fault(""), "Line 1: the line is missing, the file ends before it. File: f");
    EXPECT_EQ(Fault("", Bare), "Line 1: the line is missing, the file ends before it. File: f");
    EXPECT_EQ(Fault("c;a;b\n"), "Line 2: the line is missing, the file ends before it. File: f");
    EXPECT_EQ(Fault("c\nr\n"),
              "Line 2: the record's name is the only field, none is left for a variable. File: f");
    EXPECT_EQ(Fault("r\n", {';', false, true}),
              "Line 1: the record's name is the only field, none is left for a variable. File: f");
}

TEST(TextTable, AMillionColumnsCostNoMemoryWhileTheyAreCounted) {
    const std::string text(999'999, ';');
    forgetAllocations();
    EXPECT_EQ(TextTable(text, Bare).Variables(), 1'000'000);
    EXPECT_LT(largestAllocation(), 4096u);
}

TEST(TextTable, MillionsOfLinesCostNoMemoryWhileTheyAreCounted) {
    const std::string text(3'000'000, '\n');
    forgetAllocations();
    EXPECT_EQ(TextTable(text, Bare).Records(), 3'000'000);
    EXPECT_LT(largestAllocation(), 4096u);
}

TEST(TextTable, ReadsTheSameAsPlainStreams) {
    for (const std::uint32_t seed : {1u, 2u, 3u, 4u}) {
        const std::string text = plainTextTable(7 + 20 * static_cast<int>(seed), 13, seed);
        const TableOfRecords plain = plainReadTable(text);
        const TableOfRecords table = Read(text);
        EXPECT_EQ(table.RecordNames, plain.RecordNames);
        EXPECT_EQ(table.VariableNames, plain.VariableNames);
        EXPECT_EQ(table.Values, plain.Values);
    }
}

} // namespace dorvan::test
