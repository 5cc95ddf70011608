#include "session/history.h"

#include "numbers/text.h"
#include "session/window_owner.h"

#include <fmt/format.h>

#include <map>
#include <utility>

namespace dorvan {

namespace {

struct Histories {
    struct Entry {
        std::weak_ptr<const ChildWindow> Window; // another one may stand at its place in memory later
        History Steps;
    };
    std::map<const ChildWindow*, Entry> OfWindows;
};

void ShowItem(MainWindow& mainWindow, std::string_view item, std::string_view verb, const std::string* step) {
    const std::string name = step ? " " + ReplaceAll(*step, "&", "&&") : std::string();
    mainWindow.SetMenuCaption(item, fmt::format("&{}{}", verb, name));
    mainWindow.EnableMenu(item, step != nullptr);
}

} // namespace

void History::Record(std::string name, std::unique_ptr<const DocumentChange> change) {
    steps_.resize(done_);
    steps_.push_back({std::move(name), std::move(change)});
    ++done_;
}

void History::Undo(ChildWindow& window) {
    steps_.at(done_ - 1).Change->Undo(window);
    --done_;
}

void History::Redo(ChildWindow& window) {
    steps_.at(done_).Change->Redo(window);
    ++done_;
}

History& HistoryOf(Session& session, const ChildWindow& window) {
    auto& entry = session.Of<Histories>().OfWindows[&window];
    const auto owner = OwnerOf(session, window);
    if (entry.Window.lock() != owner) entry = {owner, {}};
    return entry.Steps;
}

void ForgetHistory(Session& session, const ChildWindow& window) {
    session.Of<Histories>().OfWindows.erase(&window);
    ShowHistory(session);
}

void RecordStep(Session& session, const ChildWindow& window, std::string name,
                std::unique_ptr<const DocumentChange> change) {
    if (!OwnerOf(session, window)) return;
    HistoryOf(session, window).Record(std::move(name), std::move(change));
    ShowHistory(session);
}

void ShowHistory(Session& session) {
    const History* history = session.ActiveWindow ? &HistoryOf(session, *session.ActiveWindow) : nullptr;
    ShowItem(session.mainWindow, UndoItem, "Undo",
             history && history->CanUndo() ? &history->UndoName() : nullptr);
    ShowItem(session.mainWindow, RedoItem, "Redo",
             history && history->CanRedo() ? &history->RedoName() : nullptr);
}

} // namespace dorvan
