#include "files/allocations.h"
#include "files/faults.h"
#include "files/files_session.h"
#include "files/matrix_file.h"
#include "files/older_bytes.h"
#include "support/expect_failure.h"

#include <limits>

namespace dorvan::test {

namespace {

DistanceMatrix MatrixOf(const std::vector<std::string>& names, const std::vector<std::string>& cells) {
    const auto n = static_cast<std::int16_t>(names.size());
    DistanceMatrix matrix{Array1<std::string>(n), Array2<std::string>(n, n), n};
    matrix.Names.Cells() = names;
    matrix.Cells.Cells() = cells;
    return matrix;
}

DistanceMatrix Parsed(std::string_view bytes, const FileText& text = PointText()) {
    DistanceMatrix matrix;
    MatrixFileReader(bytes, text).ReadInto(matrix);
    return matrix;
}

std::string FaultOfMatrix(std::string_view bytes) {
    return faultOf([&] { Parsed(bytes); });
}

std::string FaultOfOlder(std::string_view bytes) {
    DistanceMatrix matrix;
    return faultOf([&] { ParseOldMatrixFile(bytes, PointText(), matrix); });
}

const DistanceMatrix Three =
    MatrixOf({"First", "Café", "Third one"},
             {"0", "0.1234567", "12345.68", "0.1234567", "0", "2.5", "12345.68", "2.5", "0"});

OlderBytes OlderHeader(int size) { return OlderBytes().text("Old", 50).int16(size).int16(0); }

} // namespace

TEST(MatrixFile, WritesTheGoldenFile) {
    DistanceMatrix matrix = Three;
    for (auto& cell : matrix.Cells.Cells())
        if (cell == "12345.68") cell = "12345.678";
    EXPECT_TRUE(matchesGolden(ComposeMatrixFile(matrix, " as it stands ", PointText()), "files/matrix.mtx"));
}

TEST(MatrixFile, WritesTheGoldenFileOfACommaLocaleInItsCodePage) {
    const DistanceMatrix matrix = MatrixOf({"Łódź", "Świdnica"}, {"0", "0,1234567", "0,1234567", "0"});
    EXPECT_TRUE(matchesGolden(ComposeMatrixFile(matrix, "Gęś", CommaText()), "files/matrix_comma.mtx"));
}

TEST(MatrixFile, ReadsTheGoldenFileThroughFloatsBackToText) {
    const DistanceMatrix matrix = Parsed(golden("matrix.mtx"));
    EXPECT_EQ(matrix.Size, 3);
    EXPECT_EQ(matrix.Names, Three.Names);
    EXPECT_EQ(matrix.Cells.Cells(), (std::vector<std::string>{"0", "0.123", "12345.68", "0.123", "0", "2.5",
                                                              "12345.68", "2.5", "0"}));
}

TEST(MatrixFile, ADescriptionIsWrittenAsItStandsAndReadTrimmed) {
    const std::string bytes = ComposeMatrixFile(Three, "  a,b=c  ", PointText());
    EXPECT_NE(bytes.find("\r\nDescription=  a,b=c  \r\n"), std::string::npos);
    const FileText text = PointText();
    EXPECT_EQ(MatrixFileReader(bytes, text).Description(), "a,b=c");
}

TEST(MatrixFile, NamesAreWrittenAsTheyStand) {
    const std::string bytes = ComposeMatrixFile(MatrixOf({" a  "}, {"0"}), "", PointText());
    EXPECT_NE(bytes.find("[RECORD_LABEL]\r\n a  \r\n"), std::string::npos);
    EXPECT_EQ(Parsed(bytes).Names(1), "a");
}

TEST(MatrixFile, ASaveAndLoadLosesDigits) {
    EXPECT_EQ(Parsed(ComposeMatrixFile(Three, "", PointText())).Cells(1, 2), "0.123");
}

TEST(MatrixFile, AFileOfACommaLocaleReadsTheSameUnderAPointLocale) {
    EXPECT_EQ(Parsed(golden("matrix_comma.mtx"), {CodePage(1250), '.', {}}).Cells.Cells(),
              (std::vector<std::string>{"0", "0.123", "0.123", "0"}));
    EXPECT_EQ(Parsed(golden("matrix_comma.mtx"), CommaText()).Cells.Cells(),
              (std::vector<std::string>{"0", "0,123", "0,123", "0"}));
}

TEST(MatrixFile, FieldsBeyondTheRecordsAreIgnored) {
    EXPECT_EQ(
        Parsed(with(golden("matrix.mtx"), "\r\n12345.678;2.500;0.000", "\r\n12345.678;2.500;0;x;y")).Cells,
        Parsed(golden("matrix.mtx")).Cells);
}

TEST(MatrixFile, AMatrixHoldsNoMissingValues) {
    EXPECT_EQ(FaultOfMatrix(with(golden("matrix.mtx"), "12345.678;2.500;0.000", "N/A;2.500;0.000")),
              "Line 15: \"N/A\" is not a number. File: f");
}

TEST(MatrixFile, ALineWithTooFewFieldsIsAFault) {
    EXPECT_EQ(FaultOfMatrix(with(golden("matrix.mtx"), "0.123;0.000;2.500", "0.123;2.500")),
              "Line 14: 2 fields stand where 3 are needed. File: f");
}

TEST(MatrixFile, AFaultKeepsWhatWasReadSoFar) {
    DistanceMatrix matrix;
    const std::string bytes = with(golden("matrix.mtx"), "2.500", "x.500");
    EXPECT_EQ(faultOf([&] { MatrixFileReader(bytes, PointText()).ReadInto(matrix); }),
              "Line 14: \"x.500\" is not a number. File: f");
    EXPECT_EQ(matrix.Size, 3);
    EXPECT_EQ(matrix.Names, Three.Names);
    EXPECT_EQ(matrix.Cells(2, 1), "0.123");
    EXPECT_EQ(matrix.Cells(2, 3), "");
}

TEST(MatrixFile, CountsBelowOneAreFaults) {
    EXPECT_EQ(FaultOfMatrix(with(golden("matrix.mtx"), "RecCount=3", "RecCount=0")),
              "Line 5: the count 0 is below 1. File: f");
    EXPECT_EQ(FaultOfMatrix(with(golden("matrix.mtx"), "RecCount=3", "RecCount=-3")),
              "Line 5: the count -3 is below 1. File: f");
    EXPECT_EQ(FaultOfMatrix(with(golden("matrix.mtx"), "RecCount=3", "Count=3")),
              "Line 5: the count 0 is below 1. File: f");
}

TEST(MatrixFile, ClaimsCostNoMemory) {
    const std::string bytes = "Dorvan MATRIX\n\n[HEADER]\nDescription=\nRecCount=32767\n\n[RECORD_LABEL]\n";
    forgetAllocations();
    EXPECT_EQ(FaultOfMatrix(bytes), "Line 8: the line is missing, the file ends before it. File: f");
    EXPECT_LT(largestAllocation(), 4096u);
    const std::string longer = bytes + std::string(32767, '\n') + "\n[MATRIX]\n1;2\n";
    forgetAllocations();
    EXPECT_EQ(FaultOfMatrix(longer),
              "Line 32776: 32767 lines of 32767 values do not fit into the 4 bytes that follow. File: f");
    EXPECT_LT(largestAllocation(), 40 * longer.size());
}

TEST(MatrixFile, TheFirstLineTellsTheFormats) {
    EXPECT_TRUE(IsCurrentMatrixFile("Dorvan MATRIX"));
    EXPECT_TRUE(IsCurrentMatrixFile("Dorvan MATRIX 1.0\r\n"));
    EXPECT_FALSE(IsCurrentMatrixFile("Dorvan MATRI"));
    EXPECT_FALSE(IsCurrentMatrixFile("Dorvan DATA 3.3"));
}

TEST(MatrixFile, ACellThatIsNoNumberCannotBeWritten) {
    EXPECT_FAILURE(Failure::TypeMismatch, ComposeMatrixFile(MatrixOf({"a"}, {"x"}), "", PointText()));
}

TEST(OlderMatrixFile, ReadsTheGoldenFile) {
    DistanceMatrix matrix;
    EXPECT_EQ(ParseOldMatrixFile(golden("older_matrix.mtx"), PointText(), matrix), "Old pots");
    EXPECT_EQ(matrix.Size, 3);
    EXPECT_EQ(matrix.Names.Cells(), (std::vector<std::string>{"First", "Café", "Third"}));
    EXPECT_EQ(matrix.Cells, Three.Cells);
}

TEST(OlderMatrixFile, UnderACommaLocaleTheCellsHaveCommas) {
    DistanceMatrix matrix;
    const OlderBytes bytes = OlderHeader(1).text("R", 15).float32(-1234.5f);
    ParseOldMatrixFile(bytes.bytes(), CommaText(), matrix);
    EXPECT_EQ(matrix.Cells(1, 1), "-1234,5");
    EXPECT_NE(ComposeMatrixFile(matrix, "", CommaText()).find("\r\n-1234,500\r\n"), std::string::npos);
}

TEST(OlderMatrixFile, CountsBelowOneAreFaults) {
    EXPECT_EQ(FaultOfOlder(OlderHeader(0).bytes()), "Byte 51: the count 0 is below 1. File: f");
    EXPECT_EQ(FaultOfOlder(OlderHeader(-5).bytes()), "Byte 51: the count -5 is below 1. File: f");
}

TEST(OlderMatrixFile, PositionsPastTheSixteenBitRangeAreAFault) {
    // 88 records take 88 * 367 bytes from 55 on; 89 of 371 go past 32767.
    OlderBytes fits = OlderHeader(88);
    for (int i = 0; i < 88 * 367; ++i) fits.text("", 1);
    DistanceMatrix matrix;
    ParseOldMatrixFile(fits.bytes(), PointText(), matrix);
    EXPECT_EQ(matrix.Size, 88);
    const std::string tooLong = OlderHeader(89).bytes() + std::string(89 * 371, ' ');
    EXPECT_EQ(FaultOfOlder(tooLong), "Byte 33070: positions past 32767 are out of range. File: f");
}

TEST(OlderMatrixFile, ClaimsCostNoMemory) {
    forgetAllocations();
    EXPECT_EQ(FaultOfOlder(OlderHeader(32767).bytes()),
              "Byte 4295196712: positions past 32767 are out of range. File: f");
    EXPECT_EQ(FaultOfOlder(OlderHeader(88).bytes()),
              "Byte 55: the file ends, its counts ask for 32350 bytes. File: f");
    EXPECT_LT(largestAllocation(), 4096u);
}

TEST(OlderMatrixFile, AValueThatIsNotFiniteIsAFault) {
    EXPECT_EQ(
        FaultOfOlder(OlderHeader(1).text("R", 15).float32(std::numeric_limits<float>::infinity()).bytes()),
        "Byte 70: the value is not a finite number. File: f");
}

} // namespace dorvan::test
