#pragma once

#include "numbers/code_page.h"

#include <string>

namespace dorvan {

// The bytes of a document file, ready for its reader. A current file (its first line names the program) that
// an editor has marked as UTF-8 loses the mark and comes in the code page, a character outside it as "?";
// where its bytes are not UTF-8 after all, the mark alone goes. Fails with a FileFault for a file that cannot
// be read and for UTF-16, which is no older format; with std::bad_alloc for a file whose document the memory
// that is left would not hold.
std::string LoadDocument(const std::string& path, const CodePage& codes);

} // namespace dorvan
