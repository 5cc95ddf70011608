#pragma once

#include "program/journal.h"

#include <QObject>

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <string>
#include <thread>

namespace dorvan {

class EventDispatch;

// Keeps the journal of a run: looks at the documents by a timer, and writes in a thread of its own.
class JournalKeeper : public QObject {
public:
    JournalKeeper(Session& session, EventDispatch& dispatch, const std::string& stateFolder);
    ~JournalKeeper() override;

    // Asks whether what earlier runs have left should be opened.
    void OfferLeftDocuments();

    // The run ends as its user wants: nothing is left for the next one. Returns when that is done.
    void EndCleanly();

private:
    void Add(std::function<void()> piece);
    void Work();
    void WaitForAll();
    void Reopen();
    void TellUnsaved();

    Session& session_;
    EventDispatch& dispatch_;
    JournalFolder folder_; // for the thread alone while there is work for it
    Journal journal_;

    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<std::function<void()>> pieces_;
    bool working_ = false;
    bool ends_ = false;
    std::thread thread_;
};

} // namespace dorvan
