#include "command_line.h"
#include "support/disk_limits.h"
#include "support/golden.h"

#include <gtest/gtest.h>

#include <fmt/format.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <sstream>

namespace dorvan::test {
namespace {

namespace fs = std::filesystem;

const std::string smallSheet =
    "Dorvan DATA 3.3\r\n\r\n[HEADER]\r\nDescription=three\r\nRecCount=3\r\nVarCount=2\r\n\r\n"
    "[RECORD_LABEL]\r\nA\r\nB\r\nC\r\n\r\n[VARIABLE_LABEL]\r\nx\r\ny\r\n\r\n[DATA]\r\n"
    "0.000;1.000\r\n10.000;N/A\r\n1.000;2.500\r\n";

// What a program of poppler writes about a file.
std::string outputOf(const std::string& command) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> pipe(popen(command.c_str(), "r"), pclose);
    std::string output;
    for (int character = std::fgetc(pipe.get()); character != EOF; character = std::fgetc(pipe.get()))
        output += static_cast<char>(character);
    return output;
}

class Results : public ::testing::Test {
protected:
    TemporaryFolder folder;
    std::string sheet = made("small.mdt", smallSheet);

    std::string out(const std::string& name) { return folder / name; }
    std::string made(const std::string& name, const std::string& bytes) {
        writeFile(folder / name, bytes);
        return folder / name;
    }
    // A matrix of so many records on a line, one apart.
    std::string matrixOf(int n) {
        std::string text = fmt::format("Dorvan MATRIX 3.3\r\n\r\n[HEADER]\r\nDescription=A line of {}\r\n"
                                       "RecCount={}\r\n\r\n[RECORD_LABEL]\r\n",
                                       n, n);
        for (int i = 1; i <= n; ++i) text += fmt::format("Record {}\r\n", i);
        text += "\r\n[MATRIX]\r\n";
        for (int i = 1; i <= n; ++i)
            for (int j = 1; j <= n; ++j)
                text += fmt::format("{}.000{}", std::abs(i - j), j < n ? ";" : "\r\n");
        return made(fmt::format("line{}.mtx", n), text);
    }
    std::string diagramOf(int n, const std::string& type = "dots") {
        const std::string diagram = out(fmt::format("line{}{}.dgr", n, type));
        expectDone({"diagram", matrixOf(n), diagram, "--type", type});
        return diagram;
    }

    void expectDone(const std::vector<std::string>& arguments) {
        const Outcome outcome = runCli(arguments);
        EXPECT_EQ(outcome.status, 0) << outcome.err;
        EXPECT_EQ(outcome.out, "");
        EXPECT_EQ(outcome.err, "");
    }
    // Refused with one line that has the part; nothing is written.
    void expectRefusal(const std::vector<std::string>& arguments, const std::string& part,
                       const std::string& written) {
        const Outcome outcome = runCli(arguments);
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 1) << outcome.err;
        EXPECT_NE(outcome.err.find(part), std::string::npos) << outcome.err;
        EXPECT_FALSE(fs::exists(written));
    }

    static int pagesOf(const std::string& pdf) {
        const std::string about = outputOf("pdfinfo '" + pdf + "'");
        const auto place = about.find("Pages:");
        return place == std::string::npos ? 0 : std::stoi(about.substr(place + 6));
    }
    static std::string sizeOf(const std::string& pdf) {
        const std::string about = outputOf("pdfinfo '" + pdf + "'");
        const auto place = about.find_first_not_of(' ', about.find("Page size:") + 10);
        return about.substr(place, about.find(" pts", place) - place);
    }
    static std::string textsOf(const std::string& pdf) {
        return outputOf("pdftotext -layout '" + pdf + "' -");
    }
    static std::size_t wordsOf(const std::string& pdf, const std::string& word) {
        std::istringstream words(textsOf(pdf));
        std::size_t count = 0;
        for (std::string each; words >> each;) count += each == word;
        return count;
    }
};

TEST_F(Results, TextOfASheet) {
    expectDone({"export", "text", sheet, out("o.txt")});
    EXPECT_EQ(fileBytes(out("o.txt")), "x;y\r\nA;0.000;1.000\r\nB;10.000;N/A\r\nC;1.000;2.500\r\n");
}

