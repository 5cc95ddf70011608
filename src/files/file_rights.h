#pragma once

#include <string>

namespace dorvan {

// Gives an open file, that only its owner may read so far, what the file at `former` has beside its content:
// owner and group, extended attributes with access lists among them, and the mode. Where the owner cannot be
// kept the group is, alone; where the group cannot be kept, the group's rights go, so that nobody gains any.
// Fails with a FileError when the mode cannot be set.
void TakeRightsOf(const std::string& former, int descriptor);

// The mode of a new file: what the process's mask leaves of reading and writing for all.
void TakeUsualRights(int descriptor);

} // namespace dorvan
