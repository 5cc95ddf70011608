#include "session/children.h"

#include "session/history.h"
#include "session/open_documents.h"
#include "session/window_owner.h"
#include "session/window_switches.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstdint>

namespace dorvan {

namespace {

auto Place(Session& session, const ChildWindow& window) {
    return std::find_if(session.Children.begin(), session.Children.end(),
                        [&](const auto& child) { return child.get() == &window; });
}

// How often another window became the active one.
struct Switches {
    std::int64_t Count = 0;
};

void SwitchActive(Session& session, ChildWindow* window) {
    if (session.ActiveWindow == window) return;
    ++session.Of<Switches>().Count;
    if (session.ActiveWindow) session.ActiveWindow->Form_Deactivate();
    session.ActiveWindow = window;
    if (window) window->Form_Activate();
    ShowHistory(session);
    ShowDocuments(session);
}

} // namespace

void ShowChild(Session& session, ChildWindow& window) {
    const auto owner = OwnerOf(session, window);
    if (owner && Place(session, window) == session.Children.end()) session.Children.push_back(owner);
    window.Visible = true;
    session.platform.children.show(window);
    ActivateChild(session, window);
    const bool isOpen = Place(session, window) != session.Children.end(); // it may have closed meanwhile
    if (!isOpen || session.ActiveWindow == &window) return;
    session.platform.children.show(window); // another one came to the front
    ActivateChild(session, window);
}

// The field that loses the focus may let events run: only then is it told whether the window is still there,
// and whether another one has come to the front, which then stays there; also where that is the one before.
void ActivateChild(Session& session, ChildWindow& window) {
    const auto owner = OwnerOf(session, window);
    const auto before = session.ActiveWindow ? OwnerOf(session, *session.ActiveWindow) : nullptr;
    const auto switches = session.Of<Switches>().Count;
    if (before && before.get() != &window) before->LeaveField();
    const bool isOpen = before && Place(session, *before) != session.Children.end();
    if (isOpen && session.Of<Switches>().Count != switches) return;
    const auto place = Place(session, window);
    if (place == session.Children.end()) return;
    std::rotate(place, place + 1, session.Children.end());
    SwitchActive(session, &window);
}

bool CloseChild(Session& session, ChildWindow& window) {
    const auto asked = Place(session, window);
    if (asked == session.Children.end()) return true;
    const std::shared_ptr<ChildWindow> keepAlive = *asked;
    window.LeaveField();
    if (!window.Form_QueryUnload()) return false;
    if (Place(session, window) == session.Children.end()) return true; // closed while the question stood
    if (session.onClosing) session.onClosing(window);
    if (session.ActiveWindow == &window) {
        window.Form_Deactivate();
        session.ActiveWindow = nullptr;
    }
    window.Form_Unload();
    window.Visible = false;
    std::erase(session.Children, keepAlive);
    session.platform.children.close(window);
    ForgetHistory(session, window);
    ShowDocuments(session);
    if (session.Children.empty())
        DisableDocumentCommands(session.mainWindow);
    else if (!session.ActiveWindow)
        SwitchActive(session, session.Children.back().get());
    return true;
}

bool CloseAllChildren(Session& session) {
    while (!session.Children.empty())
        if (!CloseChild(session, *session.Children.back())) return false;
    return true;
}

Answer AskToSave(Session& session, const std::string& what, const std::string& name, MessageIcon icon) {
    return session.platform.messages.show(
        {.Text = fmt::format("The {} in [{}] has changed.\r\nDo you want to save the changes?", what, name),
         .Icon = icon,
         .Buttons = MessageButtons::YesNoCancel,
         .Title = session.mainWindow.Caption});
}

void PlaceNewWindow(Session& session, ChildWindow& window) {
    window.Mode = WindowMode::Normal;
    window.Width = static_cast<int>(static_cast<float>(0.95 * session.platform.screen.width()));
    window.Height = static_cast<int>(static_cast<float>(0.8 * session.platform.screen.height()));
    window.Left = 0;
    window.Top = 0;
}

} // namespace dorvan
