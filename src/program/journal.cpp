#include "program/journal.h"

#include "distance/frmMacierz.h"
#include "numbers/text.h"
#include "program/open_document.h"
#include "session/registry.h"
#include "session/status_bar.h"
#include "sheet/frmNotePad.h"
#include "view/frmDiagram.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstddef>
#include <exception>
#include <filesystem>
#include <utility>
#include <vector>

#include <sys/stat.h>

namespace dorvan {

namespace {

// Changes whenever the file at `path` does.
std::string FileStamp(const std::string& path) {
    struct stat status {};
    if (path.empty() || ::stat(path.c_str(), &status) != 0) return "none";
    return fmt::format("{}/{}/{}.{}", status.st_ino, status.st_size, status.st_mtim.tv_sec,
                       status.st_mtim.tv_nsec);
}

std::string StateOf(const ChildWindow& window) {
    std::uint64_t revision = 0;
    std::string description;
    std::string path = CaptionPath(window.Caption);
    if (const auto* sheet = dynamic_cast<const frmNotePad*>(&window)) {
        revision = sheet->Grid1.Revision();
        description = sheet->OpisText.Text;
        path = sheet->NamedFile();
    } else if (const auto* other = dynamic_cast<const GridWindow*>(&window)) {
        revision = other->Siatka.Revision();
        description = other->BottomText.Text;
    }
    return fmt::format("{}|{}|{}|{}", revision, FileStamp(path), window.Caption, description);
}

void NameAsItWas(ChildWindow& window, const LeftDocument& document) {
    const std::string kind = window.TypeOfForm;
    auto* sheet = dynamic_cast<frmNotePad*>(&window);
    if (document.Path.empty())
        window.Caption = UntitledCaption(kind, window.Index);
    else
        window.Caption = fmt::format("[{}]: {}", kind, sheet ? LowerCase(document.Path) : document.Path);
    if (sheet) sheet->FilePath = document.Path;
}

std::string ListOf(const std::vector<LeftDocument>& documents) {
    std::string list;
    for (const auto& document : documents)
        list += "\r\n  " + (document.Path.empty() ? document.Caption : document.Path);
    return list;
}

} // namespace

Journal::Journal(JournalFolder& folder, Background background)
    : folder_(folder), background_(std::move(background)) {}

void Journal::Look(const Session& session, double seconds) {
    if (seconds < next_) return;
    next_ = seconds + SecondsBetweenLooks;
    ForgetClosed(session);
    if (failed_ && seconds >= retry_) {
        failed_ = false;
        retry_ = seconds + SecondsBetweenRetries;
        for (auto& [window, seen] : seen_) seen.State.clear();
    }
    std::exception_ptr failure;
    for (const auto& window : session.Children) {
        try {
            LookAt(session, window);
        } catch (const std::exception&) {
            failure = std::current_exception(); // one that the memory does not hold twice; the others go on
        }
    }
    if (failure) std::rethrow_exception(failure);
}

void Journal::InBackground(std::function<void()> piece) {
    background_([this, piece = std::move(piece)] {
        try {
            piece();
        } catch (...) {
            failed_ = true;
            throw;
        }
    });
}

void Journal::LookAt(const Session& session, const std::shared_ptr<ChildWindow>& window) {
    Seen& seen = seen_[window.get()];
    if (seen.Window.lock() != window) {
        if (seen.Number != 0) InBackground([this, number = seen.Number] { folder_.Forget(number); });
        seen = {window, ++last_, {}, std::make_shared<std::atomic<bool>>(false)};
    }
    std::string state = StateOf(*window);
    if (state == seen.State) return;
    auto document = SnapshotOf(session, *window);
    if (!document) return;
    seen.State = std::move(state);
    InBackground([this, number = seen.Number, unsaved = seen.Unsaved,
                  copy = std::make_shared<DocumentSnapshot>(std::move(*document))] {
        *unsaved = folder_.Keep(number, *copy);
    });
}

bool Journal::IsUnsaved(const ChildWindow& window) const {
    const auto found = seen_.find(&window);
    return found != seen_.end() && *found->second.Unsaved;
}

void Journal::ForgetClosed(const Session& session) {
    std::erase_if(seen_, [&](const auto& entry) {
        const auto window = entry.second.Window.lock();
        const auto& open = session.Children;
        if (window && std::find(open.begin(), open.end(), window) != open.end()) return false;
        InBackground([this, number = entry.second.Number] { folder_.Forget(number); });
        return true;
    });
}

void Journal::DocumentCloses(const Session& session, const ChildWindow& window) {
    auto document = SnapshotOf(session, window);
    if (!document) return;
    background_([this, copy = std::make_shared<DocumentSnapshot>(std::move(*document))] {
        folder_.KeepClosed(*copy);
    });
}

// What is dropped is the last copy until then.
void Journal::KeepAndThen(const Session& session, std::function<void()> drop) {
    next_ = 0;
    Look(session, 0);
    InBackground([this, drop = std::move(drop)] {
        if (!failed_) drop();
    });
}

void Journal::TakeOverOtherRuns(const Session& session) {
    KeepAndThen(session, [this] { folder_.RemoveOtherRuns(); });
}

void Journal::TakeOver(const Session& session, const LeftDocument& document) {
    KeepAndThen(session, [this, document] { folder_.Remove(document); });
}

void Journal::CloseOtherRuns() {
    InBackground([this] { folder_.CloseOtherRuns(); });
}

void Journal::EndCleanly(const Session& session) {
    try {
        for (const auto& window : session.Children) DocumentCloses(session, *window);
    } catch (const std::exception&) {
        return; // what the journal holds of it stays for the next start
    }
    background_([this] { folder_.RemoveThisRun(); });
}

bool Reopen(Session& session, const LeftDocument& document) {
    const std::size_t before = session.Children.size();
    const CodePage own = session.codePage;
    if (IsCodePage(document.CodePageNumber)) session.codePage = CodePage(document.CodePageNumber);
    ReadDocument(session, document.File);
    session.codePage = own;
    if (session.Children.size() == before || !session.ActiveWindow) return false;
    ChildWindow& window = *session.ActiveWindow;
    NameAsItWas(window, document);
    StateOfSlot(session, window.TypeOfForm, window.Index).Dirty = true;
    session.platform.children.update(window);
    return true;
}

void OfferLeftDocuments(Session& session, const JournalFolder& folder, Journal& journal) {
    const auto left = folder.LeftByOtherRuns();
    const auto opens = [&](const LeftDocument& document) { return Reopen(session, document); };
    if (left.empty()) return journal.CloseOtherRuns();
    const Message question{.Text = fmt::format("Dorvan ended before these documents were saved:{}\r\n\r\n"
                                               "Open them again?",
                                               ListOf(left)),
                           .Icon = MessageIcon::Question,
                           .Buttons = MessageButtons::YesNo};
    const bool opened = session.platform.messages.show(question) == Answer::Yes &&
                        std::count_if(left.begin(), left.end(), opens) == std::ptrdiff_t(left.size());
    if (opened)
        journal.TakeOverOtherRuns(session);
    else
        journal.CloseOtherRuns();
}

void ReopenClosedDocument(Session& session, const JournalFolder& folder, Journal& journal) {
    const auto document = folder.LastClosed();
    if (!document) {
        return BeepBecause(session, "No document was closed without saving.");
    }
    if (Reopen(session, *document)) journal.TakeOver(session, *document);
}

} // namespace dorvan
