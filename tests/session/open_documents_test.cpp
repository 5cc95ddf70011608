#include "session/open_documents.h"

#include "fake_window.h"
#include "session/frmMDI.h"
#include "session/popup_menus.h"

#include <gtest/gtest.h>

namespace dorvan::test {
namespace {

struct DocumentsSession : FakeWindowSession {
    frmMDI shell{session};

    DocumentsSession() {
        session.commands.Set("ActivateDocument",
                             [this](const CommandCall& call) { ActivateDocument(session, call.Index); });
    }
    std::vector<std::string> Shown() const {
        std::vector<std::string> captions;
        for (int number = 1; number <= DocumentItems; ++number)
            if (shell.MenuShown(DocumentItem(number)))
                captions.push_back(session.mainWindow.MenuCaption(DocumentItem(number)) +
                                   (session.mainWindow.MenuChecked(DocumentItem(number)) ? " *" : ""));
        return captions;
    }
};

using Captions = std::vector<std::string>;

TEST(OpenDocuments, AreListedFromTheActiveOneOn) {
    DocumentsSession test;
    auto& first = test.Open(DocumentKind::Data);
    test.Open(DocumentKind::Matrix);
    test.Open(DocumentKind::Diagram);
    EXPECT_EQ(test.Shown(),
              (Captions{"&1 [DIAGRAM]: Untitled:1 *", "&2 [MATRIX]: Untitled:1", "&3 [DATA]: Untitled:1"}));
    ActivateChild(test.session, first);
    EXPECT_EQ(test.Shown(),
              (Captions{"&1 [DATA]: Untitled:1 *", "&2 [DIAGRAM]: Untitled:1", "&3 [MATRIX]: Untitled:1"}));
    CloseChild(test.session, first);
    EXPECT_EQ(test.Shown(), (Captions{"&1 [DIAGRAM]: Untitled:1 *", "&2 [MATRIX]: Untitled:1"}));
}

TEST(OpenDocuments, TheItemActivatesItsWindow) {
    DocumentsSession test;
    auto& first = test.Open(DocumentKind::Data);
    test.Open(DocumentKind::Data);
    first.Mode = WindowMode::Minimized;
    test.children.log.clear();
    test.shell.MenuClick(DocumentItem(2));
    EXPECT_EQ(test.session.ActiveWindow, &first);
    EXPECT_EQ(first.Mode, WindowMode::Normal);
    EXPECT_EQ(test.children.log, (Captions{"show [DATA]: Untitled:1"}));
    EXPECT_EQ(test.Shown().front(), "&1 [DATA]: Untitled:1 *");
    test.shell.MenuClick(DocumentItem(3));
    EXPECT_EQ(test.session.ActiveWindow, &first);
}

TEST(OpenDocuments, TheMenuIsOffWithoutAWindow) {
    DocumentsSession test;
    ShowDocuments(test.session);
    EXPECT_FALSE(test.shell.MenuEnabled("mnuExtrasDocuments"));
    EXPECT_EQ(test.Shown(), Captions{});
    auto& window = test.Open(DocumentKind::Data);
    EXPECT_TRUE(test.shell.MenuEnabled("mnuExtrasDocuments"));
    CloseChild(test.session, window);
    EXPECT_FALSE(test.shell.MenuEnabled("mnuExtrasDocuments"));
}

TEST(OpenDocuments, ACaptionOfASaveShowsWhenTheMenuOpens) {
    DocumentsSession test;
    test.Open(DocumentKind::Data).Caption = "[DATA]: /home/salt & pepper.mdt";
    test.shell.MenuOpens("mnuExtras");
    EXPECT_EQ(test.Shown(), (Captions{"&1 [DATA]: /home/salt && pepper.mdt *"}));
}

TEST(OpenDocuments, AreListedAsFarAsThereAreItems) {
    DocumentsSession test;
    for (int window = 0; window < DocumentItems + 2; ++window) test.Open(DocumentKind::Data);
    const auto shown = test.Shown();
    ASSERT_EQ(shown.size(), std::size_t(DocumentItems));
    EXPECT_EQ(shown[8], "&9 [DATA]: Untitled:24");
    EXPECT_EQ(shown[9], "[DATA]: Untitled:23");
}

TEST(PopUpItems, AreItemsAndButtonsThatTheKindHas) {
    const CommandTable commands;
    for (const auto kind : {DocumentKind::Matrix, DocumentKind::Diagram, DocumentKind::Bitmap}) {
        EXPECT_FALSE(PopUpItems(kind).empty());
        for (const auto item : PopUpItems(kind)) {
            if (item == "-") continue;
            const auto dot = item.find('.');
            if (dot != std::string_view::npos)
                EXPECT_FALSE(
                    commands.Button(item.substr(0, dot), item.substr(dot + 1)).Calls.For(kind).empty())
                    << kind << ' ' << item;
            else
                EXPECT_FALSE(commands.Item(item).Calls.For(kind).empty()) << kind << ' ' << item;
        }
    }
    EXPECT_TRUE(PopUpItems(DocumentKind::Data).empty());
}

} // namespace
} // namespace dorvan::test
