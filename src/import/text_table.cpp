#include "import/text_table.h"

#include "files/file_fault.h"
#include "files/line_cursor.h"
#include "import/field_cursor.h"

#include <algorithm>
#include <string>

namespace dorvan {

TextTable::TextTable(std::string_view text, const TextTableForm& form) : text_(text), form_(form) {
    const std::int64_t widthLine = form.FirstRowNames ? 2 : 1;
    for (LineCursor lines(text); lines.Remaining() > 0; ++lines_) {
        const std::string_view line = lines.Next();
        if (lines.LineNumber() == widthLine)
            fields_ = 1 + std::count(line.begin(), line.end(), form.Separator);
    }
}

std::int64_t TextTable::Records() const { return lines_ - (form_.FirstRowNames ? 1 : 0); }

std::int64_t TextTable::Variables() const { return fields_ - (form_.FirstColumnNames ? 1 : 0); }

void TextTable::ExpectSize() const {
    if (Records() < 1) throw FileFault::AtLine(lines_ + 1, "the line is missing, the file ends before it");
    if (Variables() < 1)
        throw FileFault::AtLine(form_.FirstRowNames ? 2 : 1,
                                "the record's name is the only field, none is left for a variable");
}

TableOfRecords TextTable::Read(char decimalSeparator) const {
    ExpectSize();
    const auto records = static_cast<std::int32_t>(Records());
    const auto variables = static_cast<std::int32_t>(Variables());
    TableOfRecords table{Names(records), Names(variables), FloatTable(records, variables)};
    LineCursor lines(text_);
    const auto nextLine = [&] {
        const std::string_view line = lines.Next();
        return FieldCursor(line, form_.Separator, lines.LineNumber(), fields_);
    };
    if (form_.FirstRowNames) {
        FieldCursor fields = nextLine();
        if (form_.FirstColumnNames) fields.Next(); // the corner
        for (auto& name : table.VariableNames.Cells()) name = fields.Next();
    }
    for (std::int32_t record = 1; record <= records; ++record) {
        FieldCursor fields = nextLine();
        if (form_.FirstColumnNames) table.RecordNames(record) = fields.Next();
        float* row = table.Values.Row(record);
        for (std::int32_t j = 0; j < variables; ++j) row[j] = fields.NextNumber(decimalSeparator);
    }
    return table;
}

} // namespace dorvan
