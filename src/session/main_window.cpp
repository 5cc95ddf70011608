#include "session/main_window.h"

#include <utility>

namespace dorvan {

namespace {

template <class Values, class Value> void Put(Values& values, std::string_view name, Value value) {
    values.insert_or_assign(std::string(name), std::move(value));
}

template <class Values, class Value> Value Look(const Values& values, std::string_view name, Value unset) {
    const auto found = values.find(name);
    return found == values.end() ? unset : found->second;
}

} // namespace

void MainWindow::EnableMenu(std::string_view item, bool enabled) {
    commands_.ExpectItem(item);
    Put(menus_, item, enabled);
}

bool MainWindow::MenuEnabled(std::string_view item) const {
    commands_.ExpectItem(item);
    return Look(menus_, item, true);
}

void MainWindow::CheckMenu(std::string_view item, bool checked) {
    commands_.ExpectItem(item);
    Put(checkMarks_, item, checked);
}

bool MainWindow::MenuChecked(std::string_view item) const {
    commands_.ExpectItem(item);
    return Look(checkMarks_, item, false);
}

void MainWindow::ShowMenu(std::string_view item, bool shown) {
    commands_.ExpectItem(item);
    Put(shownMenus_, item, shown);
}

bool MainWindow::MenuShown(std::string_view item) const {
    commands_.ExpectItem(item);
    return Look(shownMenus_, item, true);
}

void MainWindow::SetMenuCaption(std::string_view item, std::string caption) {
    commands_.ExpectItem(item);
    Put(captions_, item, std::move(caption));
}

std::string MainWindow::MenuCaption(std::string_view item) const {
    return Look(captions_, item, std::string(commands_.Item(item).Caption));
}

std::string MainWindow::Button(std::string_view toolbar, std::string_view key) const {
    commands_.Button(toolbar, key);
    return ButtonName(toolbar, key);
}

void MainWindow::EnableButton(std::string_view toolbar, std::string_view key, bool enabled) {
    Put(buttons_, Button(toolbar, key), enabled);
}

bool MainWindow::ButtonEnabled(std::string_view toolbar, std::string_view key) const {
    return Look(buttons_, Button(toolbar, key), true);
}

void MainWindow::ShowButton(std::string_view toolbar, std::string_view key, bool shown) {
    Put(shownButtons_, Button(toolbar, key), shown);
}

bool MainWindow::ButtonShown(std::string_view toolbar, std::string_view key) const {
    return Look(shownButtons_, Button(toolbar, key), true);
}

void MainWindow::ShowToolbar(std::string_view toolbar, bool shown) {
    commands_.ExpectToolbar(toolbar);
    Put(toolbars_, toolbar, shown);
}

bool MainWindow::ToolbarShown(std::string_view toolbar) const {
    commands_.ExpectToolbar(toolbar);
    return Look(toolbars_, toolbar, true);
}

} // namespace dorvan
