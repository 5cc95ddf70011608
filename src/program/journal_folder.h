#pragma once

#include "program/document_copies.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace dorvan {

// A document that a run left in the journal, or that was closed unsaved.
struct LeftDocument {
    std::string File;    // in the journal
    std::string Path;    // of its own file; empty when it had none
    std::string Caption; // of its window then
    int CodePageNumber = 0;
};

// The journal on the disk, in the folder of the user's state:
//
//     journal/<run>/lock       locked for as long as the run lives
//     journal/<run>/3.mdt      document 3 as it stood
//     journal/<run>/3.origin   where it belongs: path, caption, code page, a line each
//     closed/<time>.mdt        one of the last ten that were closed unsaved, with its .origin
//
// All is for its owner alone. Not for two threads at once. Each operation fails with a std::exception when
// the disk fails; what was written before is whole.
class JournalFolder {
public:
    static constexpr std::size_t MostClosed = 10;

    explicit JournalFolder(std::string stateFolder);
    ~JournalFolder();
    JournalFolder(const JournalFolder&) = delete;
    JournalFolder& operator=(const JournalFolder&) = delete;

    // Brings the copy of an open document up to date; there is none of one that its own file holds. False:
    // it does.
    bool Keep(std::uint64_t number, const DocumentSnapshot& document);
    void Forget(std::uint64_t number);

    // Keeps a document that closes, unless its own file holds it. The oldest of eleven goes.
    void KeepClosed(const DocumentSnapshot& document);

    // The document closed last; nothing when there is none.
    std::optional<LeftDocument> LastClosed() const;

    // What runs that are no longer alive have left, and the end of that: their folders go.
    std::vector<LeftDocument> LeftByOtherRuns() const;
    void RemoveOtherRuns();
    // The same, but the documents are kept among the closed ones.
    void CloseOtherRuns();

    void Remove(const LeftDocument& document);

    // A clean end: nothing of this run stays but what was closed.
    void RemoveThisRun();

private:
    void MakeThisRun();
    std::vector<std::string> OtherRuns() const;
    void PutClosed(const std::string& bytes, const std::string& extension, const std::string& origin);

    struct Kept {
        std::string File;
        std::size_t Hash = 0;
    };

    std::string folder_;
    std::string run_; // empty until there is something to keep
    int lock_ = -1;
    std::map<std::uint64_t, Kept> kept_;
};

} // namespace dorvan
