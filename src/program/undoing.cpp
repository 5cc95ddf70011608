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
              void (History::*take)(ChildWindow&), const char* told) {
    if (RefusedWhileBusy(session)) return;
    ChildWindow* window = session.ActiveWindow;
    if (!window || !(HistoryOf(session, *window).*can)()) {
        session.platform.signals.beep();
        return;
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
    TakeStep(session, &History::CanUndo, &History::UndoName, &History::Undo, "Undone: ");
}

void Redo(Session& session) {
    TakeStep(session, &History::CanRedo, &History::RedoName, &History::Redo, "Redone: ");
}

} // namespace dorvan
