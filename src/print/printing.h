#pragma once

#include "platform/drawing.h"
#include "print/paper.h"
#include "session/session.h"

#include <functional>

namespace dorvan {

// Prints what `pagesOn` draws on the current printer's paper, as a document of the window's name. A failure
// of the printer ends the print without a word: `FileValues::SilentFailure` then tells why.
void PrintOnPaper(Session& session, const std::string& caption,
                  const std::function<Drawing(const Paper&)>& pagesOn);

} // namespace dorvan
