#include "files/allocations.h"
#include "files/faults.h"
#include "import/text_matrix.h"

#include <gtest/gtest.h>

namespace dorvan::test {

namespace {

const TextMatrixForm Named{';', true, 3};
const TextMatrixForm Bare{';', false, 3};

NamedDistances Read(std::string_view text, const TextMatrixForm& form = Named, char separator = '.') {
    return TextMatrix(text, form).Read(separator);
}

std::string Fault(std::string_view text, const TextMatrixForm& form = Named) {
    return faultOf([&] { Read(text, form); });
}

// One value through the rounding.
float Rounded(std::string_view text, std::int16_t precision, char separator = '.') {
    return Read(text, {';', false, precision}, separator).Distances(1, 1);
}

using Texts = std::vector<std::string>;
using Floats = std::vector<float>;

} // namespace

TEST(TextMatrix, ReadsNamesAndDistances) {
    const NamedDistances matrix = Read("first;0;1.5\r\nsecond;1.5;0\r\n");
    EXPECT_EQ(matrix.RecordNames.Cells(), (Texts{"first", "second"}));
    EXPECT_EQ(matrix.Distances.Columns(), 2);
    EXPECT_EQ(matrix.Distances.Cells(), (Floats{0, 1.5f, 1.5f, 0}));
}

TEST(TextMatrix, RowsWithoutNamesAreNumbered) {
    const NamedDistances matrix = Read("0;1\n2;0\n", Bare);
    EXPECT_EQ(matrix.RecordNames.Cells(), (Texts{"Record 1", "Record 2"}));
    EXPECT_EQ(matrix.Distances.Cells(), (Floats{0, 1, 2, 0}));
}

TEST(TextMatrix, TheFirstLineSetsTheSize) {
    EXPECT_EQ(TextMatrix("a;1;2;3\nb;1\n", Named).Size(), 3);
    EXPECT_EQ(TextMatrix("1;2;3\n", Bare).Size(), 3);
    EXPECT_EQ(TextMatrix("1\t2\n", {'\t', false, 3}).Size(), 2);
    EXPECT_EQ(TextMatrix("", Named).Size(), -1);
}

TEST(TextMatrix, NegativeValuesBecomePositive) {
    EXPECT_EQ(Read("-1.25;0\n0;-3\n", Bare).Distances.Cells(), (Floats{1.25f, 0, 0, 3}));
}

TEST(TextMatrix, ValuesAreRoundedToThePrecisionHalvesAwayFromZero) {
    EXPECT_EQ(Rounded("1.2345", 2), 1.23f);
    EXPECT_EQ(Rounded("0.125", 2), 0.13f);
    EXPECT_EQ(Rounded("1.2345", 0), 1.0f);
    EXPECT_EQ(Rounded("2.5", 0), 3.0f);
    EXPECT_EQ(Rounded("2.5", -7), 3.0f);
    EXPECT_EQ(Rounded("123456.789", 1), 123456.8f);
    EXPECT_EQ(Rounded("0.4", 0), 0.0f);
}

TEST(TextMatrix, AHighPrecisionKeepsEveryBit) {
    for (const std::int16_t precision : {std::int16_t(149), std::int16_t(150), std::int16_t(32767)}) {
        EXPECT_EQ(Rounded("1.4e-45", precision), 1.4e-45f);
        EXPECT_EQ(Rounded("0.1", precision), 0.1f);
    }
    EXPECT_EQ(Rounded("1.4e-45", 148), 1e-45f); // the digit 1 that is left rounds to the same smallest float
    EXPECT_EQ(Rounded("1.4e-45", 44), 0.0f);
}

TEST(TextMatrix, EitherNotationOfDecimalsReads) {
    EXPECT_EQ(Rounded("1,2345", 2), 1.23f);
    EXPECT_EQ(Rounded("1.2345", 2, ','), 1.23f);
    EXPECT_EQ(Rounded("1,2345", 2, ','), 1.23f);
}

TEST(TextMatrix, ALineBehindTheLastRowEndsTheReading) {
    EXPECT_THROW(Read("0;1\n1;0\n2;3\n", Bare), TooManyLines);
    EXPECT_THROW(Read("0;1\n1;0\n\n", Bare), TooManyLines); // a blank one too
    EXPECT_THROW(Read("0;1\n1;0\nx;y\n", Bare), TooManyLines);
}

TEST(TextMatrix, NamesAskedOfAFileWithoutThemMakeItAColumnShort) {
    EXPECT_THROW(Read("0;1\n1;0\n"), TooManyLines);
}

TEST(TextMatrix, AFaultBeforeTheLineTooManyComesFirst) {
    EXPECT_EQ(Fault("0;1\n1;x\n2;3\n", Bare), "Line 2, field 2: \"x\" is not a number. File: f");
}

TEST(TextMatrix, MissingRowsStayZeroAndWithoutNames) {
    const NamedDistances matrix = Read("1;2;3\n", Bare);
    EXPECT_EQ(matrix.RecordNames.Cells(), (Texts{"Record 1", "", ""}));
    EXPECT_EQ(matrix.Distances.Cells(), (Floats{1, 2, 3, 0, 0, 0, 0, 0, 0}));
}

TEST(TextMatrix, FurtherFieldsAreIgnoredAndMissingOnesAreAFault) {
    EXPECT_EQ(Read("a;0;1\nb;1;0;x\n").Distances.Cells(), (Floats{0, 1, 1, 0}));
    EXPECT_EQ(Fault("a;0;1\nb;1\n"), "Line 2: 2 fields stand where 3 are needed. File: f");
    EXPECT_EQ(Fault("a;0;1\n\n"), "Line 2: 1 fields stand where 3 are needed. File: f");
    EXPECT_EQ(Fault("0;1\n\n", Bare), "Line 2, field 1: \"\" is not a number. File: f");
}

TEST(TextMatrix, AFieldThatIsNoNumberIsAFault) {
    EXPECT_EQ(Fault("a;0;N/A\n"), "Line 1, field 3: \"N/A\" is not a number. File: f");
    EXPECT_EQ(Fault("a;0;1e39\n"), "Line 1, field 3: \"1e39\" is out of range. File: f");
}

TEST(TextMatrix, AMatrixWithoutColumnsCannotBeSized) {
    EXPECT_EQ(Fault(""), "Line 1: the line is missing, the file ends before it. File: f");
    EXPECT_EQ(Fault("", Bare), "Line 1: the line is missing, the file ends before it. File: f");
    EXPECT_EQ(Fault("a\n"), "Line 1: the record's name is the only field, none is left for a value. File: f");
}

TEST(TextMatrix, AMillionColumnsCostNoMemoryWhileTheyAreCounted) {
    const std::string text(999'999, ';');
    forgetAllocations();
    EXPECT_EQ(TextMatrix(text, Bare).Size(), 1'000'000);
    EXPECT_LT(largestAllocation(), 4096u);
}

} // namespace dorvan::test
