#pragma once

#include "session/session.h"

#include <memory>

namespace dorvan {

// The registry's reference to a window; null for one that stands in no slot.
std::shared_ptr<ChildWindow> OwnerOf(const Session& session, const ChildWindow& window);

} // namespace dorvan
