#include "session/frmMDI.h"

#include "numbers/text.h"
#include "session/busy.h"
#include "session/children.h"
#include "session/dialog.h"
#include "session/frmAbout.h"
#include "session/open_documents.h"
#include "session/registry.h"
#include "session/status_bar.h"

#include <fmt/format.h>

#include <algorithm>
#include <exception>
#include <filesystem>
#include <system_error>

namespace dorvan {

namespace {

constexpr const char* HelpFileName = "Dorvan.hlp";
constexpr int HelpIndexPage = 3;

// The path that a save of the window goes to, empty for one that has no file.
std::string SavePath(const ChildWindow& window) {
    if (IsUntitled(window.Caption)) return {};
    const std::string path = ReplaceAll(window.Caption, fmt::format("[{}]: ", window.TypeOfForm), "");
    // The path of a bitmap is passed as it stands.
    return window.TypeOfForm == DocumentKind::Bitmap ? path : std::string(TrimSpaces(path));
}

// A method of a window's class, such as "frmDiagram.Up", and not a module's operation.
bool IsMethod(std::string_view operation) { return operation.find('.') != std::string_view::npos; }

} // namespace

frmMDI::frmMDI(Session& session) : session_(session) { RegisterOperations(); }

void frmMDI::RegisterOperations() {
    auto& commands = session_.commands;
    const auto own = [&](std::string_view operation, void (frmMDI::*method)()) {
        commands.Set(operation, [this, method](const CommandCall&) { (this->*method)(); });
    };
    own("Close", &frmMDI::Close);
    own("Exit", &frmMDI::Exit);
    own("EditCell", &frmMDI::EditCell);
    own("ToggleToolbar", &frmMDI::ToggleToolbar);
    own("Help", &frmMDI::Help);
    own("HelpEnglish", &frmMDI::HelpEnglish);
    own("HelpContact", &frmMDI::HelpContact);
    own("About", &frmMDI::About);
    commands.Set("Cascade", [this](const CommandCall&) { Arrange(0); });
    commands.Set("Tile", [this](const CommandCall&) { Arrange(1); });
    commands.Set("ArrangeIcons", [this](const CommandCall&) { Arrange(3); });
    commands.Set("Save", [this](const CommandCall&) { Run(session_.commands.Item("mnuSave")); });
    commands.Set("SaveAs", [this](const CommandCall&) { Run(session_.commands.Item("mnuSaveAs")); });
}

void frmMDI::Form_Load(std::uint64_t seed, const std::string& programFolder) {
    std::error_code notEntered;
    std::filesystem::current_path(programFolder, notEntered);
    StartSession(session_, seed, programFolder);
}

std::string_view frmMDI::ActiveKind() const {
    return session_.ActiveWindow ? std::string_view(session_.ActiveWindow->TypeOfForm) : DocumentKind::Main;
}

// What has no operation for any kind of window does nothing, and stays on.
bool frmMDI::Exists(const CommandRow& row) const {
    if (row.Calls.None()) return true;
    const auto operation = row.Calls.For(ActiveKind());
    return !operation.empty() && session_.commands.Has(operation);
}

bool frmMDI::HasItemOn(const CommandRow& menu) const {
    const auto& rows = session_.commands.Rows();
    return std::any_of(rows.begin(), rows.end(), [&](const CommandRow& row) {
        return row.Menu == menu.Item && !row.Item.empty() && row.Caption != "-" && !row.Hidden &&
               MenuEnabled(std::string(row.Item));
    });
}

bool frmMDI::MenuEnabled(const std::string& item) const {
    const auto& row = session_.commands.Item(item);
    if (!session_.mainWindow.MenuEnabled(item)) return false;
    if (row.Kind == RowKind::Menu) return row.Menu.empty() || HasItemOn(row);
    return Exists(row);
}

bool frmMDI::ButtonEnabled(const std::string& toolbar, const std::string& key) const {
    return session_.mainWindow.ButtonEnabled(toolbar, key) && Exists(session_.commands.Button(toolbar, key));
}

bool frmMDI::MenuShown(const std::string& item) const {
    return !session_.commands.Item(item).Hidden && session_.mainWindow.MenuShown(item);
}

void frmMDI::MenuClick(const std::string& item) {
    if (!MenuEnabled(item)) return;
    StatusText(session_).clear();
    Run(session_.commands.Item(item));
}

void frmMDI::MenuOpens(const std::string& menu) {
    if (menu == ExtrasMenu) ShowDocuments(session_); // a save has changed a caption
    if (menu == "mnuOptions")
        session_.mainWindow.CheckMenu("mnuOToolbar", session_.mainWindow.ToolbarShown("toolMain"));
}

void frmMDI::ButtonClick(const std::string& toolbar, const std::string& key) {
    if (!ButtonEnabled(toolbar, key)) return;
    StatusText(session_).clear();
    if (toolbar == "toolData" && RefusedWhileBusy(session_)) return;
    const auto& row = session_.commands.Button(toolbar, key);
    const std::int16_t slot = session_.ActiveWindow ? session_.ActiveWindow->Index : std::int16_t(0);
    Run(row);
    if (row.ButtonMarksChanged) session_.DiagramStates.at(std::size_t(slot)).Dirty = true;
}

void frmMDI::Run(const CommandRow& row) {
    // The deletion of a record asks first, and drops the edit that its own change of focus would commit.
    if (session_.ActiveWindow && row.Calls.For(ActiveKind()) != "DeleteRecord")
        session_.ActiveWindow->LeaveField();
    const auto operation = row.Calls.For(ActiveKind());
    if (operation.empty()) return;
    if (operation == "MakeDiagram") TellSourceOfDiagram();
    CommandCall call{.Index = row.Number, .Path = {}};
    if (IsMethod(operation)) call.Index = session_.ActiveWindow->Index;
    if (row.PassesPath) call.Path = SavePath(*session_.ActiveWindow);
    session_.commands.Call(operation, call);
}

void frmMDI::TellSourceOfDiagram() {
    if (ActiveKind() == DocumentKind::Data) session_.DiagramFromMatrix = false;
    if (ActiveKind() == DocumentKind::Matrix) session_.DiagramFromMatrix = true;
}

// A bitmap window has only its own close control.
void frmMDI::Close() {
    if (RefusedWhileBusy(session_) || !session_.ActiveWindow || ActiveKind() == DocumentKind::Bitmap) return;
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

void frmMDI::EditCell() { RefusedWhileBusy(session_); }

void frmMDI::ToggleToolbar() {
    auto& mainWindow = session_.mainWindow;
    const bool shown = !mainWindow.MenuChecked("mnuOToolbar");
    mainWindow.CheckMenu("mnuOToolbar", shown);
    mainWindow.ShowToolbar("toolMain", shown);
}

void frmMDI::Arrange(int mode) { session_.platform.children.arrange(mode); }

void frmMDI::Help() {
    if (RefusedWhileBusy(session_)) return;
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
        {.Text = "Questions, wishes and reports of faults:\r\n" DORVAN_CONTACT "\r\n" DORVAN_HOME_PAGE,
         .Icon = MessageIcon::Information,
         .Title = "Contact"});
}

void frmMDI::About() {
    if (RefusedWhileBusy(session_)) return;
    ShowModally<frmAbout>(session_);
}

} // namespace dorvan
