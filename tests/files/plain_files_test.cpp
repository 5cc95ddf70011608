#include "files/data_file.h"
#include "files/files_session.h"
#include "files/matrix_file.h"
#include "files/plain_files.h"

namespace dorvan::test {

class AgainstPlainStreams : public ::testing::TestWithParam<std::uint32_t> {
protected:
    RandomDocuments documents{static_cast<std::int16_t>(1 + GetParam() * 7 % 60),
                              static_cast<std::int16_t>(1 + GetParam() % 9), GetParam()};
};

TEST_P(AgainstPlainStreams, WritersGiveTheSameBytes) {
    EXPECT_EQ(ComposeDataFile(documents.Sheet, "about", PointText()),
              plainDataBytes(documents.Sheet, "about"));
    EXPECT_EQ(ComposeMatrixFile(documents.Matrix, "about", PointText()),
              plainMatrixBytes(documents.Matrix, "about"));
    EXPECT_EQ(ComposeDiagramFile(documents.Diagram, "about", PointText()),
              plainDiagramBytes(documents.Diagram, "about"));
}

TEST_P(AgainstPlainStreams, TheDataReaderGivesTheSameTables) {
    const std::string bytes = plainDataBytes(documents.Sheet, "about");
    const DocumentTables plain = plainDataFile(bytes);
    DocumentTables tables;
    ParseDataFile(bytes, PointText(), tables);
    EXPECT_EQ(tables.RecordNames, plain.RecordNames);
    EXPECT_EQ(tables.VariableNames, plain.VariableNames);
    EXPECT_EQ(tables.DataValues, plain.DataValues);
}

TEST_P(AgainstPlainStreams, TheMatrixReaderGivesTheSameCells) {
    const std::string bytes = plainMatrixBytes(documents.Matrix, "about");
    const DistanceMatrix plain = plainMatrixFile(bytes);
    DistanceMatrix matrix;
    const FileText text = PointText();
    MatrixFileReader(bytes, text).ReadInto(matrix);
    EXPECT_EQ(matrix.Names, plain.Names);
    EXPECT_EQ(matrix.Cells, plain.Cells);
}

TEST_P(AgainstPlainStreams, TheDiagramReaderGivesTheSameTables) {
    const std::string bytes = plainDiagramBytes(documents.Diagram, "about");
    const DocumentTables plain = plainDiagramFile(bytes);
    DocumentTables tables;
    ParseDiagramFile(bytes, PointText(), tables);
    EXPECT_EQ(tables.RecordNames, plain.RecordNames);
    EXPECT_EQ(tables.VariableNames, plain.VariableNames);
    EXPECT_EQ(tables.DataValues, plain.DataValues);
    EXPECT_EQ(tables.DistanceValues, plain.DistanceValues);
}

INSTANTIATE_TEST_SUITE_P(Seeds, AgainstPlainStreams, ::testing::Range(0u, 12u));

} // namespace dorvan::test
