#include "session/menus.h"

#include <fmt/format.h>

#include <algorithm>
#include <string_view>

namespace dorvan {

namespace {

struct ToolbarName {
    std::string_view Name;
    std::string_view Spoken;
};

constexpr ToolbarName ToolbarNames[] = {{"toolMain", "Main toolbar"},
                                        {"toolData", "Data toolbar"},
                                        {"toolMatrix", "Matrix toolbar"},
                                        {"toolBitmap", "Bitmap toolbar"},
                                        {"toolDiagram", "Diagram toolbar"}};

bool HasItem(const CommandRow& row) { return !row.Item.empty() || row.Caption == "-"; }

std::vector<MenuItem> ItemsOf(std::string_view menu, const std::vector<CommandRow>& rows) {
    std::vector<MenuItem> items;
    for (const auto& row : rows) {
        if (row.Menu != menu || !HasItem(row)) continue;
        MenuItem item{std::string(row.Item),
                      std::string(row.Caption),
                      std::string(row.Shortcut),
                      row.Hidden,
                      row.Checkable,
                      {}};
        if (row.Kind == RowKind::Menu) {
            item.Items = ItemsOf(row.Item, rows);
            if (item.Items.empty()) continue;
        }
        items.push_back(std::move(item));
    }
    return items;
}

std::vector<ToolButton> ButtonsOf(std::string_view toolbar, const std::vector<CommandRow>& rows) {
    std::vector<const ButtonPlace*> places;
    for (const auto& row : rows)
        if (row.Button.Toolbar == toolbar && row.Button.Place > 0) places.push_back(&row.Button);
    std::sort(places.begin(), places.end(), [](auto* one, auto* other) { return one->Place < other->Place; });
    std::vector<ToolButton> buttons;
    for (const auto* place : places)
        buttons.push_back({std::string(place->Key), std::string(place->ToolTip), place->Gap});
    return buttons;
}

} // namespace

std::string RecentFileItem(int index) { return fmt::format("mnuRecentFile({})", index); }

std::vector<MenuItem> MenuTree(const std::vector<CommandRow>& rows) { return ItemsOf("", rows); }

std::vector<Toolbar> Toolbars(const std::vector<CommandRow>& rows) {
    std::vector<Toolbar> toolbars;
    for (const auto& [name, spoken] : ToolbarNames)
        toolbars.push_back({std::string(name), std::string(spoken), ButtonsOf(name, rows)});
    return toolbars;
}

} // namespace dorvan
