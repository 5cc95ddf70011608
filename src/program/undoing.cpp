#include "program/undoing.h"

#include "program/document_copies.h"
#include "session/busy.h"
#include "session/history.h"
#include "session/registry.h"
#include "session/status_bar.h"

namespace dorvan {

namespace {

void MarkByItsFile(Session& session, const ChildWindow& window) {
    const auto document = SnapshotOf(session, window);
    StateOfSlot(session, window.TypeOfForm, window.Index).Dirty = !document || !IsHeldByFile(*document);
}

void TakeStep(Session& session, bool (History::*can)() const, const std::string& (History::*name)() const,
              void (History::*take)(ChildWindow&), const char* told, const char* nothing) {
    if (RefusedWhileBusy(session)) return;
    ChildWindow* window = session.ActiveWindow;
    if (!window || !(HistoryOf(session, *window).*can)()) {
        return BeepBecause(session, nothing);
    }
    History& history = HistoryOf(session, *window);
    const std::string step = (history.*name)();
    const WaitCursor waiting(session.platform);
    (history.*take)(*window);
    MarkByItsFile(session, *window);
    ShowHistory(session);
    StatusText(session) = told + step;
}

} // namespace

void Undo(Session& session) {
    TakeStep(session, &History::CanUndo, &History::UndoName, &History::Undo,
             "Undone: ", "There is no step to take back.");
}

void Redo(Session& session) {
    TakeStep(session, &History::CanRedo, &History::RedoName, &History::Redo,
             "Redone: ", "There is no step to make again.");
}

} // namespace dorvan
