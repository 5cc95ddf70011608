#include "session/window_switches.h"

#include "support/command_switches.h"
#include "support/test_platform.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace dorvan::test {
namespace {

// The windows of the other kinds are tested with themselves (frmNotePad_test, frmMacierz_test,
// frmDiagram_display_test).
TEST(SwitchCommands, ABitmapSwitchesWhatItsTableSays) {
    TestSession test;
    const std::pair<WindowPhase, WindowEvent> phases[] = {
        {WindowPhase::Activated, WindowEvent::Activated},
        {WindowPhase::Deactivated, WindowEvent::Deactivated},
        {WindowPhase::Unloaded, WindowEvent::Unloaded}};
    for (const auto& [phase, event] : phases)
        ExpectSwitches(test.session, DocumentKind::Bitmap, phase,
                       [&] { SwitchCommands(test.session.mainWindow, DocumentKind::Bitmap, event); });
}

TEST(SwitchCommands, AKindOfWindowThatThereIsNotIsAnError) {
    TestSession test;
    EXPECT_THROW(SwitchCommands(test.session.mainWindow, "NOTES", WindowEvent::Activated), std::logic_error);
}

TEST(DisableDocumentCommands, TurnsOffAllThatAWindowSwitchesAndNothingElse) {
    TestSession test;
    auto& mainWindow = test.session.mainWindow;
    for (const auto& name : SwitchedNames()) SetOn(mainWindow, name, true);
    DisableDocumentCommands(mainWindow);
    for (const auto& name : SwitchedNames()) EXPECT_FALSE(IsOn(mainWindow, name)) << name;
    for (const auto* item : {"mnuFNew", "mnuFOpen", "mnuFData", "mnuFDiagram", "mnuFMatrix", "mnuImport",
                             "mnuImportTextFile", "mnuImportDBase", "mnuImportMatrix", "mnuFExit"})
        EXPECT_TRUE(mainWindow.MenuEnabled(item)) << item;
    for (const auto* key :
         {"New", "Open", "OpenMatrix", "OpenDiagram", "ImportDBF", "ImportTXT", "ImportMatrix", "Help"})
        EXPECT_TRUE(mainWindow.ButtonEnabled("toolMain", key)) << key;
    EXPECT_TRUE(mainWindow.ToolbarShown("toolMain"));
}

} // namespace
} // namespace dorvan::test
