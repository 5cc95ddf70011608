#include "session/frmMDI.h"

#include "numbers/text.h"
#include "session/children.h"
#include "session/frmAbout.h"
#include "session/registry.h"
#include "session/routing.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <exception>
#include <filesystem>
#include <system_error>

namespace dorvan {

namespace {

constexpr const char* HelpFileName = "Dorvan.hlp";
constexpr int HelpIndexPage = 3;

constexpr std::string_view MovingKeys[] = {"Home", "Up", "Down", "End", "Insert"};

// The path that a save of the window goes to, empty for one that has no file.
std::string SavePath(const ChildWindow& window) {
    if (IsUntitled(window.Caption)) return {};
    const std::string path = ReplaceAll(window.Caption, fmt::format("[{}]: ", window.TypeOfForm), "");
    // The path of a bitmap is passed as it stands.
    return window.TypeOfForm == DocumentKind::Bitmap ? path : std::string(TrimSpaces(path));
}

std::int16_t RecentFileIndex(const std::string& item) {
    const std::size_t digits = item.find('(') + 1;
    std::int16_t index = 0;
    std::from_chars(item.data() + digits, item.data() + item.size(), index);
    return index;
}

} // namespace

void frmMDI::Form_Load(std::uint64_t seed, const std::string& programFolder) {
    for (const std::string command : {"Save", "SaveAs"})
        session_.commands.Set(command, [this, command](const CommandCall&) { RunRouted(command); });
    std::error_code notEntered;
    std::filesystem::current_path(programFolder, notEntered);
    StartSession(session_, seed, programFolder);
}

std::string_view frmMDI::ActiveKind() const {
    return session_.ActiveWindow ? std::string_view(session_.ActiveWindow->TypeOfForm) : DocumentKind::Main;
}

bool frmMDI::Exists(std::string_view command) const {
    if (command.empty() || IsOwnCommand(command)) return true;
    if (!IsRoutedCommand(command)) return session_.commands.Has(command);
    const auto operation = RoutedOperation(command, ActiveKind());
    return !operation.empty() && session_.commands.Has(operation);
}

bool frmMDI::MenuEnabled(const std::string& item) const {
    const auto* entry = FindMenuItem(item);
    if (!entry || !session_.mainWindow.MenuEnabled(item)) return false;
    if (entry->Items.empty()) return Exists(CommandOfMenuItem(item));
    const auto& menus = MenuTree();
    const bool topLevel = std::any_of(menus.begin(), menus.end(), [&](const auto& m) { return &m == entry; });
    return topLevel || std::any_of(entry->Items.begin(), entry->Items.end(), [&](const auto& child) {
               return !child.Hidden && !child.IsSeparator() && MenuEnabled(child.Name);
           });
}

bool frmMDI::ButtonEnabled(const std::string& toolbar, const std::string& key) const {
    return session_.mainWindow.ButtonEnabled(toolbar, key) && Exists(CommandOfButton(toolbar, key));
}

bool frmMDI::MenuShown(const std::string& item) const {
    const auto* entry = FindMenuItem(item);
    return entry && !entry->Hidden && session_.mainWindow.MenuShown(item);
}

std::string frmMDI::MenuCaption(const std::string& item) const {
    const auto* entry = FindMenuItem(item);
    return session_.mainWindow.MenuCaption(item, entry ? entry->Caption : std::string());
}

void frmMDI::MenuClick(const std::string& item) {
    if (!MenuEnabled(item)) return;
    const auto command = CommandOfMenuItem(item);
    if (command == "OpenRecentFile")
        session_.commands.Call(command, {.Index = RecentFileIndex(item), .Path = {}});
    else
        Run(command);
}

void frmMDI::MenuOpens(const std::string& menu) {
    if (menu == "mnuOptions")
        session_.mainWindow.ToolbarChecked = session_.mainWindow.ToolbarShown("toolMain");
}

void frmMDI::ButtonClick(const std::string& toolbar, const std::string& key) {
    if (!ButtonEnabled(toolbar, key)) return;
    if (toolbar == "toolData" && BeepsWhileBusy()) return;
    const auto* window = session_.ActiveWindow;
    const bool moves = toolbar == "toolDiagram" && window && ActiveKind() == DocumentKind::Diagram &&
                       std::find(std::begin(MovingKeys), std::end(MovingKeys), key) != std::end(MovingKeys);
    const std::int16_t slot = window ? window->Index : std::int16_t(0);
    Run(CommandOfButton(toolbar, key));
    if (moves) session_.DiagramStates.at(std::size_t(slot)).Dirty = true;
}

void frmMDI::Run(std::string_view command) {
    if (command.empty()) return;
    if (IsOwnCommand(command))
        RunOwn(command);
    else if (IsRoutedCommand(command))
        RunRouted(command);
    else if (command == "MakeDiagram")
        MakeDiagram();
    else
        CallOperation(command);
}

void frmMDI::RunOwn(std::string_view command) {
    if (command == "Close") Close();
    if (command == "Exit") Exit();
    if (command == "Help") Help();
    if (command == "HelpEnglish") HelpEnglish();
    if (command == "HelpContact") HelpContact();
    if (command == "About") About();
    if (command == "EditCell") BeepsWhileBusy();
    if (command == "ToggleToolbar") ToggleToolbar();
    if (command == "Cascade") session_.platform.children.arrange(0);
    if (command == "Tile") session_.platform.children.arrange(1);
    if (command == "ArrangeIcons") session_.platform.children.arrange(3);
}

void frmMDI::RunRouted(std::string_view command) {
    const auto operation = RoutedOperation(command, ActiveKind());
    if (operation.empty()) return;
    CallOperation(operation, command == "Save" ? SavePath(*session_.ActiveWindow) : std::string());
}

void frmMDI::CallOperation(std::string_view operation, const std::string& path) {
    const auto kind = KindOfOperation(operation);
    if (kind.empty())
        session_.commands.Call(operation);
    else if (kind == ActiveKind())
        session_.commands.Call(operation, {.Index = session_.ActiveWindow->Index, .Path = path});
}

void frmMDI::MakeDiagram() {
    if (ActiveKind() == DocumentKind::Data) session_.DiagramFromMatrix = false;
    if (ActiveKind() == DocumentKind::Matrix) session_.DiagramFromMatrix = true;
    session_.commands.Call("MakeDiagram");
}

bool frmMDI::BeepsWhileBusy() {
    if (session_.DiagramBusy != 1) return false;
    session_.platform.signals.beep();
    return true;
}

// A bitmap window has only its own close control.
void frmMDI::Close() {
    if (BeepsWhileBusy() || !session_.ActiveWindow || ActiveKind() == DocumentKind::Bitmap) return;
    CloseChild(session_, *session_.ActiveWindow);
}

// The process ends whatever came of the questions.
void frmMDI::Exit() {
    CloseAllChildren(session_);
    endOfRun_ = true;
}

bool frmMDI::RequestClose() {
    if (!CloseAllChildren(session_) || AnyDataWindowOpen(session_)) return false;
    endOfRun_ = true;
    return true;
}

void frmMDI::ToggleToolbar() {
    auto& mainWindow = session_.mainWindow;
    mainWindow.ToolbarChecked = !mainWindow.ToolbarChecked;
    mainWindow.ShowToolbar("toolMain", mainWindow.ToolbarChecked);
}

void frmMDI::Help() {
    if (BeepsWhileBusy()) return;
    if (session_.HelpFile.empty()) {
        session_.platform.messages.show({.Text = "Nie można wyświetlić pliku pomocy. Brak pliku pomocy "
                                                 "skojarzonego z tym programem.",
                                         .Icon = MessageIcon::Information});
        return;
    }
    try {
        session_.platform.help.show(HelpFileName, HelpIndexPage);
    } catch (const std::exception& error) {
        session_.platform.messages.show({.Text = error.what()});
    }
}

void frmMDI::HelpEnglish() {
    session_.platform.messages.show({.Text = "Sorry, not ready yet!", .Icon = MessageIcon::Exclamation});
}

void frmMDI::HelpContact() {
    session_.platform.messages.show(
        {.Text = "Dorvan is kept by its maintainers.\r\n"
                 "Questions and reports of faults: at the place where you got the program.",
         .Icon = MessageIcon::Information,
         .Title = "Contact"});
}

void frmMDI::About() {
    if (BeepsWhileBusy()) return;
    session_.platform.forms.showModal(session_.forms.Load<frmAbout>(session_));
}

} // namespace dorvan
