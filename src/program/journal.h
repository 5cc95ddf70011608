#pragma once

#include "program/journal_folder.h"
#include "session/session.h"

#include <atomic>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>

// Copies of all open documents that no file holds, kept while the program runs, so that no end of it loses
// them.
namespace dorvan {

class Journal {
public:
    // How long changes may go unseen; the writing comes on top.
    static constexpr double SecondsBetweenLooks = 1.0;
    // After a failure of the disk all is written once more.
    static constexpr double SecondsBetweenRetries = 10.0;

    // Work that another thread does, one piece after the other.
    using Background = std::function<void(std::function<void()>)>;

    // The folder is touched by pieces of background work alone.
    Journal(JournalFolder& folder, Background background);

    // Hands over what has changed since the last look; nothing before the time has come. `seconds` of a clock
    // that never goes back. Fails with the failure of a document that could not be copied once all others
    // are.
    void Look(const Session& session, double seconds);

    // No file holds the document as it stood when it was seen last. False also before that.
    bool IsUnsaved(const ChildWindow& window) const;

    // A document that no file holds is kept when its window closes.
    void DocumentCloses(const Session& session, const ChildWindow& window);

    // Keeps what is open now, which holds all that other runs have left, and then drops those.
    void TakeOverOtherRuns(const Session& session);
    // The same for one document that is open again.
    void TakeOver(const Session& session, const LeftDocument& document);
    // What other runs have left is kept among the closed documents.
    void CloseOtherRuns();

    // A clean end. What is still open (the user did not answer a question and left all the same) is closed.
    void EndCleanly(const Session& session);

private:
    // What tells a changed document from the one seen last, without a look at its cells.
    struct Seen {
        std::weak_ptr<const ChildWindow> Window;
        std::uint64_t Number = 0;
        std::string State;
        std::shared_ptr<std::atomic<bool>> Unsaved; // told by the other thread
    };

    void LookAt(const Session& session, const std::shared_ptr<ChildWindow>& window);
    void ForgetClosed(const Session& session);
    void InBackground(std::function<void()> piece); // one that will be tried again
    void KeepAndThen(const Session& session, std::function<void()> drop);

    JournalFolder& folder_;
    Background background_;
    std::map<const ChildWindow*, Seen> seen_;
    std::uint64_t last_ = 0;
    double next_ = 0;
    double retry_ = 0;
    std::atomic<bool> failed_ = false; // set by background work
};

// Opens a document of the journal as it was: under its own file's name, or untitled, and changed. False when
// it could not be opened; a message has said why.
bool Reopen(Session& session, const LeftDocument& document);

// Offers what other runs have left and takes it over. What is not wanted is among the closed documents then.
void OfferLeftDocuments(Session& session, const JournalFolder& folder, Journal& journal);

// The command that opens the document closed last again.
void ReopenClosedDocument(Session& session, const JournalFolder& folder, Journal& journal);

} // namespace dorvan
