#pragma once

#include "support/golden.h"

#include <cstddef>
#include <string>
#include <vector>

#include <sys/types.h>

namespace dorvan::test {

// The built dorvan as a process of its own, on the offscreen platform and with a home of its own. Killed at
// the end of its life if it still runs.
class BuiltProgram {
public:
    // Where it runs: the folders that it may write to. Outlives the runs in it.
    struct Home {
        TemporaryFolder folder;
        std::string Rescued() const { return folder / "Documents/Dorvan rescued documents"; }
        // The documents in the journal, those of all runs.
        std::vector<std::string> Journal() const;
        // Waits until there are so many of them; a test failure after a minute.
        void ExpectInJournal(std::size_t count) const;
    };

    // Starts it with its arguments; `environment` holds settings such as "LC_ALL=C". Returns once it has read
    // the last argument, a file.
    BuiltProgram(const Home& home, const std::vector<std::string>& arguments,
                 const std::vector<std::string>& environment = {});
    ~BuiltProgram();
    BuiltProgram(const BuiltProgram&) = delete;
    BuiltProgram& operator=(const BuiltProgram&) = delete;

    void Send(int signal) const;
    bool Runs() const; // it has not ended yet

    // The most memory that it has held so far, in bytes, once that has stopped to grow.
    std::size_t PeakOfMemory() const;

    // Waits for the end, at most a minute. The exit status; 128 + n when the signal n ended it.
    int Status();

    std::string Errors() const; // what it wrote to its standard error so far

private:
    std::string errorPath_;
    pid_t process_ = -1;
    int status_ = -1;
};

// The names of the files in a folder, sorted; none for no folder.
std::vector<std::string> FilesIn(const std::string& folder);

} // namespace dorvan::test
