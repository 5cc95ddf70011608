#include "fuzz/readers.h"
#include "support/seeds.h"

namespace dorvan::test {

TEST(FuzzSeeds, DataFile) { checkSeeds("data_file", fuzz::checkDataFile); }
TEST(FuzzSeeds, MatrixFile) { checkSeeds("matrix_file", fuzz::checkMatrixFile); }
TEST(FuzzSeeds, DiagramFile) { checkSeeds("diagram_file", fuzz::checkDiagramFile); }

} // namespace dorvan::test
