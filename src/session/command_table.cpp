#include "session/command_table.h"

#include <fmt/format.h>

#include <stdexcept>

namespace dorvan {

namespace {

[[noreturn]] void FailForUnknown(const char* what, std::string_view name) {
    throw std::logic_error(fmt::format("no command has the {} \"{}\"", what, name));
}

} // namespace

std::string ButtonName(std::string_view toolbar, std::string_view key) {
    return fmt::format("{}.{}", toolbar, key);
}

CommandTable::CommandTable() {
    for (const auto& row : CommandRows()) Add(row);
}

void CommandTable::Add(const CommandRow& row) {
    if (!row.Menu.empty()) ExpectItem(row.Menu);
    const std::size_t place = rows_.size();
    if (!row.Item.empty() && !items_.emplace(row.Item, place).second)
        throw std::logic_error(fmt::format("two rows have the item \"{}\"", row.Item));
    if (!row.Button.Toolbar.empty()) {
        toolbars_.emplace(row.Button.Toolbar);
        const std::string button = ButtonName(row.Button.Toolbar, row.Button.Key);
        if (!buttons_.emplace(button, place).second)
            throw std::logic_error(fmt::format("two rows have the button \"{}\"", button));
    }
    const auto& calls = row.Calls;
    for (const auto& operation : {calls.Any, calls.Data, calls.Matrix, calls.Diagram, calls.Bitmap})
        if (!operation.empty()) named_.emplace(operation);
    rows_.push_back(row);
}

const CommandRow& CommandTable::Item(std::string_view item) const {
    const auto found = items_.find(item);
    if (found == items_.end()) FailForUnknown("item", item);
    return rows_[found->second];
}

const CommandRow& CommandTable::Button(std::string_view toolbar, std::string_view key) const {
    const std::string name = ButtonName(toolbar, key);
    const auto found = buttons_.find(name);
    if (found == buttons_.end()) FailForUnknown("button", name);
    return rows_[found->second];
}

void CommandTable::ExpectToolbar(std::string_view toolbar) const {
    if (!toolbars_.contains(toolbar)) FailForUnknown("toolbar", toolbar);
}

void CommandTable::ExpectOperation(std::string_view operation) const {
    if (!named_.contains(operation)) FailForUnknown("operation", operation);
}

void CommandTable::Set(std::string_view operation, Operation does) {
    ExpectOperation(operation);
    operations_.insert_or_assign(std::string(operation), std::move(does));
}

bool CommandTable::Has(std::string_view operation) const {
    ExpectOperation(operation);
    return operations_.contains(operation);
}

void CommandTable::Call(std::string_view operation, const CommandCall& call) const {
    ExpectOperation(operation);
    const auto found = operations_.find(operation);
    if (found != operations_.end()) found->second(call);
}

} // namespace dorvan