TEST_F(Results, SeparatorsAndNamesOfASheet) {
    expectDone({"export", "text", sheet, out("o.txt"), "--separator", "comma"});
    EXPECT_EQ(fileBytes(out("o.txt")), "x,y\r\nA,0.000,1.000\r\nB,10.000,N/A\r\nC,1.000,2.500\r\n");
    expectDone({"export", "text", sheet, out("o.txt"), "--separator", "tab", "--no-variable-names"});
    EXPECT_EQ(fileBytes(out("o.txt")), "A\t0.000\t1.000\r\nB\t10.000\tN/A\r\nC\t1.000\t2.500\r\n");
    expectDone({"export", "text", sheet, out("o.txt"), "--separator", "semicolon"});
    EXPECT_EQ(fileBytes(out("o.txt")).substr(0, 5), "x;y\r\n");
    EXPECT_EQ(runCli({"export", "text", sheet, out("o.txt"), "--separator", "pipe"}).status, 2);
}

TEST_F(Results, TextOfAMatrix) {
    expectDone({"export", "text", matrixOf(3), out("o.txt"), "--separator", "comma"});
    EXPECT_EQ(fileBytes(out("o.txt")), "Record 1,0,1,2\r\nRecord 2,1,0,1\r\nRecord 3,2,1,0\r\n");
}

TEST_F(Results, ADiagramHasNoText) {
    expectRefusal({"export", "text", diagramOf(3), out("o.txt")}, "DIAGRAM", out("o.txt"));
}

TEST_F(Results, Worksheets) {
    expectDone({"export", "excel", sheet, out("s.xls")});
    // The width of column 2, then 3 headers and 3 rows of a name and two numbers; one is missing.
    const std::string settings = fileBytes(out("s.xls")).substr(0, 538);
    EXPECT_EQ(fileBytes(out("s.xls")).size(), 538u + 8 + (12 + 11) + 2 * 13 + 3 * 13 + 5 * 19 + 4);
    expectDone({"export", "excel", matrixOf(3), out("m.xls")});
    EXPECT_EQ(fileBytes(out("m.xls")).size(), 538u + 8 + 3 * (12 + 8) + 9 * 19 + 4);
    expectDone({"export", "excel", diagramOf(3), out("d.xls")});
    EXPECT_EQ(fileBytes(out("d.xls")).size(), 538u + 8 + 3 * (12 + 8) + 9 * 13 + 4);
    for (const char* name : {"m.xls", "d.xls"}) EXPECT_EQ(fileBytes(out(name)).substr(0, 538), settings);
}

TEST_F(Results, WhatCannotBeWrittenIsTold) {
    const std::string nowhere = out("none/o");
    for (const auto& arguments :
         std::vector<std::vector<std::string>>{{"export", "text", sheet, nowhere},
                                               {"export", "text", matrixOf(3), nowhere},
                                               {"export", "excel", sheet, nowhere},
                                               {"export", "excel", matrixOf(3), nowhere},
                                               {"export", "excel", diagramOf(3), nowhere},
                                               {"print", matrixOf(3), nowhere},
                                               {"print", diagramOf(3), nowhere}})
        expectRefusal(arguments, nowhere, nowhere);
}

TEST_F(Results, FullDiskIsTold) {
    for (const char* what : {"text", "excel"}) {
        const FileSizeLimit limit(512); // more than the message takes, less than the file
        std::signal(SIGXFSZ, SIG_DFL);  // as from a shell: it would end the process
        const Outcome outcome = runCli({"export", what, sample("iris.mdt"), out("full")});
        EXPECT_EQ(outcome.status, 1);
        EXPECT_NE(outcome.err.find("File too large"), std::string::npos) << outcome.err;
        EXPECT_FALSE(fs::exists(out("full")));
    }
}

