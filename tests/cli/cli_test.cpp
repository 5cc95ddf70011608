#include "command_line.h"
#include "support/golden.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <sys/wait.h>

namespace dorvan::test {
namespace {

namespace fs = std::filesystem;

// Three records on a line at 0, 1 and 10: every distance is known.
const std::string smallSheet =
    "Dorvan DATA 3.3\r\n\r\n[HEADER]\r\nDescription=three\r\nRecCount=3\r\nVarCount=1\r\n\r\n"
    "[RECORD_LABEL]\r\nA\r\nB\r\nC\r\n\r\n[VARIABLE_LABEL]\r\nx\r\n\r\n[DATA]\r\n"
    "0.000\r\n10.000\r\n1.000\r\n";

const std::string keptOrderOfTheSheet = "dorvan-cli: The order of the sheet was kept: no generation beat the "
                                        "first; try another seed or coefficient\n";

class CommandLine : public ::testing::Test {
protected:
    TemporaryFolder folder;
    std::string sheet = folder / "small.mdt";
    void SetUp() override { writeFile(sheet, smallSheet); }

    std::string out(const std::string& name) { return folder / name; }

    // The command is refused with one line that names the file, and writes nothing.
    void expectRefusal(const std::vector<std::string>& arguments, const std::string& file,
                       const std::string& part, const std::string& written) {
        const Outcome outcome = runCli(arguments);
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(outcome.out, "");
        EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 1) << outcome.err;
        EXPECT_NE(outcome.err.find(file), std::string::npos) << outcome.err;
        EXPECT_NE(outcome.err.find(part), std::string::npos) << outcome.err;
        EXPECT_FALSE(fs::exists(written));
    }
};

TEST_F(CommandLine, MatrixOfASheetIsEuclideanByDefault) {
    const Outcome outcome = runCli({"matrix", sheet, out("small.mtx")});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(
        fileBytes(out("small.mtx")),
        "Dorvan MATRIX "
        "3.3\r\n\r\n[HEADER]\r\nDescription=three\r\nRecCount=3\r\n\r\n[RECORD_LABEL]\r\nA\r\nB\r\nC\r\n\r\n"
        "[MATRIX]\r\n0.000;10.000;1.000\r\n10.000;0.000;9.000\r\n1.000;9.000;0.000\r\n");
}

TEST_F(CommandLine, EveryMeasureIsTakenByNameAndByNumber) {
    const std::vector<std::string> names = {"henzel",    "czekanowski", "euclidean", "manhattan",
                                            "chebychev", "customized",  "dfdd",      "lance-williams",
                                            "jaccard",   "yule"};
    for (std::size_t place = 0; place < names.size(); ++place) {
        const Outcome byName =
            runCli({"diagram", sample("Townships.mdt"), out("name.dgr"), "--measure", names[place]});
        const Outcome byNumber = runCli(
            {"diagram", sample("Townships.mdt"), out("number.dgr"), "--measure", std::to_string(place + 1)});
        EXPECT_EQ(byName.status, 0) << names[place] << byName.err;
        EXPECT_EQ(byNumber.status, 0) << names[place] << byNumber.err;
        EXPECT_EQ(fileBytes(out("name.dgr")), fileBytes(out("number.dgr")));
        EXPECT_NE(fileBytes(out("name.dgr")).find("DistType=" + std::to_string(place + 1) + "\r\n"),
                  std::string::npos);
    }
}

TEST_F(CommandLine, CustomizedMeasureTakesItsParameters) {
    EXPECT_EQ(runCli({"matrix", sheet, out("m.mtx"), "--measure", "customized", "-p", "1", "-r", "2"}).status,
              0);
    EXPECT_NE(fileBytes(out("m.mtx")).find("0.000;3.162;1.000\r\n"), std::string::npos);
}

TEST_F(CommandLine, ParameterOfZeroIsRefusedInTheDialogsWords) {
    expectRefusal({"matrix", sheet, out("m.mtx"), "--measure", "customized", "-p", "0"}, sheet,
                  "Invalid value of parametr P", out("m.mtx"));
    expectRefusal({"matrix", sheet, out("m.mtx"), "--measure", "customized", "-r", "0"}, sheet,
                  "Invalid value of parametr R", out("m.mtx"));
}

TEST_F(CommandLine, DiagramIsWrittenWithDotsAndUnorderedByDefault) {
    EXPECT_EQ(runCli({"diagram", sheet, out("d.dgr")}).status, 0);
    const std::string diagram = fileBytes(out("d.dgr"));
    EXPECT_TRUE(matchesGolden(diagram, "cli/golden/three_on_a_line.dgr"));
}

TEST_F(CommandLine, SimpleOrderWalksToTheNearest) {
    EXPECT_EQ(runCli({"diagram", sheet, out("d.dgr"), "--order", "simple", "--type", "classic"}).status, 0);
    const std::string diagram = fileBytes(out("d.dgr"));
    EXPECT_NE(diagram.find("[RECORD_LABEL]\r\nA\r\nC\r\nB\r\n"), std::string::npos) << diagram;
    EXPECT_NE(diagram.find("DiagType=3\r\n"), std::string::npos);
    EXPECT_NE(diagram.find("[MATRIX]\r\n0.000;1.000;10.000\r\n1.000;0.000;9.000\r\n10.000;9.000;0.000\r\n"),
              std::string::npos);
}

TEST_F(CommandLine, DiagramOfAMatrixKeepsNoData) {
    ASSERT_EQ(runCli({"matrix", sheet, out("m.mtx")}).status, 0);
    EXPECT_EQ(runCli({"diagram", out("m.mtx"), out("d.dgr"), "--type", "greyscale"}).status, 0);
    const std::string diagram = fileBytes(out("d.dgr"));
    EXPECT_NE(diagram.find("Type=1\r\n"), std::string::npos);
    EXPECT_NE(diagram.find("[VARIABLE_LABEL]\r\nN/A\r\n\r\n[DATA]\r\nN/A\r\n"), std::string::npos);
    EXPECT_NE(diagram.find("DiagType=1\r\n"), std::string::npos);
}

TEST_F(CommandLine, EverySampleBecomesADiagram) {
    for (const auto& [name, measure] :
         std::vector<std::pair<std::string, std::string>>{{"iris", "euclidean"},
                                                          {"USArrests", "manhattan"},
                                                          {"Townships", "jaccard"},
                                                          {"Munsingen", "jaccard"},
                                                          {"airquality", "henzel"},
                                                          {"quakes250", "chebychev"}}) {
        const Outcome outcome = runCli({"diagram", sample(name + ".mdt"), out(name + ".dgr"), "--measure",
                                        measure, "--order", "simple"});
        EXPECT_EQ(outcome.status, 0) << name << outcome.err;
        EXPECT_EQ(runCli({"info", out(name + ".dgr")}).status, 0) << name;
    }
}

TEST_F(CommandLine, MissingValuesNeedAMeasureThatSkipsThem) {
    expectRefusal({"diagram", sample("airquality.mdt"), out("d.dgr")}, "airquality.mdt",
                  "Nieprawidłowa funkcja odległości dla danych niepełnych!", out("d.dgr"));
}

TEST_F(CommandLine, TooManyRecordsForAMatrix) {
    expectRefusal({"matrix", sample("quakes250.mdt"), out("m.mtx")}, "quakes250.mdt",
                  "The number of records is > 150 (max. number of records)!", out("m.mtx"));
}

TEST_F(CommandLine, FailureByDesignNamesItself) {
    std::string zeros = smallSheet;
    zeros.replace(zeros.find("1.000"), 5,
                  "0.000"); // two records of zeros have neither a difference nor a common 1
    zeros.replace(zeros.rfind("10.000"), 6, "0.000");
    writeFile(sheet, zeros);
    expectRefusal({"matrix", sheet, out("m.mtx"), "--measure", "jaccard"}, sheet,
                  "Run-time error '11': Division by zero", out("m.mtx"));
}

TEST_F(CommandLine, TwoRecordsEndTheAutomaticLimitsBySubscript) {
    writeFile(sheet,
              "Dorvan DATA "
              "3.3\r\n\r\n[HEADER]\r\nDescription=\r\nRecCount=2\r\nVarCount=1\r\n\r\n[RECORD_LABEL]\r\n"
              "A\r\nB\r\n\r\n[VARIABLE_LABEL]\r\nx\r\n\r\n[DATA]\r\n0.000\r\n1.000\r\n");
    expectRefusal({"diagram", sheet, out("d.dgr")}, sheet, "Run-time error '9': Subscript out of range",
                  out("d.dgr"));
}

TEST_F(CommandLine, FaultOfAFileNamesItsLine) {
    writeFile(sheet, smallSheet.substr(0, smallSheet.find("10.000")) + "abc\r\n1.000\r\n");
    expectRefusal({"matrix", sheet, out("m.mtx")}, sheet, "ine 18", out("m.mtx"));
}

TEST_F(CommandLine, FilesThatAreNoneAreRefused) {
    expectRefusal({"matrix", out("absent.mdt"), out("m.mtx")}, out("absent.mdt"), "", out("m.mtx"));
    fs::create_directory(out("folder.mdt"));
    expectRefusal({"info", out("folder.mdt")}, out("folder.mdt"), "", out("m.mtx"));
    writeFile(out("empty.mdt"), "");
    expectRefusal({"info", out("empty.mdt")}, out("empty.mdt"), "", out("m.mtx"));
    writeFile(out("notes.txt"), "hello");
    expectRefusal({"info", out("notes.txt")}, out("notes.txt"),
                  "Error! This file is not acceptable for Dorvan.", out("m.mtx"));
}

TEST_F(CommandLine, SaveThatCannotFinishLeavesTheFileThatWasThere) {
    for (const std::string name : {"kept.mdt", "kept.mtx", "kept.dgr"}) {
        fs::create_directory(out("shut"));
        const std::string target = out("shut/" + name);
        fs::create_directory(target); // a folder stands where the file should go
        const std::string kind = name.substr(5);
        const Outcome outcome = kind == "mdt"   ? runCli({"convert", sheet, target})
                                : kind == "mtx" ? runCli({"matrix", sheet, target})
                                                : runCli({"diagram", sheet, target});
        EXPECT_EQ(outcome.status, 1) << name;
        EXPECT_EQ(outcome.err, kind == "mtx" ? "dorvan-cli: Run-time error '75': Path/File access error: " +
                                                   target + " (Is a directory)\n"
                                             : "dorvan-cli: " + target + ": Is a directory\n");
        EXPECT_TRUE(fs::is_directory(target));
        EXPECT_EQ(std::distance(fs::directory_iterator(out("shut")), fs::directory_iterator()), 1)
            << "leftovers";
        fs::remove_all(out("shut"));
    }
}

TEST_F(CommandLine, ExistingOutputIsReplaced) {
    writeFile(out("m.mtx"), "something else");
    EXPECT_EQ(runCli({"matrix", sheet, out("m.mtx")}).status, 0);
    EXPECT_EQ(fileBytes(out("m.mtx")).substr(0, 13), "Dorvan MATRIX");
}

TEST_F(CommandLine, WrongUsageIsStatusTwo) {
    for (const std::vector<std::string>& arguments :
         std::vector<std::vector<std::string>>{{},
                                               {"draw"},
                                               {"matrix", sheet},
                                               {"matrix", sheet, out("m.mtx"), "--measure", "nearness"},
                                               {"matrix", sheet, out("m.mtx"), "--measure", "11"},
                                               {"diagram", sheet, out("d.dgr"), "--order", "nearest"},
                                               {"diagram", sheet, out("d.dgr"), "--type", "colour"},
                                               {"info", sheet, "--code-page", "437"},
                                               {"convert", sheet, out("m.mtx")}}) {
        const Outcome outcome = runCli(arguments);
        EXPECT_EQ(outcome.status, 2);
        EXPECT_NE(outcome.err, "");
    }
    EXPECT_FALSE(fs::exists(out("m.mtx")));
}

TEST_F(CommandLine, HelpShowsExamplesForEachSubcommand) {
    for (const std::string command :
         {"matrix", "diagram", "convert", "info", "derive", "retype", "export", "picture"}) {
        const Outcome outcome = runCli({command, "--help"});
        EXPECT_EQ(outcome.status, 0);
        EXPECT_NE(outcome.out.find("dorvan-cli " + command + " "), std::string::npos) << outcome.out;
    }
}

TEST_F(CommandLine, CommaLocaleWritesCommasAndBothLocalesReadBoth) {
    const std::string comma = "LC_ALL=pl_PL.UTF-8";
    ASSERT_EQ(runCli({"matrix", sheet, out("comma.mtx")}, {comma}).status, 0);
    EXPECT_NE(fileBytes(out("comma.mtx")).find("0,000;10,000;1,000\r\n"), std::string::npos);
    ASSERT_EQ(runCli({"convert", out("comma.mtx"), out("point.mtx")}).status, 0);
    EXPECT_NE(fileBytes(out("point.mtx")).find("0.000;10.000;1.000\r\n"), std::string::npos);
    ASSERT_EQ(runCli({"convert", out("point.mtx"), out("again.mtx")}, {comma}).status, 0);
    EXPECT_EQ(fileBytes(out("again.mtx")), fileBytes(out("comma.mtx")));
    for (const std::string order : {"none", "simple"}) {
        ASSERT_EQ(runCli({"diagram", sheet, out("comma.dgr"), "--order", order}, {comma}).status, 0);
        ASSERT_EQ(runCli({"diagram", sheet, out("point.dgr"), "--order", order}).status, 0);
        ASSERT_EQ(runCli({"convert", out("comma.dgr"), out("converted.dgr")}).status, 0);
        EXPECT_EQ(fileBytes(out("converted.dgr")), fileBytes(out("point.dgr")));
    }
}

TEST_F(CommandLine, PolishCharactersSurviveInTheLocalesCodePage) {
    std::string polish = smallSheet;
    polish.replace(polish.find("three"), 5, "Wykopaliska: \xB3\xF3\x9F"); // "łóź" in windows-1250
    writeFile(sheet, polish);
    ASSERT_EQ(runCli({"convert", sheet, out("again.mdt")}, {"LC_ALL=pl_PL.UTF-8"}).status, 0);
    EXPECT_NE(fileBytes(out("again.mdt")).find("Description=Wykopaliska: \xB3\xF3\x9F\r\n"),
              std::string::npos);
    EXPECT_NE(runCli({"info", sheet}, {"LC_ALL=pl_PL.UTF-8"}).out.find("description: Wykopaliska: łóź\n"),
              std::string::npos);
    EXPECT_NE(runCli({"info", sheet, "--code-page", "1250"}).out.find("description: Wykopaliska: łóź\n"),
              std::string::npos);
}

TEST_F(CommandLine, TheRemarkOnAnOlderFileGoesToStandardError) {
    const Outcome outcome = runCli({"info", sourcePath("tests/files/older_sheet.mdt")});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.err, "dorvan-cli: This file has been created in older Dorvan version. You can save it "
                           "only with new format.\n");
    EXPECT_NE(outcome.out.find("kind: data sheet\n"), std::string::npos);
}

