#include "session/open_documents.h"

#include "numbers/text.h"
#include "session/children.h"

#include <fmt/format.h>

#include <algorithm>

namespace dorvan {

namespace {

ChildWindow* DocumentAt(const Session& session, int number) {
    const auto count = int(session.Children.size());
    return number >= 1 && number <= count ? session.Children[std::size_t(count - number)].get() : nullptr;
}

// The first nine have a digit as access key.
std::string CaptionOfItem(int number, const std::string& caption) {
    const std::string text = ReplaceAll(caption, "&", "&&");
    return number < 10 ? fmt::format("&{} {}", number, text) : text;
}

} // namespace

std::string DocumentItem(int number) { return fmt::format("mnuExtrasDocument({})", number); }

void ShowDocuments(Session& session) {
    for (int number = 1; number <= DocumentItems; ++number) {
        const std::string item = DocumentItem(number);
        const ChildWindow* window = DocumentAt(session, number);
        session.mainWindow.ShowMenu(item, window != nullptr);
        session.mainWindow.EnableMenu(item, window != nullptr);
        if (!window) continue;
        session.mainWindow.SetMenuCaption(item, CaptionOfItem(number, window->Caption));
        session.mainWindow.CheckMenu(item, window == session.ActiveWindow);
    }
}

void ActivateDocument(Session& session, std::int16_t number) {
    ChildWindow* window = DocumentAt(session, number);
    if (!window) return;
    if (window->Mode == WindowMode::Minimized) window->Mode = WindowMode::Normal;
    session.platform.children.show(*window); // to the front
    ActivateChild(session, *window);
    ShowDocuments(session);
}

} // namespace dorvan
