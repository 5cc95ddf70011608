#include "view/diagram_history.h"

#include "session/history.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace dorvan {

namespace {

frmDiagram& Diagram(ChildWindow& window) { return dynamic_cast<frmDiagram&>(window); }

class Reordering : public DocumentChange {
public:
    explicit Reordering(Array1<std::int16_t> order) : order_(std::move(order)) {}

    void Undo(ChildWindow& window) const override {
        Array1<std::int16_t> back(order_.Count());
        for (std::int32_t place = 1; place <= order_.Count(); ++place)
            back(order_(place)) = static_cast<std::int16_t>(place);
        Diagram(window).Reorder(back);
    }
    void Redo(ChildWindow& window) const override { Diagram(window).Reorder(order_); }

private:
    Array1<std::int16_t> order_;
};

class LookChange : public DocumentChange {
public:
    LookChange(DiagramLook before, DiagramLook after)
        : before_(std::move(before)), after_(std::move(after)) {}

    void Undo(ChildWindow& window) const override { Give(Diagram(window), before_); }
    void Redo(ChildWindow& window) const override { Give(Diagram(window), after_); }

private:
    static void Give(frmDiagram& window, const DiagramLook& look) {
        window.Document().DiagType = look.Type;
        window.Document().SectionLimits = look.Limits;
        window.Refresh();
    }

    DiagramLook before_;
    DiagramLook after_;
};

} // namespace

DiagramLook LookOf(const DiagramDocument& document) { return {document.DiagType, document.SectionLimits}; }

void RecordReordering(Session& session, frmDiagram& window, std::string name,
                      const Array1<std::int16_t>& order) {
    if (std::ranges::is_sorted(order.Cells())) return; // nothing has moved
    RecordStep(session, window, std::move(name), std::make_unique<Reordering>(order));
}

void RecordLook(Session& session, frmDiagram& window, std::string name, const DiagramLook& before) {
    DiagramLook after = LookOf(window.Document());
    if (after == before) return;
    RecordStep(session, window, std::move(name), std::make_unique<LookChange>(before, std::move(after)));
}

} // namespace dorvan
