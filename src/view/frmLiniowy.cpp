#include "view/frmLiniowy.h"

#include "view/linear_drawing.h"

namespace dorvan {

void frmLiniowy::Form_Resize() {
    if (GraphPending != DrawAtNextResize) return;
    const auto& document = session_.DiagramDocuments.at(std::size_t(LinearGraphIndex));
    Picture1.Show(LinearGraphDrawing(document, session_.platform.fonts, session_.DecimalSeparator));
    GraphPending = 0;
}

} // namespace dorvan
