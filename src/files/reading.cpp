#include "files/reading.h"

#include "files/file_fault.h"
#include "session/children.h"
#include "session/registry.h"

#include <fmt/format.h>

#include <new>
#include <optional>

namespace dorvan {

namespace {

Message TooLarge(const std::string& path) {
    return {.Text = fmt::format("The memory does not hold the file. File: {}", path),
            .Icon = MessageIcon::Critical};
}

} // namespace

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
        message = TooLarge(path);
    }
    session.platform.messages.show(message);
    return false;
}

void OpensWithoutFault(Session& session, const std::string& path, std::string_view kind,
                       const std::function<void()>& open) {
    try {
        return open();
    } catch (const std::bad_alloc&) {
        AbandonSlot(session, kind, session.NewWindowIndex);
    }
    if (!session.ActiveWindow && !session.Children.empty()) ActivateChild(session, *session.Children.back());
    session.platform.messages.show(TooLarge(path));
}

void TellOlderVersion(Session& session) {
    session.platform.messages.show(
        {.Text = "This file has been created in older Dorvan version. You can save it only with new format.",
         .Icon = MessageIcon::Exclamation});
}

} // namespace dorvan
