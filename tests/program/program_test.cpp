#include "program/program.h"

#include "program/registering.h"
#include "session/frmMDI.h"
#include "support/test_platform.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace dorvan::test {
namespace {

// Who keeps the journal registers it; a run without a screen has none.
constexpr std::string_view OfTheJournal = "ReopenClosedDocument";

TEST(Compose, EveryOperationThatACommandNamesIsRegistered) {
    TestSession test;
    Compose(test.session);
    const frmMDI main(test.session);
    for (const auto& operation : test.session.commands.Operations())
        EXPECT_NE(test.session.commands.Has(operation), operation == OfTheJournal) << operation;
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
