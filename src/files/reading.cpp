#include "files/reading.h"

#include "files/file_fault.h"

#include <fmt/format.h>

#include <new>
#include <optional>

namespace dorvan {

bool ReadsWithoutFault(Session& session, const std::string& path, Wait wait,
                       const std::function<void()>& read) {
    Message message;
    try {
        std::optional<WaitCursor> cursor;
        if (wait == Wait::Yes) cursor.emplace(session.platform);
        read();
        return true;
    } catch (const FileFault& fault) {
        message.Text = fault.Describe(path);
        message.Icon = fault.HasOwnText() ? MessageIcon::Exclamation : MessageIcon::Critical;
    } catch (const std::bad_alloc&) {
        message.Text = fmt::format("The memory does not hold the file. File: {}", path);
        message.Icon = MessageIcon::Critical;
    }
    session.platform.messages.show(message);
    return false;
}

void TellOlderVersion(Session& session) {
    session.platform.messages.show(
        {.Text = "This file has been created in older Dorvan version. You can save it only with new format.",
         .Icon = MessageIcon::Exclamation});
}

} // namespace dorvan
