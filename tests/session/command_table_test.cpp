#include "session/command_table.h"

#include "session/documents.h"
#include "session/main_window.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace dorvan::test {
namespace {

TEST(CommandRows, AMethodOfAWindowStandsUnderItsOwnKind) {
    for (const auto& row : CommandRows()) {
        const auto& calls = row.Calls;
        for (const auto& operation : {calls.Any, calls.Data})
            EXPECT_EQ(operation.find('.'), std::string_view::npos) << operation;
        EXPECT_TRUE(calls.Matrix.empty() || calls.Matrix.starts_with("frmMacierz.")) << calls.Matrix;
        EXPECT_TRUE(calls.Diagram.empty() || calls.Diagram.starts_with("frmDiagram.")) << calls.Diagram;
        EXPECT_TRUE(calls.Bitmap.empty() || calls.Bitmap.starts_with("frmBMP.")) << calls.Bitmap;
    }
}

TEST(CalledOperations, AreThoseOfTheKindOrTheOneForAny) {
    constexpr CalledOperations byKind{.Data = "d", .Matrix = "m", .Diagram = "g", .Bitmap = "b"};
    EXPECT_EQ(byKind.For(DocumentKind::Data), "d");
    EXPECT_EQ(byKind.For(DocumentKind::Matrix), "m");
    EXPECT_EQ(byKind.For(DocumentKind::Diagram), "g");
    EXPECT_EQ(byKind.For(DocumentKind::Bitmap), "b");
    EXPECT_EQ(byKind.For(DocumentKind::Main), "");
    constexpr CalledOperations any{.Any = "a"};
    EXPECT_EQ(any.For(DocumentKind::Data), "a");
    EXPECT_EQ(any.For(DocumentKind::Main), "a");
    EXPECT_TRUE(CalledOperations{}.None());
    EXPECT_FALSE(any.None());
    EXPECT_FALSE(byKind.None());
}

TEST(CommandTable, AnOperationThatNobodyRegisteredDoesNothing) {
    const CommandTable commands;
    EXPECT_FALSE(commands.Has("MakeMatrix"));
    commands.Call("MakeMatrix");
}

TEST(CommandTable, CallsTheLastOneRegistered) {
    CommandTable commands;
    int called = 0;
    commands.Set("MakeMatrix", [&](const CommandCall&) { called += 100; });
    commands.Set("MakeMatrix", [&](const CommandCall& call) { called += call.Index; });
    EXPECT_TRUE(commands.Has("MakeMatrix"));
    commands.Call("MakeMatrix", {.Index = 7, .Path = {}});
    EXPECT_EQ(called, 7);
}

TEST(CommandTable, ANameThatNoRowHasIsAnError) {
    CommandTable commands;
    EXPECT_THROW(commands.Set("MakeMatrices", {}), std::logic_error);
    EXPECT_THROW(commands.Call("MakeMatrices"), std::logic_error);
    EXPECT_THROW((void)commands.Has("MakeMatrices"), std::logic_error);
    EXPECT_THROW((void)commands.Item("mnuSaveall"), std::logic_error);
    EXPECT_THROW((void)commands.Button("toolMain", "SaveAll"), std::logic_error);
    EXPECT_THROW((void)commands.Button("toolData", "Save"), std::logic_error);
    EXPECT_THROW(commands.ExpectToolbar("toolBar"), std::logic_error);
}

TEST(CommandTable, TwoRowsCannotHaveOneItemOrButtonNorStandInAMenuThatThereIsNot) {
    CommandTable commands;
    EXPECT_THROW(commands.Add({.Menu = "mnuFile", .Item = "mnuSave"}), std::logic_error);
    EXPECT_THROW(commands.Add({.Button = {"toolMain", 20, "Save", "Save"}}), std::logic_error);
    EXPECT_THROW(commands.Add({.Menu = "mnuNothing", .Item = "mnuNew"}), std::logic_error);
}

TEST(CommandTable, ARowCanBeAddedWithItsOperation) {
    CommandTable commands;
    commands.Add(
        {.Menu = ExtrasMenu, .Item = "mnuExtrasOne", .Caption = "One", .Calls = {.Data = "DoOneThing"}});
    EXPECT_EQ(commands.Item("mnuExtrasOne").Caption, "One");
    EXPECT_TRUE(commands.Operations().contains("DoOneThing"));
    commands.Set("DoOneThing", [](const CommandCall&) {});
    EXPECT_TRUE(commands.Has("DoOneThing"));
}

TEST(MainWindowState, ANameThatNobodySwitchedIsOnShownAndNotChecked) {
    const CommandTable commands;
    const MainWindow mainWindow(commands);
    EXPECT_TRUE(mainWindow.MenuEnabled("mnuSave"));
    EXPECT_TRUE(mainWindow.MenuShown("mnuSave"));
    EXPECT_FALSE(mainWindow.MenuChecked("mnuSave"));
    EXPECT_EQ(mainWindow.MenuCaption("mnuSaveAs"), "SaveAs");
    EXPECT_TRUE(mainWindow.ButtonEnabled("toolMain", "Save"));
    EXPECT_TRUE(mainWindow.ButtonShown("toolMain", "Save"));
    EXPECT_TRUE(mainWindow.ToolbarShown("toolMain"));
}

TEST(MainWindowState, KeepsWhatItIsTold) {
    const CommandTable commands;
    MainWindow mainWindow(commands);
    mainWindow.EnableMenu("mnuSave", false);
    mainWindow.ShowMenu("mnuSave", false);
    mainWindow.CheckMenu("mnuSave", true);
    mainWindow.SetMenuCaption("mnuSave", "Keep");
    mainWindow.EnableButton("toolMain", "Save", false);
    mainWindow.ShowButton("toolMain", "New", false);
    mainWindow.ShowToolbar("toolData", false);
    EXPECT_FALSE(mainWindow.MenuEnabled("mnuSave"));
    EXPECT_FALSE(mainWindow.MenuShown("mnuSave"));
    EXPECT_TRUE(mainWindow.MenuChecked("mnuSave"));
    EXPECT_EQ(mainWindow.MenuCaption("mnuSave"), "Keep");
    EXPECT_FALSE(mainWindow.ButtonEnabled("toolMain", "Save"));
    EXPECT_TRUE(mainWindow.ButtonShown("toolMain", "Save"));
    EXPECT_FALSE(mainWindow.ButtonShown("toolMain", "New"));
    EXPECT_TRUE(mainWindow.ButtonEnabled("toolMain", "New"));
    EXPECT_FALSE(mainWindow.ToolbarShown("toolData"));
    EXPECT_TRUE(mainWindow.MenuEnabled("mnuSaveAs")) << "another one";
}

TEST(MainWindowState, ANameThatNoCommandHasIsAnError) {
    const CommandTable commands;
    MainWindow mainWindow(commands);
    EXPECT_THROW(mainWindow.EnableMenu("mnuSav", true), std::logic_error);
    EXPECT_THROW((void)mainWindow.MenuEnabled("mnuSav"), std::logic_error);
    EXPECT_THROW(mainWindow.CheckMenu("mnuSav", true), std::logic_error);
    EXPECT_THROW((void)mainWindow.MenuChecked("mnuSav"), std::logic_error);
    EXPECT_THROW(mainWindow.ShowMenu("mnuSav", true), std::logic_error);
    EXPECT_THROW((void)mainWindow.MenuShown("mnuSav"), std::logic_error);
    EXPECT_THROW(mainWindow.SetMenuCaption("mnuSav", ""), std::logic_error);
    EXPECT_THROW((void)mainWindow.MenuCaption("mnuSav"), std::logic_error);
    EXPECT_THROW(mainWindow.EnableButton("toolMain", "Sav", true), std::logic_error);
    EXPECT_THROW((void)mainWindow.ButtonEnabled("toolMain", "Sav"), std::logic_error);
    EXPECT_THROW(mainWindow.ShowButton("toolMain", "Sav", true), std::logic_error);
    EXPECT_THROW((void)mainWindow.ButtonShown("toolMain", "Sav"), std::logic_error);
    EXPECT_THROW(mainWindow.ShowToolbar("toolSave", true), std::logic_error);
    EXPECT_THROW((void)mainWindow.ToolbarShown("toolSave"), std::logic_error);
}

} // namespace
} // namespace dorvan::test
