#include "session/session.h"

#include "numbers/number_text.h"
#include "session/menus.h"
#include "session/registry.h"
#include "support/command_switches.h"
#include "support/test_platform.h"

#include <gtest/gtest.h>

#include <bit>
#include <clocale>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>

namespace dorvan::test {
namespace {

TEST(StartSession, SeedsTheRandomSource) {
    TestSession test;
    StartSession(test.session, 77, "");
    RandomSource expected(77);
    EXPECT_EQ(test.session.random.Draw(), expected.Draw());
}

TEST(StartSession, ShowsTheMainToolbarAloneAndChecksItsMenuItem) {
    TestSession test;
    EXPECT_TRUE(test.session.mainWindow.ToolbarShown("toolMain"));
    for (const auto* toolbar : {"toolMatrix", "toolDiagram", "toolData", "toolBitmap"})
        EXPECT_FALSE(test.session.mainWindow.ToolbarShown(toolbar)) << toolbar;
    EXPECT_TRUE(test.session.mainWindow.MenuChecked("mnuOToolbar"));
}

TEST(StartSession, NamesTheVersionInTheCaption) {
    TestSession test;
    EXPECT_EQ(test.session.mainWindow.Caption, "Dorvan 3.3.44");
    EXPECT_EQ(MainCaption({.Major = 10, .Minor = 0, .Revision = 7}), "Dorvan 10.0.7");
}

// The locale of the process for as long as it lives.
class Locale {
public:
    explicit Locale(const char* name) {
        if (const char* before = std::getenv("LC_ALL")) before_ = before;
        ::setenv("LC_ALL", name, 1);
        if (!std::setlocale(LC_ALL, "")) ADD_FAILURE() << "the locale for tests is missing: " << name;
    }
    ~Locale() {
        ::unsetenv("LC_ALL");
        if (before_) ::setenv("LC_ALL", before_->c_str(), 1);
        std::setlocale(LC_ALL, "C");
    }
    Locale(const Locale&) = delete;
    Locale& operator=(const Locale&) = delete;

private:
    std::optional<std::string> before_;
};

TEST(StartSession, TakesSeparatorAndCodePageFromTheLocale) {
    TestSession test;
    {
        const Locale polish("pl_PL.UTF-8");
        StartSession(test.session, 1, "");
        EXPECT_EQ(test.session.DecimalSeparator, ',');
        EXPECT_EQ(test.session.codePage.Number(), 1250);
    }
    const Locale plain("C");
    StartSession(test.session, 1, "");
    EXPECT_EQ(test.session.DecimalSeparator, '.');
    EXPECT_EQ(test.session.codePage.Number(), 1252);
}

TEST(StartSession, SetsTheDefaults) {
    TestSession test;
    auto& session = test.session;
    session.CurrentDiagType = 3;
    session.CurrentOrderMethod = 4;
    session.CurrentDistType = 9;
    session.MatrixTextSeparator = 3;
    session.DataTextSeparator = 3;
    session.DataTextNames = 0;
    session.MaxDiagramRecords = 0;
    StartSession(session, 1, "the-folder");
    EXPECT_EQ(session.AppPath, "the-folder");
    EXPECT_EQ(session.MaxDiagramRecords, 250);
    EXPECT_EQ(session.CurrentDiagType, 2);
    EXPECT_EQ(session.CurrentOrderMethod, 1);
    EXPECT_EQ(session.CurrentDistType, 1);
    EXPECT_EQ(session.MatrixTextSeparator, 1);
    EXPECT_EQ(session.DataTextSeparator, 1);
    EXPECT_EQ(session.DataTextNames, 1);
    EXPECT_EQ(session.mainWindow.TypeOfForm, "MAIN");
}

TEST(StartSession, LeavesTheOtherValuesAtZero) {
    TestSession test;
    const auto& session = test.session;
    EXPECT_EQ(session.Par_P, 0);
    EXPECT_EQ(session.Par_R, 0);
    EXPECT_EQ(session.DialogOutcome, 0);
    EXPECT_EQ(session.OutputDialogOutcome, 0);
    EXPECT_EQ(session.PendingRecCount, 0);
    EXPECT_EQ(session.PendingVarCount, 0);
    EXPECT_EQ(session.NewWindowIndex, 0);
    EXPECT_EQ(session.DiagramBusy, 0);
    EXPECT_FALSE(session.DiagramFromMatrix);
    EXPECT_FALSE(session.tables.DataHasNA);
    EXPECT_EQ(session.SectionLimits.Count(), 0);
    EXPECT_EQ(session.tables.RecordNames.Count(), 0);
    EXPECT_EQ(session.tables.VariableNames.Count(), 0);
    EXPECT_EQ(session.tables.RecordHasNA.Count(), 0);
    EXPECT_EQ(session.tables.DataValues.Rows(), 0);
    EXPECT_EQ(session.tables.DistanceValues.Rows(), 0);
}

TEST(StartSession, BuildsARegistryWhoseSlotOneIsFree) {
    TestSession test;
    const auto& session = test.session;
    for (const auto* windows :
         {&session.DataWindows, &session.MatrixWindows, &session.DiagramWindows, &session.BitmapWindows})
        EXPECT_EQ(windows->size(), 2u);
    for (const auto* states :
         {&session.DataStates, &session.MatrixStates, &session.DiagramStates, &session.BitmapStates}) {
        ASSERT_EQ(states->size(), 2u);
        EXPECT_FALSE(states->at(0).Deleted);
        EXPECT_TRUE(states->at(1).Deleted);
        EXPECT_FALSE(states->at(1).Dirty);
    }
    EXPECT_EQ(session.MatrixDocuments.size(), 2u);
    EXPECT_EQ(session.DiagramDocuments.size(), 2u);
}

TEST(StartSession, TurnsOffWhatNeedsADocument) {
    TestSession test;
    for (const auto& name : SwitchedNames()) EXPECT_FALSE(IsOn(test.session.mainWindow, name)) << name;
}

TEST(StartSession, LoadsTheRecentFilesBeforeTheCommandsGoOff) {
    TestSession test;
    auto& session = test.session;
    session.mainWindow.EnableMenu("mnuSave", true);
    session.mainWindow.TypeOfForm.clear();
    test.settings.onRead = [&] {
        EXPECT_EQ(session.MaxDiagramRecords, 250);
        EXPECT_TRUE(session.mainWindow.MenuEnabled("mnuSave"));
        EXPECT_EQ(session.mainWindow.TypeOfForm, "");
    };
    test.settings.sections["Recent Files"]["RecentFile1"] = "a.mdt";
    StartSession(session, 1, "");
    EXPECT_FALSE(session.mainWindow.MenuEnabled("mnuSave"));
    EXPECT_TRUE(session.mainWindow.MenuShown(RecentFileItem(0)));
    EXPECT_FALSE(session.mainWindow.MenuShown(RecentFileItem(1)));
}

TEST(DecimalSeparator, IsTheFirstOfPointAndCommaInTheLocalesNumber) {
    EXPECT_EQ(DecimalSeparatorIn("1.234"), '.');
    EXPECT_EQ(DecimalSeparatorIn("1,234"), ',');
    EXPECT_EQ(DecimalSeparatorIn("1'234"), '.');
    EXPECT_EQ(std::bit_cast<std::uint64_t>(1.234), 0x3FF3BE76C8B43958u);
}

TEST(ParseSheetNumber, ReadsPointAndCommaAlikeUnderEitherLocale) {
    for (const char separator : {'.', ','}) {
        EXPECT_EQ(ParseSheetNumber("1.5", separator), 1.5f);
        EXPECT_EQ(ParseSheetNumber("1,5", separator), 1.5f);
        EXPECT_EQ(ParseSheetNumber("15", separator), 15.0f);
    }
}

TEST(ParseSheetNumber, ReplacesNothingWhereTheSeparatorStands) {
    EXPECT_THROW(ParseSheetNumber("1.000,5", ','), RuntimeFailure);
    EXPECT_THROW(ParseSheetNumber("1,000.5", '.'), RuntimeFailure);
}

TEST(ParseSheetNumber, RefusesWhatIsNoNumber) {
    try {
        ParseSheetNumber("stone", '.');
        FAIL();
    } catch (const RuntimeFailure& failure) {
        EXPECT_EQ(failure.Kind(), Failure::TypeMismatch);
    }
}

TEST(NaValue, IsOneExactFloat) {
    EXPECT_EQ(std::bit_cast<std::uint32_t>(NaValue), 0xCB18967Fu);
    EXPECT_EQ(static_cast<float>(static_cast<double>(NaValue)), NaValue);
    EXPECT_EQ(ParseSheetNumber("-9999999", '.'), NaValue);
    EXPECT_EQ(NaText, "N/A");
}

struct OneRoom {
    int Value = 3;
};
struct OtherRoom {
    int Value = 4;
};

TEST(SessionOf, MakesTheValuesOfARoomOnceForEachSession) {
    TestSession test;
    TestSession other;
    EXPECT_EQ(test.session.Of<OneRoom>().Value, 3);
    test.session.Of<OneRoom>().Value = 5;
    EXPECT_EQ(test.session.Of<OneRoom>().Value, 5);
    EXPECT_EQ(test.session.Of<OtherRoom>().Value, 4);
    EXPECT_EQ(other.session.Of<OneRoom>().Value, 3);
}

} // namespace
} // namespace dorvan::test
