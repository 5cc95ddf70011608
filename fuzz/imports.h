#pragma once

#include "files/file_fault.h"
#include "import/modDBF.h"
#include "import/reading_dbase.h"
#include "import/text_codes.h"
#include "import/text_matrix.h"
#include "import/text_table.h"
#include "numbers/number_text.h"
#include "numbers/text.h"
#include "ways.h"

#include <fmt/format.h>

#include <algorithm>
#include <stdexcept>
#include <string>
#include <string_view>

// What has to hold for an import and any bytes: it gives a table or a FileFault and nothing else; the table,
// written as text and read again, is the same. Any other end is an exception. The fuzzers and the tests of
// their seeds share these.
namespace dorvan::fuzz {

inline void requireOfImport(bool holds, const char* what) {
    if (!holds) throw std::logic_error(what);
}

// The two kinds of locale, one with a page that holds whatever the bytes look like.
inline constexpr char DecimalSeparators[] = {'.', ','};
inline TextCodes codesOf(char separator) {
    return {CodePage(separator == '.' ? 1252 : 1250), separator == ','};
}

// A FileFault is a good end.
template <class Read> void orFault(const Read& read) {
    try {
        read();
    } catch (const FileFault& fault) {
        requireOfImport(!fault.Describe("f").empty(), "a fault without a message");
    }
}

// All digits of a 32-bit float.
inline std::string allDigits(float value, char decimalSeparator) {
    return ReplaceAll(fmt::format("{:.9g}", value), ".", {&decimalSeparator, 1});
}

inline std::string composeTable(const TableOfRecords& table, const TextTableForm& form,
                                char decimalSeparator) {
    std::string text;
    if (form.FirstRowNames) {
        std::string line = form.FirstColumnNames ? "corner" + std::string(1, form.Separator) : "";
        for (const auto& name : table.VariableNames.Cells()) line += name + form.Separator;
        text += line + "\r\n";
    }
    for (std::int32_t i = 1; i <= table.RecordNames.Count(); ++i) {
        if (form.FirstColumnNames) text += table.RecordNames(i) + form.Separator;
        for (std::int32_t j = 1; j <= table.VariableNames.Count(); ++j)
            text += (j > 1 ? std::string(1, form.Separator) : "") +
                    allDigits(table.Values(i, j), decimalSeparator);
        text += "\r\n";
    }
    return text;
}

inline void checkTableOfForm(std::string_view bytes, const TextTableForm& form, char decimalSeparator) {
    const std::string text = TextOfFile(std::string(bytes), codesOf(decimalSeparator));
    const TextTable reader(text, form);
    if (reader.Records() > 250 || reader.Variables() > 100) return; // refused
    const TableOfRecords table = reader.Read(decimalSeparator);
    const std::string written = composeTable(table, form, decimalSeparator);
    const TableOfRecords again = TextTable(written, form).Read(decimalSeparator);
    requireOfImport(again.RecordNames == table.RecordNames && again.VariableNames == table.VariableNames &&
                        again.Values == table.Values,
                    "a table changes as it is written and read");
}

inline void checkTextTable(std::string_view bytes, Ways& ways) {
    for (const char decimalSeparator : DecimalSeparators)
        for (const char separator : {';', '\t'})
            for (const bool rowNames : {false, true})
                for (const bool columnNames : {false, true})
                    if (ways.Take())
                        orFault([&] {
                            checkTableOfForm(bytes, {separator, rowNames, columnNames}, decimalSeparator);
                        });
}

inline void checkMatrixOfForm(std::string_view bytes, const TextMatrixForm& form, char decimalSeparator) {
    const std::string text = TextOfFile(std::string(bytes), codesOf(decimalSeparator));
    const TextMatrix reader(text, form);
    if (reader.Size() > 250) return; // refused
    NamedDistances matrix;
    try {
        matrix = reader.Read(decimalSeparator);
    } catch (const TooManyLines&) {
        return;
    }
    if (reader.Size() > 40) return; // writing it would only cost time
    std::string written;
    for (std::int32_t i = 1; i <= matrix.RecordNames.Count(); ++i) {
        if (form.FirstColumnNames) written += matrix.RecordNames(i) + form.Separator;
        for (std::int32_t j = 1; j <= matrix.RecordNames.Count(); ++j) {
            requireOfImport(matrix.Distances(i, j) >= 0, "a negative distance");
            written += (j > 1 ? std::string(1, form.Separator) : "") +
                       allDigits(matrix.Distances(i, j), decimalSeparator);
        }
        written += "\r\n";
    }
    const NamedDistances again = TextMatrix(written, form).Read(decimalSeparator);
    requireOfImport(again.Distances == matrix.Distances, "a matrix changes as it is written and read");
}

inline void checkTextMatrix(std::string_view bytes, Ways& ways) {
    for (const char decimalSeparator : DecimalSeparators)
        for (const char separator : {';', '\t'})
            for (const bool columnNames : {false, true})
                for (const std::int16_t precision : {std::int16_t(0), std::int16_t(3), std::int16_t(200)})
                    if (ways.Take())
                        orFault([&] {
                            checkMatrixOfForm(bytes, {separator, columnNames, precision}, decimalSeparator);
                        });
}

// The same values as by the names of the fields.
inline void requirePlainValues(modDBF& table, std::string_view file, const DBaseSelection& selection,
                               const TableOfRecords& read, char decimalSeparator) {
    for (std::int32_t record = 1; record <= read.Values.Rows(); ++record) {
        table.ReadRecord(file, record);
        const bool live = table.DBRecord.starts_with(' ');
        for (std::int32_t k = 1; k <= read.Values.Columns(); ++k) {
            const auto value = table.FieldValue(selection.Variables[std::size_t(k - 1)]);
            requireOfImport(read.Values(record, k) ==
                                (live ? ParseSheetNumber(value, decimalSeparator) : 0.0f),
                            "a value of another field");
        }
    }
}

inline void checkDBaseOfLocale(std::string_view bytes, char decimalSeparator) {
    const TextCodes codes = codesOf(decimalSeparator);
    modDBF table;
    table.OpenDBF(bytes, codes);
    if (table.DBStatus != 0) return; // told by its number
    DBaseSelection selection;
    for (const auto& field : table.DBFields.Cells()) {
        if (field.Type == 'N') selection.Variables.push_back(field.Name);
        if (field.Type == 'C' && !selection.RecordName) selection.RecordName = field.Name;
    }
    const std::int32_t count = std::min(table.DBHeader.RecordCount, 250);
    const DBaseRecords read =
        ReadDBaseRecords(table, bytes, selection, count, decimalSeparator, codes, [](std::int32_t) {});
    requirePlainValues(table, bytes, selection, read.Table, decimalSeparator);
}

inline void checkDBaseTable(std::string_view bytes, Ways& ways) {
    for (const char decimalSeparator : DecimalSeparators)
        if (ways.Take()) orFault([&] { checkDBaseOfLocale(bytes, decimalSeparator); });
}

} // namespace dorvan::fuzz