TEST_F(CommandLine, ABrokenOlderFileIsToldToBeReadAsOneAndWhatIsWrongWithIt) {
    writeFile(sheet, "Dorvan data 3.3\r\n");
    const Outcome outcome = runCli({"convert", sheet, out("new.mdt")});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 2) << outcome.err;
    EXPECT_TRUE(outcome.err.starts_with("dorvan-cli: This file has been created in older Dorvan version."));
    EXPECT_NE(outcome.err.find("\ndorvan-cli: Byte 18: the file ends"), std::string::npos) << outcome.err;
    EXPECT_FALSE(fs::exists(out("new.mdt")));
}

TEST_F(CommandLine, ASheetWithAnEmptyFieldIsRefusedAndOpensOnYes) {
    std::string empty = smallSheet;
    empty.replace(empty.find("10.000"), 6, "");
    writeFile(sheet, empty);
    expectRefusal({"convert", sheet, out("new.mdt")}, sheet, "Line 18: \"\" is not a number", out("new.mdt"));
    const Outcome outcome = runCli({"convert", sheet, out("new.mdt"), "--yes"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_NE(outcome.err.find("Line 18: \"\" is not a number"), std::string::npos) << outcome.err;
    EXPECT_EQ(fileBytes(out("new.mdt")), empty);
    EXPECT_EQ(runCli({"matrix", sheet, out("new.mtx"), "-y"}).status, 0);
    EXPECT_NE(fileBytes(out("new.mtx")).find("[MATRIX]\r\n0.000;0.000;1.000\r\n"), std::string::npos);
}

TEST_F(CommandLine, Utf16IsRefused) {
    std::string wide = "\xFF\xFE";
    for (const char character : smallSheet) wide += {character, '\0'};
    writeFile(sheet, wide);
    expectRefusal({"convert", sheet, out("new.mdt")}, sheet, "The file is text in UTF-16", out("new.mdt"));
}

TEST_F(CommandLine, InfoTellsASheet) {
    EXPECT_EQ(
        runCli({"info", sample("airquality.mdt")}).out,
        "kind: data sheet\nrecords: 153\nvariables: 6\n"
        "description: New York 1973: air quality on 153 days from May to September - 42 with missing values\n"
        "missing values: 44\n");
}

TEST_F(CommandLine, InfoTellsADiagram) {
    ASSERT_EQ(runCli({"diagram", sheet, out("d.dgr"), "--order", "simple"}).status, 0);
    EXPECT_EQ(
        runCli({"info", out("d.dgr")}).out,
        "kind: diagram\nrecords: 3\nvariables: 1\ndescription: three\nmeasure: Euclidean (3)\ndiagram type: "
        "dots\n"
        "limits: 1.000 1.000 10.000 10.000\ncells in class 5: 3\ncells in class 4: 0\ncells in class 3: 4\n"
        "cells in class 2: 0\ncells in class 1: 2\npath length: 10.000\n"
        "F: 0.21414\nUM coefficient: 0.21414\nanti-Robinson events: 0\n");
}

TEST_F(CommandLine, InfoTellsAMatrix) {
    ASSERT_EQ(runCli({"matrix", sheet, out("m.mtx")}).status, 0);
    EXPECT_EQ(runCli({"info", out("m.mtx")}).out,
              "kind: matrix\nrecords: 3\ndescription: three\npath length: 19.000\n"
              "F: 0.48687\nUM coefficient: 0.48687\nanti-Robinson events: 2\n");
}

TEST_F(CommandLine, InfoTellsWhyThereIsNoScore) {
    writeFile(out("m.mtx"), "Dorvan MATRIX 3.3\r\n\r\n[HEADER]\r\nDescription=two\r\nRecCount=2\r\n\r\n"
                            "[RECORD_LABEL]\r\nA\r\nB\r\n\r\n[MATRIX]\r\n0.000;-1.000\r\n-1.000;0.000\r\n");
    const Outcome outcome = runCli({"info", out("m.mtx")});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.out, "kind: matrix\nrecords: 2\ndescription: two\npath length: -1.000\n"
                           "F: division by zero\nUM coefficient: overflow\nanti-Robinson events: 0\n");
}

TEST_F(CommandLine, ASeedFixesTheGeneticOrders) {
    for (const std::string order : {"genetic", "ravelin"}) {
        const std::vector<std::string> arguments = {
            "diagram", sample("Townships.mdt"), out("1.dgr"), "--order", order, "--seed", "7"};
        auto again = arguments;
        again[2] = out("2.dgr");
        auto other = again;
        other[2] = out("3.dgr");
        other.back() = "8";
        ASSERT_EQ(runCli(arguments).status, 0);
        ASSERT_EQ(runCli(again).status, 0);
        ASSERT_EQ(runCli(other).status, 0);
        EXPECT_EQ(fileBytes(out("1.dgr")), fileBytes(out("2.dgr"))) << order;
        EXPECT_NE(fileBytes(out("1.dgr")), fileBytes(out("3.dgr"))) << order;
    }
}

// Each of them changes the order that a seed gives, so each reaches its own field of the dialog.
TEST_F(CommandLine, EveryParameterOfTheSearchesArrives) {
    const auto diagram = [&](std::vector<std::string> options) {
        std::vector<std::string> arguments = {
            "diagram", sample("USArrests.mdt"), out("d.dgr"), "--seed", "7", "--measure", "manhattan"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        const Outcome outcome = runCli(arguments);
        EXPECT_EQ(outcome.status, 0) << outcome.err;
        EXPECT_TRUE(outcome.err.empty() || outcome.err == keptOrderOfTheSheet) << outcome.err;
        return fileBytes(out("d.dgr"));
    };
    const std::string genetic = diagram({"--order", "genetic"});
    EXPECT_TRUE(diagram({"--order", "genetic", "--generations", "100"}) != genetic);
    EXPECT_TRUE(diagram({"--order", "genetic", "--variants", "10"}) != genetic);
    // Short generations, so that no run reaches the best order of all.
    const std::string shortly = "--critical-mutation-number=20";
    const std::string ravelin = diagram({"--order", "ravelin", shortly});
    EXPECT_TRUE(diagram({"--order", "ravelin"}) != ravelin);
    for (const auto& [option, value] :
         std::vector<std::pair<std::string, std::string>>{{"--sequence-change", "50"},
                                                          {"--fragment-transfer", "90"},
                                                          {"--some-single-transfers", "0"},
                                                          {"--single-transfer", "0"},
                                                          {"--some-remote-conversions", "300"},
                                                          {"--remote-conversion", "0"},
                                                          {"--some-neighbour-conversions", "0"},
                                                          {"--neighbour-conversion", "0"},

                                                          {"--critical-generation-number", "0"},
                                                          {"--matrix-conversion-coefficient", "0.1"}})
        EXPECT_TRUE(diagram({"--order", "ravelin", shortly, option, value}) != ravelin) << option;
}

TEST_F(CommandLine, ParameterAbove32767IsRefusedInTheDialogsWords) {
    expectRefusal({"diagram", sheet, out("d.dgr"), "--order", "ravelin", "--single-transfer", "32768"}, sheet,
                  "Parametr error!", out("d.dgr"));
}

// An endless search; Ctrl+C ends it, and the best order so far is written. In the foreground `timeout`
// signals its child once; otherwise the group as well, and the second signal ends the process.
TEST_F(CommandLine, CtrlCEndsASearchAndTheFileIsWritten) {
    const std::string command =
        "timeout --foreground -s INT 1 " + programPath() + " diagram " + sample("Townships.mdt") + " " +
        out("d.dgr") +
        " --order ravelin --seed 1 --critical-generation-number 32767 --critical-mutation-number 32767 "
        "2>" +
        out("err");
    const int status = std::system(command.c_str());
    EXPECT_EQ(WEXITSTATUS(status), 124); // of timeout, which had to interrupt
    const std::string told = fileBytes(out("err"));
    EXPECT_TRUE(told.empty() || told == keptOrderOfTheSheet) << told;
    EXPECT_EQ(fileBytes(out("d.dgr")).substr(0, 14), "Dorvan DIAGRAM");
}

TEST_F(CommandLine, TheRavelinSearchTellsThatItKeptTheOrderOfTheSheet) {
    const Outcome kept = runCli({"diagram", sample("Townships.mdt"), out("d.dgr"), "--order", "ravelin",
                                 "--seed", "1", "--critical-generation-number", "0"});
    EXPECT_EQ(kept.status, 0);
    EXPECT_EQ(kept.err, keptOrderOfTheSheet);
    EXPECT_EQ(runCli({"diagram", sample("Townships.mdt"), out("none.dgr")}).err, "");
    EXPECT_EQ(fileBytes(out("d.dgr")), fileBytes(out("none.dgr")));
}

TEST_F(CommandLine, ASearchWithoutASeedTellsTheSeedThatRepeatsIt) {
    const std::string start = "dorvan-cli: --seed ";
    for (const std::string order : {"genetic", "best"}) {
        const Outcome first = runCli({"diagram", sample("USArrests.mdt"), out("1.dgr"), "--order", order});
        EXPECT_EQ(first.status, 0);
        EXPECT_EQ(first.out, "");
        ASSERT_EQ(first.err.substr(0, start.size()), start) << first.err;
        EXPECT_EQ(std::count(first.err.begin(), first.err.end(), '\n'), 1);
        const std::string seed = first.err.substr(start.size(), first.err.size() - start.size() - 1);
        EXPECT_EQ(seed.find_first_not_of("0123456789"), std::string::npos) << seed;
        const Outcome again =
            runCli({"diagram", sample("USArrests.mdt"), out("2.dgr"), "--order", order, "--seed", seed});
        EXPECT_EQ(again.err, "");
        EXPECT_EQ(fileBytes(out("1.dgr")), fileBytes(out("2.dgr")));
    }
    for (const std::string order : {"none", "simple"})
        EXPECT_EQ(runCli({"diagram", sheet, out("d.dgr"), "--order", order}).err, "") << order;
}

TEST_F(CommandLine, WhatNoFieldTakesIsWrongUsage) {
    const std::vector<std::pair<std::string, std::string>> wrong = {
        {"--seed", "-1"},
        {"--seed", "18446744073709551616"},
        {"--seed", "1e3"},
        {"--seed", "0x10"},
        {"--seed", "1.0"},
        {"--seed", "+1"},
        {"--seed", " 1"},
        {"--seed", ""},
        {"-p", "-1"},
        {"-p", "1000"},
        {"-r", "-1"},
        {"-r", "2.5"},
        {"--critical-generation-number", "-1"},
        {"--critical-mutation-number", "-1"},
        {"--sequence-change", "-1"},
        {"--neighbour-conversion", "-1"},
        {"--single-transfer", "many"},
        {"--single-transfer", "1.5"},
        {"--single-transfer", ""},
        {"--matrix-conversion-coefficient", "-0.5"},
        {"--matrix-conversion-coefficient", "1e2"},
        {"--matrix-conversion-coefficient", ""}};
    for (const auto& [option, value] : wrong)
        for (const bool apart : {false, true}) {
            std::vector<std::string> arguments{"diagram", sheet, out("d.dgr"), "--order", "ravelin"};
            if (apart)
                arguments.insert(arguments.end(), {option, value});
            else
                arguments.push_back((option.size() == 2 ? option : option + "=") + value);
            const Outcome outcome = runCli(arguments);
            EXPECT_EQ(outcome.status, 2) << option << " " << value;
            EXPECT_EQ(outcome.out, "");
            EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 1) << outcome.err;
            EXPECT_FALSE(fs::exists(out("d.dgr")));
        }
    EXPECT_EQ(runCli({"diagram", sheet, out("d.dgr"), "--seed", "18446744073709551615"}).status, 0);
    EXPECT_EQ(runCli({"diagram", sheet, out("d.dgr"), "--seed", "0"}).status, 0);
    EXPECT_EQ(runCli({"import", "matrix", sheet, out("m.mtx"), "--precision", "-1"}).status, 2);
}

TEST_F(CommandLine, OrderBestPutsNamesDataAndDistancesInOneOrder) {
    ASSERT_EQ(runCli({"diagram", sheet, out("d.dgr"), "--order", "best", "--seed", "1"}).status, 0);
    const std::string made = fileBytes(out("d.dgr"));
    EXPECT_NE(made.find("\r\nA\r\nC\r\nB\r\n"), std::string::npos) << made;
    EXPECT_NE(made.find("0.000\r\n1.000\r\n10.000\r\n"), std::string::npos) << made;
    EXPECT_NE(made.find("0.000;1.000;10.000\r\n1.000;0.000;9.000\r\n10.000;9.000;0.000\r\n"),
              std::string::npos)
        << made;
    ASSERT_EQ(runCli({"diagram", sheet, out("none.dgr")}).status, 0);
    const Outcome ordered = runCli({"order", out("none.dgr"), out("ordered.dgr"), "--seed", "7"});
    EXPECT_EQ(ordered.status, 0);
    EXPECT_EQ(ordered.err, "");
    EXPECT_EQ(fileBytes(out("ordered.dgr")), made);
}

TEST_F(CommandLine, TheDataOfABestOrderMakeTheSameDiagram) {
    ASSERT_EQ(runCli({"diagram", sample("USArrests.mdt"), out("none.dgr")}).status, 0);
    ASSERT_EQ(runCli({"order", out("none.dgr"), out("best.dgr"), "--seed", "1"}).status, 0);
    const std::string best = fileBytes(out("best.dgr"));
    EXPECT_FALSE(best == fileBytes(out("none.dgr")));
    ASSERT_EQ(runCli({"derive", "data", out("best.dgr"), out("data.mdt")}).status, 0);
    ASSERT_EQ(runCli({"diagram", out("data.mdt"), out("again.dgr")}).status, 0);
    const std::string again = fileBytes(out("again.dgr"));
    const auto fromNames = [](const std::string& bytes) {
        return bytes.substr(bytes.find("[RECORD_LABEL]"));
    };
    EXPECT_TRUE(fromNames(again) == fromNames(best));
    ASSERT_EQ(runCli({"order", out("best.dgr"), out("again.dgr"), "--seed", "1"}).status, 0);
    EXPECT_TRUE(fileBytes(out("again.dgr")) == best) << "once more changes nothing";
}

TEST_F(CommandLine, OrderTellsItsSeedAndRefusesOtherDocuments) {
    ASSERT_EQ(runCli({"diagram", sample("Townships.mdt"), out("none.dgr"), "--measure", "jaccard"}).status,
              0);
    const Outcome ordered = runCli({"order", out("none.dgr"), out("best.dgr"), "--order", "best"});
    EXPECT_EQ(ordered.status, 0);
    EXPECT_EQ(ordered.err.substr(0, 19), "dorvan-cli: --seed ");
    EXPECT_NE(runCli({"info", out("best.dgr")}).out.find("anti-Robinson events: 0\n"), std::string::npos);
    EXPECT_EQ(runCli({"order", out("none.dgr"), out("x.dgr"), "--order", "simple"}).status, 2);
    expectRefusal({"order", sheet, out("x.dgr")}, sheet, "of no use here", out("x.dgr"));
}

TEST_F(CommandLine, OrderBestOfAMatrixKeepsNamesWithTheirDistances) {
    ASSERT_EQ(runCli({"matrix", sheet, out("m.mtx")}).status, 0);
    ASSERT_EQ(runCli({"diagram", out("m.mtx"), out("d.dgr"), "--order", "best", "--seed", "1"}).status, 0);
    EXPECT_NE(fileBytes(out("d.dgr")).find("\r\nA\r\nC\r\nB\r\n"), std::string::npos);
}

TEST_F(CommandLine, ADistanceOfMinusOneLeavesTheBestOrderWithoutACriterion) {
    writeFile(out("m.mtx"), "Dorvan MATRIX 3.3\r\n\r\n[HEADER]\r\nDescription=three\r\nRecCount=3\r\n\r\n"
                            "[RECORD_LABEL]\r\nA\r\nB\r\nC\r\n\r\n[MATRIX]\r\n0.000;-1.000;2.000\r\n"
                            "-1.000;0.000;3.000\r\n2.000;3.000;0.000\r\n");
    expectRefusal({"diagram", out("m.mtx"), out("d.dgr"), "--order", "best", "--seed", "1"}, "m.mtx",
                  "A distance of -1 leaves the best order without a criterion.", out("d.dgr"));
}

TEST_F(CommandLine, InfoSaysOfItsFiguresThatTheyAreOfTheFile) {
    EXPECT_NE(
        runCli({"info", "--help"})
            .out.find("The figures of an order are of the distances in the file, which have three decimals."),
        std::string::npos);
}

// The size that a PNG file claims.
std::pair<int, int> sizeOfPng(const std::string& bytes) {
    if (bytes.size() < 24 || bytes.substr(1, 3) != "PNG") return {};
    const auto number = [&](std::size_t place) {
        int value = 0;
        for (std::size_t k = 0; k < 4; ++k)
            value = value * 256 + static_cast<unsigned char>(bytes[place + k]);
        return value;
    };
    return {number(16), number(20)};
}

class CommandLinePicture : public CommandLine {
protected:
    std::string diagram = folder / "d.dgr";
    void SetUp() override {
        CommandLine::SetUp();
        ASSERT_EQ(runCli({"diagram", sheet, diagram}).status, 0);
    }

    // The bytes of the picture of those options.
    std::string picture(const std::string& name, const std::vector<std::string>& options = {}) {
        std::vector<std::string> arguments{"picture", diagram, out(name)};
        arguments.insert(arguments.end(), options.begin(), options.end());
        const Outcome outcome = runCli(arguments);
        EXPECT_EQ(outcome.status, 0) << outcome.err;
        EXPECT_EQ(outcome.err, "");
        return fileBytes(out(name));
    }
};

TEST_F(CommandLinePicture, IsWrittenInTheFormatOfItsName) {
    EXPECT_EQ(sizeOfPng(picture("d.png")), (std::pair{527, 140})); // 7900 x 2100 twips
    EXPECT_EQ(picture("d.pdf").substr(0, 5), "%PDF-");
    const std::string svg = picture("D.SVG");
    EXPECT_EQ(svg.substr(0, 5), "<?xml");
    for (const std::string text : {"Name", "A", "B", "C", "&gt;= "})
        EXPECT_NE(svg.find(">" + text), std::string::npos) << text;
}

TEST_F(CommandLinePicture, ScaleMakesItLarger) {
    EXPECT_EQ(sizeOfPng(picture("d.png", {"--scale", "2"})), (std::pair{1054, 280}));
    EXPECT_EQ(sizeOfPng(picture("d.png", {"--scale", "0.5"})), (std::pair{264, 70}));
}

TEST_F(CommandLinePicture, ShowsTheGraphsAsWell) {
    const std::string normal = picture("h.png", {"--what", "histogram"});
    const std::string cumulative = picture("c.png", {"--what", "histogram", "--cumulative"});
    EXPECT_EQ(sizeOfPng(normal), (std::pair{273, 177}));
    EXPECT_EQ(sizeOfPng(cumulative), (std::pair{273, 177}));
    EXPECT_NE(normal, cumulative);
    EXPECT_EQ(sizeOfPng(picture("l.png", {"--what", "linear"})), (std::pair{337, 201}));
}

TEST_F(CommandLinePicture, OfAnotherFormatIsWrongUsage) {
    for (const std::string name : {"d.jpg", "d", "svg"}) {
        const Outcome outcome = runCli({"picture", diagram, out(name)});
        EXPECT_EQ(outcome.status, 2) << name;
        EXPECT_FALSE(fs::exists(out(name)));
    }
}

TEST_F(CommandLinePicture, ThatCannotBeMadeIsRefused) {
    expectRefusal({"picture", out("none.dgr"), out("d.png")}, "none.dgr", "", out("d.png"));
    ASSERT_EQ(runCli({"diagram", sample("quakes250.mdt"), out("q.dgr")}).status, 0);
    expectRefusal({"picture", out("q.dgr"), out("q.png"), "--what", "histogram"}, "q.dgr", "Overflow",
                  out("q.png"));
}

TEST_F(CommandLinePicture, ThatCannotBeWrittenIsTold) {
    expectRefusal({"picture", diagram, out("missing/d.png")}, "missing/d.png", "No such file",
                  out("missing/d.png"));
}

class CommandLineDiagram : public CommandLinePicture {};

TEST_F(CommandLineDiagram, MatrixIsDerivedInItsOrder) {
    ASSERT_EQ(runCli({"diagram", sheet, diagram, "--order", "simple"}).status, 0);
    const Outcome outcome = runCli({"derive", "matrix", diagram, out("m.mtx")});
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    const std::string matrix = fileBytes(out("m.mtx"));
    EXPECT_NE(matrix.find("[RECORD_LABEL]\r\nA\r\nC\r\nB\r\n"), std::string::npos) << matrix;
    EXPECT_NE(matrix.find("[MATRIX]\r\n0.000;1.000;10.000\r\n1.000;0.000;9.000\r\n10.000;9.000;0.000\r\n"),
              std::string::npos);
}

TEST_F(CommandLineDiagram, DataAreDerivedInItsOrder) {
    ASSERT_EQ(runCli({"diagram", sheet, diagram, "--order", "simple"}).status, 0);
    EXPECT_EQ(runCli({"derive", "data", diagram, out("d.mdt")}).status, 0);
    const std::string data = fileBytes(out("d.mdt"));
    EXPECT_NE(data.find("[RECORD_LABEL]\r\nA\r\nC\r\nB\r\n"), std::string::npos) << data;
    EXPECT_NE(data.find("[DATA]\r\n0.000\r\n1.000\r\n10.000\r\n"), std::string::npos) << data;
}

TEST_F(CommandLineDiagram, DataOfADiagramWithoutDataAreRefused) {
    ASSERT_EQ(runCli({"matrix", sheet, out("m.mtx")}).status, 0);
    ASSERT_EQ(runCli({"diagram", out("m.mtx"), diagram}).status, 0);
    expectRefusal({"derive", "data", diagram, out("d.mdt")}, "d.dgr", "no data behind it", out("d.mdt"));
    EXPECT_EQ(runCli({"derive", "matrix", diagram, out("again.mtx")}).status, 0);
}

TEST_F(CommandLineDiagram, DerivedDocumentNeedsANameOfItsKind) {
    EXPECT_EQ(runCli({"derive", "data", diagram, out("d.mtx")}).status, 2);
    EXPECT_EQ(runCli({"derive", "matrix", diagram, out("d.mdt")}).status, 2);
    EXPECT_EQ(runCli({"derive", "names", diagram, out("d.mdt")}).status, 2);
    EXPECT_FALSE(fs::exists(out("d.mtx")));
}

TEST_F(CommandLineDiagram, TypeAndLimitsAreChangedAlone) {
    const std::string before = fileBytes(diagram);
    ASSERT_EQ(runCli({"retype", diagram, out("t.dgr"), "--type", "classic"}).status, 0);
    const std::string retyped = fileBytes(out("t.dgr"));
    EXPECT_NE(retyped.find("DiagType=3\r\n"), std::string::npos);
    EXPECT_EQ(retyped.substr(retyped.find("[RECORD_LABEL]")), before.substr(before.find("[RECORD_LABEL]")));
    const Outcome outcome = runCli({"retype", diagram, out("l.dgr"), "--limits", "0.5,2,9.5,20"});
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    const std::string limited = fileBytes(out("l.dgr"));
    EXPECT_NE(limited.find("SecLimit_1=0.5"), std::string::npos) << limited;
    EXPECT_NE(limited.find("SecLimit_4=20"), std::string::npos);
    EXPECT_NE(limited.find("DiagType=2\r\n"), std::string::npos);
    ASSERT_EQ(runCli({"retype", diagram, out("n.dgr")}).status, 0);
    EXPECT_EQ(fileBytes(out("n.dgr")), before);
}

TEST_F(CommandLineDiagram, LimitsAreRefusedInTheDialogsWords) {
    for (const auto& [limits, refusal] :
         std::vector<std::pair<std::string, std::string>>{{"1,1,2,3", "Invalid section limits!"},
                                                          {"0,0,0,0", "Error - all limits = 0!"},
                                                          {"1,x,2,3", "Invalid number!"}})
        expectRefusal({"retype", diagram, out("l.dgr"), "--limits", limits}, "d.dgr", refusal, out("l.dgr"));
    EXPECT_EQ(runCli({"retype", diagram, out("l.dgr"), "--limits", "1,2,3"}).status, 2);
    ASSERT_EQ(runCli({"diagram", sample("quakes250.mdt"), out("q.dgr")}).status, 0);
    expectRefusal({"retype", out("q.dgr"), out("l.dgr"), "--limits", "1,2,3,4"}, "q.dgr", "Overflow",
                  out("l.dgr"));
}

TEST_F(CommandLineDiagram, ImageIsWrittenInTheFormatOfItsName) {
    for (const auto& [name, start] : std::vector<std::pair<std::string, std::string>>{
             {"d.bmp", "BM"}, {"D.TIF", "II"}, {"d.png", "\x89PNG"}}) {
        const Outcome outcome = runCli({"export", "image", diagram, out(name)});
        EXPECT_EQ(outcome.status, 0) << outcome.err;
        EXPECT_EQ(fileBytes(out(name)).substr(0, start.size()), start);
    }
    EXPECT_EQ(sizeOfPng(fileBytes(out("d.png"))), (std::pair{527, 140}));
    EXPECT_EQ(fileBytes(out("d.png")).at(24), 8); // bits a pixel
}

TEST_F(CommandLineDiagram, ImageThatCannotBeWrittenIsTold) {
    expectRefusal({"export", "image", diagram, out("missing/d.png")}, "missing/d.png", "No such file",
                  out("missing/d.png"));
    for (const std::string name : {"d.jpg", "d.tiff"})
        EXPECT_EQ(runCli({"export", "image", diagram, out(name)}).status, 2);
    EXPECT_EQ(runCli({"export"}).status, 2);
}

TEST_F(CommandLineDiagram, MetafileIsWrittenOverTheStartOfTheFile) {
    const Outcome outcome = runCli({"export", "metafile", diagram, out("d.wmf")});
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    const std::string metafile = fileBytes(out("d.wmf"));
    EXPECT_EQ(metafile.substr(0, 4), "\xD7\xCD\xC6\x9A");
    writeFile(out("old.wmf"), std::string(100'000, 'x'));
    ASSERT_EQ(runCli({"export", "metafile", diagram, out("old.wmf")}).status, 0);
    EXPECT_EQ(fileBytes(out("old.wmf")), metafile + std::string(100'000 - metafile.size(), 'x'));
    expectRefusal({"export", "metafile", diagram, out("missing/d.wmf")}, "missing/d.wmf", "No such file",
                  out("missing/d.wmf"));
}

} // namespace
} // namespace dorvan::test
