#pragma once

#include <QIcon>

namespace dorvan {

// A drawing of resources/icons by its name ("Save"). It takes the theme's text colour for its lines at each
// painting, so it reads in light and dark themes, and it is drawn anew for each size. Null for an unknown
// name.
QIcon ThemedIcon(const QString& name);

QIcon ProgramIcon();

} // namespace dorvan
