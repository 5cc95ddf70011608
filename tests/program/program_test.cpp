#include "program/program.h"

#include "program/registering.h"
#include "session/frmMDI.h"
#include "support/test_platform.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <string>

namespace dorvan::test {
namespace {

// The operations that a command names and that are not built yet. Whoever builds one registers it in its
// room's file of src/program and takes its line out here; the test below fails until both are done.
constexpr const char* NotBuiltYet[] = {
    // Structure of a sheet, standardization
    "AddRecord",
    "AddVariable",
    "DeleteRecord",
    "DeleteVariable",
    "EditVariables",
    "Standardization",
    // Recent files
    "LoadRecentFiles",
    "OpenRecentFile",
    "UpdateRecentFiles",
    // Imports
    "ImportDBase",
    "ImportMatrix",
    "ImportText",
    // Exports
    "ExportData",
    "ExportDataToExcel",
    "frmDiagram.ExportDiagramToExcel",
    "frmDiagram.Metafile",
    "frmMacierz.ExportMatrix",
    "frmMacierz.ExportMatrixToExcel",
    // Printing
    "frmDiagram.PrintDiagram",
    "frmMacierz.PrintMatrix",
    // Pictures and derived documents
    "frmBMP.BitmapClip",
    "frmBMP.SaveBMP",
    "frmDiagram.BITMAP",
    "frmDiagram.DataOrder",
    "frmDiagram.DiagramType",
    "frmDiagram.Histogram",
    "frmDiagram.Linear",
    "frmDiagram.Matrix",
    // Registered by who keeps the journal, which a run without a screen has not
    "ReopenClosedDocument",
};

TEST(Compose, EveryOperationThatACommandNamesIsRegisteredOrKnownToBeMissing) {
    TestSession test;
    Compose(test.session);
    const frmMDI main(test.session);
    for (const auto& operation : test.session.commands.Operations()) {
        const bool missing =
            std::find(std::begin(NotBuiltYet), std::end(NotBuiltYet), operation) != std::end(NotBuiltYet);
        EXPECT_NE(test.session.commands.Has(operation), missing)
            << operation << (missing ? " is registered: take it out of the list" : " is not registered");
    }
    for (const auto* operation : NotBuiltYet)
        EXPECT_TRUE(test.session.commands.Operations().contains(operation)) << operation;
}

TEST(Register, PassesThePathOrTheNumberThatAnOperationTakes) {
    static std::string calls;
    calls.clear();
    TestSession test;
    Register(
        test.session, "LoadRecentFiles", +[](Session&) { calls += "load;"; });
    Register(
        test.session, "UpdateRecentFiles", +[](Session&, const std::string& path) { calls += path; });
    Register(
        test.session, "OpenRecentFile",
        +[](Session&, std::int16_t number) { calls += ";" + std::to_string(number); });
    test.session.commands.Call("LoadRecentFiles");
    test.session.commands.Call("UpdateRecentFiles", {.Index = 0, .Path = "a.mdt"});
    test.session.commands.Call("OpenRecentFile", {.Index = 3, .Path = {}});
    EXPECT_EQ(calls, "load;a.mdt;3");
}

} // namespace
} // namespace dorvan::test
