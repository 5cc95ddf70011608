#pragma once

#include "files/file_dialogs.h"

namespace dorvan {

FileFilters TextFileFilters();  // "txt file (*.txt)", then "all (*.*)"
FileFilters ExcelFileFilters(); // "xls file (*.xls)" alone

} // namespace dorvan
