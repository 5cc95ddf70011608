#pragma once

#include <functional>

namespace dorvan {

// Does work(0), ..., work(count - 1), each once, on so many threads at most, the caller's among them (0: as
// many as the machine has). Returns when all are done. What the caller's thread throws goes on to the caller.
void WorkSideBySide(int count, int threads, const std::function<void(int)>& work);

} // namespace dorvan
