#include "session/recent_files.h"

#include "session/menus.h"

#include <fmt/format.h>

namespace dorvan {

namespace {

constexpr const char* Section = "Recent Files";
constexpr int MostFiles = 4;

std::string KeyOf(int number) { return fmt::format("RecentFile{}", number); }

std::string Stored(const Session& session, int number) {
    return session.platform.settings.read(Section, KeyOf(number), {});
}

} // namespace

void LoadRecentFiles(Session& session) {
    if (Stored(session, 1).empty()) return;
    int index = 0;
    for (const auto& [key, path] : session.platform.settings.readSection(Section)) {
        if (path.empty()) continue; // counts as missing
        if (index >= RecentFileItems) return;
        session.mainWindow.ShowMenu(RecentFileItem(0), true);
        session.mainWindow.SetMenuCaption(RecentFileItem(index), path);
        session.mainWindow.ShowMenu(RecentFileItem(index), true);
        ++index;
    }
}

bool IsRecentFile(const Session& session, const std::string& path) {
    for (std::int16_t index = 1; index < RecentFileItems; ++index)
        if (RecentFilePath(session, index) == path) return true;
    return false;
}

void AddRecentFile(Session& session, const std::string& path) {
    for (int number = MostFiles - 1; number >= 1; --number)
        if (const std::string older = Stored(session, number); !older.empty())
            session.platform.settings.write(Section, KeyOf(number + 1), older);
    session.platform.settings.write(Section, KeyOf(1), path);
}

void UpdateRecentFiles(Session& session, const std::string& path) {
    if (!IsRecentFile(session, path)) AddRecentFile(session, path);
    LoadRecentFiles(session);
}

std::string RecentFilePath(const Session& session, std::int16_t index) {
    return session.mainWindow.MenuCaption(RecentFileItem(index));
}

} // namespace dorvan
