#pragma once

#include "session/recent_files.h"
#include "session/session.h"

#include <functional>
#include <string>

// What the openers of the three kinds share.
namespace dorvan {

enum class Wait { No, Yes };

// Does `read`, under the wait cursor where `wait` says so. A FileFault in it (or a file too large for the
// memory) becomes one message about `path`, and the result is false.
bool ReadsWithoutFault(Session& session, const std::string& path, Wait wait,
                       const std::function<void()>& read);

// Said before a file of an older format is read.
void TellOlderVersion(Session& session);

} // namespace dorvan
