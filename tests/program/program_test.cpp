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
    // Exports
    "ExportData",
    "ExportDataToExcel",
    "frmDiagram.ExportDiagramToExcel",
    "frmMacierz.ExportMatrix",
    "frmMacierz.ExportMatrixToExcel",
    // Printing
    "frmDiagram.PrintDiagram",
    "frmMacierz.PrintMatrix",
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
        test.session, "SaveAs", +[](Session&) { calls += "ask;"; });
    Register(
        test.session, "Save", +[](Session&, const std::string& path) { calls += path; });
    Register(
        test.session, "OpenRecentFile",
        +[](Session&, std::int16_t number) { calls += ";" + std::to_string(number); });
    test.session.commands.Call("SaveAs");
    test.session.commands.Call("Save", {.Index = 0, .Path = "a.mdt"});
    test.session.commands.Call("OpenRecentFile", {.Index = 3, .Path = {}});
    EXPECT_EQ(calls, "ask;a.mdt;3");
}

} // namespace
} // namespace dorvan::test
