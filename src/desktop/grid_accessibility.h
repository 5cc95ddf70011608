#pragma once

namespace dorvan {

// Lets screen readers read the cells of every GridWidget. More than one call does no harm.
void InstallGridAccessibility();

} // namespace dorvan
