#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>

namespace dorvan {

// What a command is called with: the slot of the window that it acts on (0: none) and, for a save, the path.
struct CommandCall {
    std::int16_t Index = 0;
    std::string Path;
};

// Commands by name: the way from the main window, or from a closing window, to operations of the subsystems
// above. Module operations carry their own name ("MakeMatrix"); methods of a window that of its class as well
// ("frmDiagram.Up"). The composition root fills it; a command that is not in it does not exist yet.
class CommandTable {
public:
    using Command = std::function<void(const CommandCall&)>;

    void Set(std::string name, Command command) { commands_[std::move(name)] = std::move(command); }
    bool Has(std::string_view name) const { return commands_.contains(std::string(name)); }

    // Nothing happens for a name that is not in the table.
    void Call(std::string_view name, const CommandCall& call = {}) const {
        const auto found = commands_.find(std::string(name));
        if (found != commands_.end()) found->second(call);
    }

private:
    std::map<std::string, Command> commands_;
};

} // namespace dorvan
