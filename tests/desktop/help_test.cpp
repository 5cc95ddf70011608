#include "desktop_test.h"

#include "desktop/qt_text.h"
#include "support/golden.h"

#include <QDesktopServices>
#include <QUrl>

#include <filesystem>
#include <vector>

namespace dorvan::test {

// Stands in for the desktop's own viewer of pages.
class Viewer : public QObject {
    Q_OBJECT

public:
    Viewer() { QDesktopServices::setUrlHandler("file", this, "Show"); }
    ~Viewer() override { QDesktopServices::unsetUrlHandler("file"); }
    Q_INVOKABLE void Show(const QUrl& page) { shown.push_back(FromQt(page.toLocalFile())); }

    std::vector<std::string> shown;
};

class HelpTest : public DesktopTest {};

TEST_F(HelpTest, TheGuideWhereNoHelpFileIsThere) {
    Viewer viewer;
    desktop.OfferGuide("/guide/guide.html");
    Click("mnuDorvanHelp");
    EXPECT_EQ(viewer.shown, std::vector<std::string>{"/guide/guide.html"});
}

TEST_F(HelpTest, TheHelpFileWhereItIsThere) {
    const TemporaryFolder folder;
    writeFile(folder / "Dorvan.hlp", "help");
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(folder.path());
    Viewer viewer;
    desktop.OfferGuide("/guide/guide.html");
    Click("mnuDorvanHelp");
    std::filesystem::current_path(before);
    EXPECT_EQ(viewer.shown, std::vector<std::string>{folder / "Dorvan.hlp"});
}

// A help file that is set but stands nowhere: the viewer's own description, in a plain box.
TEST_F(HelpTest, WithNeitherThereIsTheReason) {
    desktop.session.HelpFile = "Dorvan.hlp";
    AnswerNext("OK", "There is no help file Dorvan.hlp.");
    Click("mnuDorvanHelp");
}

TEST_F(HelpTest, TheGuideStandsBesideTheProgramThatWasBuiltOrInstalled) {
    const TemporaryFolder folder;
    EXPECT_EQ(GuidePage(ToQt(folder / "bin")), "");
    std::filesystem::create_directories(folder / "bin");
    std::filesystem::create_directories(folder / "bin/docs/guide");
    writeFile(folder / "bin/docs/guide/guide.html", "built");
    EXPECT_EQ(FromQt(GuidePage(ToQt(folder / "bin"))), folder / "bin/docs/guide/guide.html");
    std::filesystem::create_directories(folder / "share/doc/dorvan/guide");
    writeFile(folder / "share/doc/dorvan/guide/guide.html", "installed");
    EXPECT_EQ(FromQt(GuidePage(ToQt(folder / "bin"))), folder / "share/doc/dorvan/guide/guide.html");
}

} // namespace dorvan::test

#include "help_test.moc"
