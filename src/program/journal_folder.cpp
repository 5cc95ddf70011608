#include "program/journal_folder.h"

#include "files/disk.h"

#include <fmt/format.h>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <chrono>
#include <filesystem>
#include <functional>
#include <sstream>
#include <string_view>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace dorvan {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view OriginEnding = ".origin";

void MakePrivateFolder(const fs::path& folder) {
    if (fs::is_directory(folder)) return;
    fs::create_directories(folder.parent_path());
    if (::mkdir(folder.c_str(), 0700) != 0 && errno != EEXIST) throw FileError(errno);
}

// Whether nobody holds the lock of a run; a folder without one is of no run.
bool IsLeft(const fs::path& run) {
    const int lock = ::open((run / "lock").c_str(), O_RDONLY | O_CLOEXEC);
    if (lock < 0) return true;
    const bool left = ::flock(lock, LOCK_EX | LOCK_NB) == 0;
    ::close(lock);
    return left;
}

// Nanoseconds, so that names sort by time and none comes twice.
std::string NameByTime() {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return fmt::format("{:020}", std::chrono::duration_cast<std::chrono::nanoseconds>(now).count());
}

fs::path OriginOf(const fs::path& file) { return fs::path(file).replace_extension(OriginEnding); }

// A path that is no line of text is left out: the document is untitled then.
std::string ComposeOrigin(const std::string& path, std::string caption, int codePage) {
    const bool isLine = path.find('\n') == std::string::npos;
    std::replace(caption.begin(), caption.end(), '\n', ' ');
    return fmt::format("{}\n{}\n{}\n", isLine ? path : "", caption, codePage);
}

// A private file, in the place of the one that is there.
void Put(const fs::path& file, std::string_view bytes) {
    if (fs::exists(file))
        ReplaceFile(file.string(), bytes); // keeps the mode
    else
        WriteNewFile(file.string(), bytes);
}

LeftDocument ReadLeft(const fs::path& file) {
    LeftDocument left;
    left.File = file.string();
    std::istringstream origin(LoadFile(OriginOf(file).string()));
    std::string codePage;
    std::getline(origin, left.Path);
    std::getline(origin, left.Caption);
    std::getline(origin, codePage);
    std::from_chars(codePage.data(), codePage.data() + codePage.size(), left.CodePageNumber);
    return left;
}

// The documents of a folder by their names. One without an origin never got so far as to be kept.
std::vector<fs::path> DocumentsIn(const fs::path& folder) {
    std::vector<fs::path> files;
    if (!fs::is_directory(folder)) return files;
    for (const auto& entry : fs::directory_iterator(folder)) {
        const std::string ending = entry.path().extension().string();
        const bool document = ending == ".mdt" || ending == ".mtx" || ending == ".dgr";
        if (document && fs::exists(OriginOf(entry.path()))) files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

} // namespace

JournalFolder::JournalFolder(std::string stateFolder) : folder_(std::move(stateFolder)) {}

JournalFolder::~JournalFolder() {
    if (lock_ >= 0) ::close(lock_);
}

void JournalFolder::MakeThisRun() {
    if (!run_.empty()) return;
    const fs::path run = fs::path(folder_) / "journal" / fmt::format("{}-{}", NameByTime(), ::getpid());
    MakePrivateFolder(folder_);
    MakePrivateFolder(run.parent_path());
    MakePrivateFolder(run);
    lock_ = ::open((run / "lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (lock_ < 0 || ::flock(lock_, LOCK_EX | LOCK_NB) != 0) throw FileError(errno);
    run_ = run.string();
}

bool JournalFolder::Keep(std::uint64_t number, const DocumentSnapshot& document) {
    if (IsHeldByFile(document)) {
        Forget(number);
        return false;
    }
    const std::string bytes = ComposeReadable(document);
    const std::string origin = ComposeOrigin(document.Path, document.Caption, document.Text.Codes.Number());
    const std::size_t hash = std::hash<std::string>()(bytes + origin);
    Kept& kept = kept_[number];
    if (!kept.File.empty() && kept.Hash == hash) return true;
    MakeThisRun();
    const fs::path file = fs::path(run_) / fmt::format("{}.{}", number, ExtensionOf(document));
    Put(OriginOf(file), origin);
    Put(file, bytes);
    kept = {file.string(), hash};
    return true;
}

void JournalFolder::Forget(std::uint64_t number) {
    const auto found = kept_.find(number);
    if (found == kept_.end()) return;
    fs::remove(found->second.File);
    fs::remove(OriginOf(found->second.File));
    kept_.erase(found);
}

void JournalFolder::PutClosed(const std::string& bytes, const std::string& extension,
                              const std::string& origin) {
    const fs::path closed = fs::path(folder_) / "closed";
    MakePrivateFolder(folder_);
    MakePrivateFolder(closed);
    const fs::path file = closed / (NameByTime() + extension);
    Put(OriginOf(file), origin);
    Put(file, bytes);
    const auto files = DocumentsIn(closed);
    for (std::size_t place = 0; place + MostClosed < files.size(); ++place) Remove(ReadLeft(files[place]));
}

void JournalFolder::KeepClosed(const DocumentSnapshot& document) {
    if (IsHeldByFile(document)) return;
    PutClosed(ComposeReadable(document), fmt::format(".{}", ExtensionOf(document)),
              ComposeOrigin(document.Path, document.Caption, document.Text.Codes.Number()));
}

std::optional<LeftDocument> JournalFolder::LastClosed() const {
    const auto files = DocumentsIn(fs::path(folder_) / "closed");
    if (files.empty()) return {};
    return ReadLeft(files.back());
}

std::vector<std::string> JournalFolder::OtherRuns() const {
    std::vector<std::string> runs;
    const fs::path journal = fs::path(folder_) / "journal";
    if (!fs::is_directory(journal)) return runs;
    for (const auto& entry : fs::directory_iterator(journal))
        if (entry.path() != fs::path(run_) && IsLeft(entry.path())) runs.push_back(entry.path().string());
    std::sort(runs.begin(), runs.end());
    return runs;
}

std::vector<LeftDocument> JournalFolder::LeftByOtherRuns() const {
    std::vector<LeftDocument> all;
    for (const auto& run : OtherRuns())
        for (const auto& file : DocumentsIn(run)) all.push_back(ReadLeft(file));
    return all;
}

void JournalFolder::RemoveOtherRuns() {
    for (const auto& run : OtherRuns()) fs::remove_all(run);
}

void JournalFolder::CloseOtherRuns() {
    for (const auto& left : LeftByOtherRuns())
        PutClosed(LoadFile(left.File), fs::path(left.File).extension().string(),
                  ComposeOrigin(left.Path, left.Caption, left.CodePageNumber));
    RemoveOtherRuns();
}

void JournalFolder::Remove(const LeftDocument& document) {
    fs::remove(document.File);
    fs::remove(OriginOf(document.File));
}

void JournalFolder::RemoveThisRun() {
    kept_.clear();
    if (lock_ >= 0) ::close(std::exchange(lock_, -1));
    if (!run_.empty()) fs::remove_all(std::exchange(run_, {}));
}

} // namespace dorvan
