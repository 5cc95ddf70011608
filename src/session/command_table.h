#pragma once

#include "session/command_rows.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace dorvan {

// What an operation is called with: the slot of the window that it acts on (0: none; the number of a recent
// file) and, for a save, the path.
struct CommandCall {
    std::int16_t Index = 0;
    std::string Path;
};

// The commands of a run: their rows, and the operations that they call, by name. It is the way from the main
// window, or from a closing window, to the rooms above. The composition root registers the operations; one
// that is named in a row and not registered does not exist yet, and calling it does nothing. A name that
// stands in no row is an error in the code: every function here fails for it with std::logic_error.
class CommandTable {
public:
    using Operation = std::function<void(const CommandCall&)>;

    CommandTable(); // with the program's rows

    const std::vector<CommandRow>& Rows() const { return rows_; }

    // One more row, before the main window shows. Its operations may be registered then.
    void Add(const CommandRow& row);

    const CommandRow& Item(std::string_view item) const;
    const CommandRow& Button(std::string_view toolbar, std::string_view key) const;

    // Fail for a name that no row has.
    void ExpectItem(std::string_view item) const { Item(item); }
    void ExpectToolbar(std::string_view toolbar) const;

    // Every operation that a row names, each once.
    const std::set<std::string, std::less<>>& Operations() const { return named_; }

    void Set(std::string_view operation, Operation does);
    bool Has(std::string_view operation) const;
    void Call(std::string_view operation, const CommandCall& call = {}) const;

private:
    void ExpectOperation(std::string_view operation) const;

    std::vector<CommandRow> rows_;
    std::map<std::string, std::size_t, std::less<>> items_;   // places in rows_
    std::map<std::string, std::size_t, std::less<>> buttons_; // by "toolMain.Save"
    std::set<std::string, std::less<>> toolbars_;
    std::set<std::string, std::less<>> named_;
    std::map<std::string, Operation, std::less<>> operations_;
};

// "toolMain.Save"
std::string ButtonName(std::string_view toolbar, std::string_view key);

} // namespace dorvan
