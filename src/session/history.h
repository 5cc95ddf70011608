#pragma once

#include "session/session.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

// Undo and redo: the steps that the user has taken in each open document, as values.
namespace dorvan {

// What one step changed in a document. It is given the document's window, and leaves `Dirty` alone.
struct DocumentChange {
    virtual ~DocumentChange() = default;
    virtual void Undo(ChildWindow& window) const = 0;
    virtual void Redo(ChildWindow& window) const = 0;
};

// The steps of one document, without an end. A new step drops those that were taken back.
class History {
public:
    void Record(std::string name, std::unique_ptr<const DocumentChange> change);

    bool CanUndo() const { return done_ > 0; }
    bool CanRedo() const { return done_ < steps_.size(); }
    const std::string& UndoName() const { return steps_.at(done_ - 1).Name; } // "Move Georgia Up"
    const std::string& RedoName() const { return steps_.at(done_).Name; }
    void Undo(ChildWindow& window);
    void Redo(ChildWindow& window);

private:
    struct Step {
        std::string Name;
        std::unique_ptr<const DocumentChange> Change;
    };

    std::vector<Step> steps_;
    std::size_t done_ = 0; // those behind were taken back
};

// The history of an open window's document. It ends with the window.
History& HistoryOf(Session& session, const ChildWindow& window);
void ForgetHistory(Session& session, const ChildWindow& window);

// One more step of the window's document. A window that stands in no slot has no history.
void RecordStep(Session& session, const ChildWindow& window, std::string name,
                std::unique_ptr<const DocumentChange> change);

// The items Undo and Redo name the next steps of the active window, and are on where there are any.
void ShowHistory(Session& session);

inline constexpr std::string_view UndoItem = "mnuExtrasUndo";
inline constexpr std::string_view RedoItem = "mnuExtrasRedo";

} // namespace dorvan
