#include "built_program.h"
#include "desktop_test.h"
#include "support/golden.h"

#include <QKeyEvent>

#include <clocale>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <optional>

namespace dorvan::test {
namespace {

// The locale of the process as it would be had it started under this one.
class PolishLocale {
protected:
    PolishLocale() {
        if (const char* before = std::getenv("LC_ALL")) before_ = before;
        ::setenv("LC_ALL", "pl_PL.UTF-8", 1);
        if (!std::setlocale(LC_ALL, "")) ADD_FAILURE() << "the locale for tests is missing";
    }
    ~PolishLocale() {
        ::unsetenv("LC_ALL");
        if (before_) ::setenv("LC_ALL", before_->c_str(), 1);
        std::setlocale(LC_ALL, "");
    }

private:
    std::optional<std::string> before_;
};

class PolishDesktopTest : private PolishLocale, public DesktopTest {};

// "Świa" in windows-1250 under a decimal comma.
const std::string SheetOfOne =
    "Dorvan DATA 3.3\r\n\r\n[HEADER]\r\nDescription=\x8Cwia\r\nRecCount=1\r\nVarCount=1\r\n\r\n"
    "[RECORD_LABEL]\r\n\xA3\xF3\x64\x9F\r\n\r\n[VARIABLE_LABEL]\r\n\x8Cr\r\n\r\n[DATA]\r\n1,500\r\n";

TEST_F(PolishDesktopTest, AFileOpensInTheLocalesCodePageAndIsSavedInIt) {
    writeFile(Path("one.mdt").toStdString(), SheetOfOne);
    desktop.Open(Path("one.mdt").toStdString());
    EXPECT_EQ(Sheet().OpisText.Text, "Świa");
    EXPECT_EQ(Sheet().Grid1.Text(1, 1), "Łódź");
    EXPECT_EQ(Sheet().Grid1.Text(0, 2), "Śr");
    EXPECT_EQ(Sheet().Grid1.Text(1, 2), "1,500");
    ChooseFile(Path("again.mdt"));
    Click("mnuSaveAs");
    EXPECT_EQ(BytesOf(Path("again.mdt")), SheetOfOne);
}

TEST_F(PolishDesktopTest, WhatIsTypedIsSavedInTheLocalesCodePage) {
    NewSheet(1, 1);
    auto& description = Find<QWidget>(Face(), "OpisText");
    description.setFocus();
    for (const QChar character : QString::fromUtf8("Świa")) {
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, character);
        QApplication::sendEvent(&description, &press);
    }
    ASSERT_EQ(Sheet().OpisText.Text, "Świa");
    ChooseFile(Path("typed.mdt"));
    Click("mnuSave");
    EXPECT_NE(BytesOf(Path("typed.mdt")).find("Description=\x8Cwia\r\n"), std::string::npos);
}

TEST(PolishProgramTest, OpensAndRescuesInTheLocalesCodePage) {
    const BuiltProgram::Home home;
    const std::string file = home.folder / "one.mdt";
    writeFile(file, SheetOfOne);
    BuiltProgram program(home, {file}, {"LC_ALL=pl_PL.UTF-8"});
    std::filesystem::remove(file); // now no file holds the sheet
    program.Send(SIGTERM);
    EXPECT_EQ(program.Status(), 128 + SIGTERM);
    const auto copies = FilesIn(home.Rescued());
    ASSERT_EQ(copies.size(), 1u) << program.Errors();
    EXPECT_EQ(fileBytes(home.Rescued() + "/" + copies[0]), SheetOfOne);
}

} // namespace
} // namespace dorvan::test