TEST_F(Results, ADeviceIsNoTarget) {
    for (const char* what : {"text", "excel"}) {
        const Outcome outcome = runCli({"export", what, sheet, "/dev/full"});
        EXPECT_EQ(outcome.status, 1);
        EXPECT_NE(outcome.err.find("This is not a regular file"), std::string::npos) << outcome.err;
    }
}

TEST_F(Results, PrintedPagesOfADiagram) {
    struct Case {
        int records;
        const char* size;
        int pages;
    };
    for (const auto& [records, size, pages] :
         {Case{3, "normal", 1}, Case{37, "normal", 1}, Case{38, "normal", 2}, Case{66, "small", 1},
          Case{67, "small", 2}, Case{26, "large", 2}, Case{250, "normal", 35}}) {
        expectDone({"print", diagramOf(records), out("p.pdf"), "--size", size});
        EXPECT_EQ(pagesOf(out("p.pdf")), pages) << records << " " << size;
    }
}

TEST_F(Results, PrintedTextsOfADiagram) {
    for (const char* type : {"greyscale", "dots", "classic"}) {
        expectDone({"print", diagramOf(38, type), out("p.pdf")});
        EXPECT_EQ(wordsOf(out("p.pdf"), "Name"), 1u);
        EXPECT_EQ(wordsOf(out("p.pdf"), "Record"), 38u);
        EXPECT_EQ(wordsOf(out("p.pdf"), "Diagram:"), 1u);
        const std::string texts = textsOf(out("p.pdf"));
        EXPECT_NE(texts.find("A line of 38"), std::string::npos);
        EXPECT_NE(texts.find("and more...)"), std::string::npos);
    }
}

TEST_F(Results, PrintedPagesOfAMatrix) {
    expectDone({"print", matrixOf(2), out("p.pdf")});
    EXPECT_EQ(pagesOf(out("p.pdf")), 1);
    EXPECT_EQ(wordsOf(out("p.pdf"), "0.000"), 2u);
    EXPECT_EQ(wordsOf(out("p.pdf"), "1.000"), 1u);
    expectDone({"print", matrixOf(50), out("p.pdf"), "--font", "Courier New"});
    EXPECT_GT(pagesOf(out("p.pdf")), 1);
    EXPECT_EQ(wordsOf(out("p.pdf"), "0.000"), 50u);
    // The last text in order, "9.000", sets the width of a column: values of more digits touch.
    const std::string texts = textsOf(out("p.pdf"));
    const std::size_t last = texts.find("49.00048.00047.000");
    EXPECT_NE(last, std::string::npos);
    EXPECT_EQ(texts.find("49.000", last + 1), std::string::npos);
    EXPECT_EQ(wordsOf(out("p.pdf"), "Record"), 50u);
    EXPECT_NE(textsOf(out("p.pdf")).find("A line of 50"), std::string::npos);
}

TEST_F(Results, PaperOfAPrint) {
    const std::string diagram = diagramOf(3);
    const auto size = [&](const std::vector<std::string>& options) {
        std::vector<std::string> arguments{"print", diagram, out("p.pdf")};
        arguments.insert(arguments.end(), options.begin(), options.end());
        expectDone(arguments);
        return sizeOf(out("p.pdf"));
    };
    EXPECT_EQ(size({}), "595 x 842");
    EXPECT_EQ(size({"--paper", "a4", "--landscape"}), "842 x 595");
    EXPECT_EQ(size({"--paper", "a3"}), "842 x 1191");
    EXPECT_EQ(size({"--paper", "letter"}), "612 x 792");
    EXPECT_EQ(runCli({"print", diagram, out("p.pdf"), "--paper", "b9"}).status, 2);
    EXPECT_EQ(runCli({"print", diagram, out("p.pdf"), "--size", "huge"}).status, 2);
}

TEST_F(Results, ASheetIsNotPrinted) { expectRefusal({"print", sheet, out("p.pdf")}, "DATA", out("p.pdf")); }

TEST_F(Results, PrintNeedsNoScreen) {
    EXPECT_EQ(runCli({"print", diagramOf(3), out("p.pdf")}, {"DISPLAY=", "WAYLAND_DISPLAY="}).status, 0);
}

} // namespace
} // namespace dorvan::test
