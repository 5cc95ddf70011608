#pragma once

namespace dorvan {

// The build's own version numbers; document files carry major and minor.
struct Version {
    int Major = DORVAN_VERSION_MAJOR;
    int Minor = DORVAN_VERSION_MINOR;
    int Revision = DORVAN_VERSION_REVISION;
};

} // namespace dorvan
