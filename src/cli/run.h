#pragma once

#include "cli/cli_platform.h"
#include "cli/subcommand.h"
#include "session/frmMDI.h"
#include "session/session.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace dorvan::cli {

// What a run is told beside its work.
struct Surroundings {
    std::optional<std::uint64_t> Seed; // of the random generator; from the clock when not given
    std::optional<int> CodePage;       // of files; from the locale when not given
    bool Yes = false;                  // the answer to a question; refused when not given
};

void AddSeed(Options& options, Surroundings& surroundings);
void AddYes(Options& options, Surroundings& surroundings);
void AddCodePage(Options& options, Surroundings& surroundings);

// A failure whose text names its file itself.
class SaveFailure : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// One run of the program without a screen. Dialogs are answered through `ports.OnDialog`, commands are given
// through `mainWindow`. A search whose seed nobody gave tells it on standard error, so that it can be
// repeated.
struct Run {
    explicit Run(const Surroundings& surroundings);

    CliPlatform ports;
    Session session{ports.platform};
    frmMDI mainWindow{session};
    std::uint64_t seed; // of the random generator

    std::string_view Kind() const; // the DocumentKind of the active window, that of the main one without any

    // Opens a document by its name's ending; `wanted` says which kinds will do.
    void Open(const std::string& path, std::initializer_list<std::string_view> wanted);

    // Clicks a button of toolMain, and expects that a window of the kind is active then.
    void Make(const std::string& button, std::string_view kind, const std::string& otherwise);

    // Chooses a menu item that writes the file `path`; fails where it could not.
    void Write(const std::string& item, const std::string& path);

    // Puts the records of the active diagram in their best order: distances, names and data alike.
    void PutInBestOrder();

    // Saves the active document under the path.
    void Save(const std::string& path);

    // What stands in the status line, if anything does.
    void TellStatus();

    // What the program said so far, but for a refusal at the end.
    void TellRemarks(bool withLast) const;

    // What it said since there were that many messages, a message a line.
    void TellFrom(std::size_t place) const;

    // What the program said last, or `what` when it said nothing.
    Refusal Refused(const std::string& what) const;
};

// Does the work and gives the exit status; a failure is told in one line that names the file.
int Reported(const std::string& file, const std::function<void()>& work);

// Writes a file that is no document, beside the one that it replaces and in one go.
void WriteOutput(const std::string& path, const std::string& bytes);

} // namespace dorvan::cli
