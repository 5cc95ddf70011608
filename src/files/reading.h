#pragma once

#include "session/recent_files.h"
#include "session/session.h"

#include <functional>
#include <string>
#include <string_view>

// What the openers of the three kinds share.
namespace dorvan {

enum class Wait { No, Yes };

// Does `read`, under the wait cursor where `wait` says so. A FileFault in it (or a file too large for the
// memory) becomes one message about `path`, and the result is false.
bool ReadsWithoutFault(Session& session, const std::string& path, Wait wait,
                       const std::function<void()>& read);

// Does `open`, which takes a slot and makes a window in it, told by `NewWindowIndex`. Where the memory does
// not suffice one message says so, the slot is free again, and all else stays as it was.
void OpensWithoutFault(Session& session, const std::string& path, std::string_view kind,
                       const std::function<void()>& open);

// Said before a file of an older format is read.
void TellOlderVersion(Session& session);

} // namespace dorvan
