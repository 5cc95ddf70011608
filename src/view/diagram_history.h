#pragma once

#include "view/frmDiagram.h"

#include <cstdint>
#include <string>

// Steps of a diagram's history: its order, type and limits.
namespace dorvan {

// What a diagram shows its distances by.
struct DiagramLook {
    std::int16_t Type = 0;
    Array1<float> Limits;
    bool operator==(const DiagramLook&) const = default;
};

DiagramLook LookOf(const DiagramDocument& document);

// Records that the record at place `order(k)` went to place k.
void RecordReordering(Session& session, frmDiagram& window, std::string name,
                      const Array1<std::int16_t>& order);

// Records that the diagram had another look before; nothing where it still has it.
void RecordLook(Session& session, frmDiagram& window, std::string name, const DiagramLook& before);

} // namespace dorvan
