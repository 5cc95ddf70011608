#include "print/printing.h"

#include "files/disk.h"
#include "numbers/runtime_failure.h"
#include "platform/printer.h"
#include "session/registry.h"

#include <stdexcept>

namespace dorvan {

void PrintOnPaper(Session& session, const std::string& caption,
                  const std::function<Drawing(const Paper&)>& pagesOn) {
    Printer& printer = session.platform.printer;
    std::string& silentFailure = session.Of<FileValues>().SilentFailure;
    silentFailure.clear();
    const WaitCursor wait(session.platform);
    try {
        const Paper paper{printer.printableWidth(), printer.printableHeight(), printer.fontName()};
        printer.print(pagesOn(paper), CaptionPath(caption));
    } catch (const RuntimeFailure&) { // of the pages, and not of the printer
        throw;
    } catch (const std::runtime_error& failure) {
        silentFailure = failure.what();
    }
}

} // namespace dorvan
