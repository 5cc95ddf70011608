#include "distance/making_matrix.h"
#include "program/registering.h"
#include "session/cell_copying.h"

namespace dorvan {

void RegisterDistanceOperations(Session& session) {
    Register(session, "MakeMatrix", MakeMatrix);
    Register(session, "frmMacierz.CopyCells", CopyMatrixCells);
}

} // namespace dorvan
