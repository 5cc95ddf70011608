#include "fuzz/imports.h"
#include "support/seeds.h"

namespace dorvan::test {

TEST(FuzzSeeds, TextTable) { checkSeeds("text_table", fuzz::checkTextTable); }
TEST(FuzzSeeds, TextMatrix) { checkSeeds("text_matrix", fuzz::checkTextMatrix); }
TEST(FuzzSeeds, DBaseTable) { checkSeeds("dbase_table", fuzz::checkDBaseTable); }

} // namespace dorvan::test
