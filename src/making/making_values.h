#pragma once

#include <cstdint>

namespace dorvan {

// What the making of diagrams keeps in the session.
struct MakingValues {
    bool AutoLimits = false; // how the options dialog was accepted last: "Automatic" or typed limits
    std::int32_t DiagramRecordCount = 0; // records of the document for which a diagram is being made
};

} // namespace dorvan
