#include "command_line.h"
#include "import/dbase_bytes.h"
#include "numbers/code_page.h"
#include "support/golden.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

namespace dorvan::test {
namespace {

namespace fs = std::filesystem;

class ImportOnTheCommandLine : public ::testing::Test {
protected:
    TemporaryFolder folder;

    std::string file(const std::string& name, std::string_view bytes) {
        writeFile(folder / name, bytes);
        return folder / name;
    }
    std::string out(const std::string& name) { return folder / name; }

    // Done, and these lines on standard error.
    void expectDone(const std::vector<std::string>& arguments, const std::string& err = "",
                    const std::vector<std::string>& environment = {}) {
        const Outcome outcome = runCli(arguments, environment);
        EXPECT_EQ(outcome.status, 0) << outcome.err;
        EXPECT_EQ(outcome.err, err);
        EXPECT_EQ(outcome.out, "");
    }
    void expectRefused(const std::vector<std::string>& arguments, const std::string& err) {
        const Outcome outcome = runCli(arguments);
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(outcome.err, err);
        EXPECT_FALSE(fs::exists(out("out.mdt")));
        EXPECT_FALSE(fs::exists(out("out.mtx")));
    }

    static std::string sheetBytes(const std::string& description, const std::string& counts,
                                  const std::string& records, const std::string& variables,
                                  const std::string& data) {
        return "Dorvan DATA 3.3\r\n\r\n[HEADER]\r\nDescription=" + description + "\r\n" + counts +
               "\r\n[RECORD_LABEL]\r\n" + records + "\r\n[VARIABLE_LABEL]\r\n" + variables +
               "\r\n[DATA]\r\n" + data;
    }
};

TEST_F(ImportOnTheCommandLine, TextBecomesASheet) {
    expectDone({"import", "text", file("t.csv", "town;a;b\nKutno;1,5;2\nPiła;3;4\n"), out("out.mdt")}, "",
               {"LC_ALL=pl_PL.UTF-8"});
    const std::string bytes = fileBytes(out("out.mdt"));
    EXPECT_EQ(bytes.substr(0, bytes.find("[DATA]")),
              sheetBytes("", "RecCount=2\r\nVarCount=2\r\n", "Kutno\r\nPi\xB3\x61\r\n", "a\r\nb\r\n", "")
                  .substr(0, bytes.find("[DATA]")));
}

TEST_F(ImportOnTheCommandLine, TextTakesItsOptions) {
    expectDone({"import", "text", file("t.txt", "1\t2\n3\t4\n"), out("out.mdt"), "--separator", "tab",
                "--no-variable-names", "--no-record-names"});
    EXPECT_EQ(fileBytes(out("out.mdt")),
              sheetBytes("", "RecCount=2\r\nVarCount=2\r\n", "\r\n\r\n", "VAR  1\r\nVAR  2\r\n",
                         "1.000;2.000\r\n3.000;4.000\r\n"));
}

TEST_F(ImportOnTheCommandLine, ACodePageIsForced) {
    const std::string path = file("t.csv", "c;a\nż;1\n");
    expectDone({"import", "text", path, out("utf8.mdt"), "--code-page", "1250"});
    EXPECT_NE(fileBytes(out("utf8.mdt")).find("\xC5\xBC\r\n"), std::string::npos)
        << "the two bytes come in and go out as two letters of the page";
    expectDone({"import", "text", path, out("seen.mdt")}, "", {"LC_ALL=pl_PL.UTF-8"});
    EXPECT_NE(fileBytes(out("seen.mdt")).find("\r\n\xBF\r\n"), std::string::npos);
}

TEST_F(ImportOnTheCommandLine, FaultsAndLimitsAreOneLineAndNothingIsWritten) {
    const std::string faulty = file("t.csv", "c;a\nr;x\n");
    expectRefused({"import", "text", faulty, out("out.mdt")},
                  "dorvan-cli: Line 2, field 2: \"x\" is not a number. File: " + faulty + "\n");
    const std::string wide = file("wide.csv", std::string(101, ';') + "\n");
    expectRefused({"import", "text", wide, out("out.mdt"), "--no-variable-names"},
                  "dorvan-cli: " + wide + ": Over 100 variables!\n");
    const std::string missing = folder / "missing.csv";
    expectRefused({"import", "text", missing, out("out.mdt")},
                  "dorvan-cli: The file cannot be read: No such file or directory. File: " + missing + "\n");
    const std::string high = file("high.txt", "0;1\n1;0\n2;2\n");
    expectRefused({"import", "matrix", high, out("out.mtx"), "--no-record-names"},
                  "dorvan-cli: " + high +
                      ": Invalid matrix: height <> width, or option: Record names in first column is "
                      "invalid.\n");
    const std::string none = file("none.dbf", "none");
    expectRefused({"import", "dbase", none, out("out.mdt")},
                  "dorvan-cli: " + none + ": Error in file: DBError = 2\n");
}

TEST_F(ImportOnTheCommandLine, AMatrixKeepsThePrecisionThatIsAskedFor) {
    const std::string path = file("m.txt", "a;0;-1.26\nb;1.26;0\n");
    expectDone({"import", "matrix", path, out("out.mtx"), "--precision", "1"});
    EXPECT_EQ(fileBytes(out("out.mtx")),
              "Dorvan MATRIX 3.3\r\n\r\n[HEADER]\r\nDescription=Matrix from: " + path +
                  "\r\nRecCount=2\r\n\r\n[RECORD_LABEL]\r\na\r\nb\r\n\r\n[MATRIX]\r\n"
                  "0.000;1.300\r\n1.300;0.000\r\n");
    EXPECT_EQ(runCli({"import", "matrix", path, out("out.mtx"), "--precision", "many"}).status, 2);
}

TEST_F(ImportOnTheCommandLine, ATableGivesEveryNumericFieldAndTheFirstNames) {
    const std::string path = file("counties.dbf", CountiesTable().bytes());
    expectDone({"import", "dbase", path, out("out.mdt")});
    EXPECT_EQ(fileBytes(out("out.mdt")),
              sheetBytes("Data from " + path, "RecCount=3\r\nVarCount=2\r\n",
                         "Ashe\r\nAlleghany\r\nSurry\r\n", "AREA\r\nBIRTHS\r\n",
                         "0.114;1091.000\r\n0.061;487.000\r\n-1.500;3188.000\r\n"));
}

TEST_F(ImportOnTheCommandLine, FieldsComeInTheOrderInWhichTheyAreNamed) {
    DBaseBytes bytes({{"A", 'N', 1}, {"B", 'N', 1}, {"ONE", 'C', 3}, {"TWO", 'C', 3}});
    const std::string path = file("t.dbf", bytes.record({"1", "2", "un", "due"}).bytes());
    expectDone({"import", "dbase", path, out("out.mdt"), "--fields", "B, A", "--names", "TWO"});
    EXPECT_EQ(fileBytes(out("out.mdt")), sheetBytes("Data from " + path, "RecCount=1\r\nVarCount=2\r\n",
                                                    "due\r\n", "B\r\nA\r\n", "2.000;1.000\r\n"));
    fs::remove(out("out.mdt"));
    expectRefused({"import", "dbase", path, out("out.mdt"), "--fields", "A,C"},
                  "dorvan-cli: " + path + ": the table has no numeric field \"C\"\n");
    expectRefused({"import", "dbase", path, out("out.mdt"), "--names", "A"},
                  "dorvan-cli: " + path + ": the table has no character field \"A\"\n");
}

TEST_F(ImportOnTheCommandLine, WhatTheDesktopTellsAndGoesOnAfterGoesToStandardError) {
    DBaseBytes bytes({{"A", 'N', 4}});
    for (int record = 1; record <= 300; ++record)
        bytes.record({"1"}, record == 2 ? '*' : record == 3 ? '?' : ' ');
    expectDone(
        {"import", "dbase", file("t.dbf", bytes.bytes()), out("out.mdt")},
        "dorvan-cli: Maximum number of record in Dorvan data file is 250. In this database is  300 records. "
        "Only first 250 have been imported.\n"
        "dorvan-cli: Error in record: 3\n"
        "dorvan-cli: 1 record(s) deleted and no reading\n");
    EXPECT_NE(fileBytes(out("out.mdt")).find("RecCount=250\r\n"), std::string::npos);
}

TEST_F(ImportOnTheCommandLine, ASheetIsStandardizedByEitherMethod) {
    const std::string sheet = file("in.mdt", sheetBytes("pots", "RecCount=2\r\nVarCount=2\r\n", "a\r\nb\r\n",
                                                        "x\r\ny\r\n", "1.000;7.000\r\n3.000;7.000\r\n"));
    const std::string told = "dorvan-cli: Invalid data - variable number 2 is always the same!\n";
    expectDone({"standardize", sheet, out("range.mdt")}, told + told);
    EXPECT_EQ(fileBytes(out("range.mdt")),
              sheetBytes("STANDARD: pots", "RecCount=2\r\nVarCount=2\r\n", "a\r\nb\r\n", "x\r\ny\r\n",
                         "0.000;7.000\r\n100.000;7.000\r\n"));
    expectRefused({"standardize", sheet, out("out.mdt"), "--method", "deviation"},
                  "dorvan-cli: " + sheet +
                      ": Run-time error '11': Division by zero: a variable that is always the same\n");
    EXPECT_EQ(runCli({"standardize", sheet, out("out.mdt"), "--method", "median"}).status, 2);
    const std::string other = file("other.mdt", sheetBytes("", "RecCount=2\r\nVarCount=1\r\n", "a\r\nb\r\n",
                                                           "x\r\n", "1.000\r\n3.000\r\n"));
    expectDone({"standardize", other, out("deviation.mdt"), "--method", "deviation"});
    EXPECT_NE(fileBytes(out("deviation.mdt")).find("-0.707\r\n0.707\r\n"), std::string::npos);
}

} // namespace
} // namespace dorvan::test
