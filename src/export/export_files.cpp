#include "export/export_files.h"

namespace dorvan {

FileFilters TextFileFilters() { return {{"txt file (*.txt)", "*.txt"}, {"all (*.*)", "*.*"}}; }

FileFilters ExcelFileFilters() { return {{"xls file (*.xls)", "*.xls"}}; }

} // namespace dorvan
