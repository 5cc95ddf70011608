#pragma once

#include "import/dbase_bytes.h"
#include "import/modDBF.h"
#include "import/reading_dbase.h"
#include "import/text_table.h"
#include "numbers/number_text.h"
#include "numbers/text.h"

#include <cstdint>
#include <random>
#include <sstream>
#include <string>
#include <vector>

// Tables to import, and the imports as one would write them first, by string streams and by looking up each
// field by its name: the measure of the shipped ones.
namespace dorvan::test {

// Random numbers of up to three decimals, as text.
class RandomNumbers {
public:
    explicit RandomNumbers(std::uint32_t seed) : generator_(seed) {}
    std::string next() {
        const int thousandths = std::uniform_int_distribution<int>(-99'999, 999'999)(generator_);
        std::ostringstream text;
        text << thousandths / 1000.0;
        return text.str();
    }

private:
    std::mt19937 generator_;
};

inline std::string plainTextTable(int records, int variables, std::uint32_t seed) {
    RandomNumbers numbers(seed);
    std::ostringstream text;
    text << "name";
    for (int j = 1; j <= variables; ++j) text << ";VAR" << j;
    for (int i = 1; i <= records; ++i) {
        text << "\r\nRecord " << i;
        for (int j = 1; j <= variables; ++j) text << ';' << numbers.next();
    }
    text << "\r\n";
    return text.str();
}

// With names in both directions, semicolons and CR LF.
inline TableOfRecords plainReadTable(const std::string& text) {
    std::istringstream lines(text);
    std::vector<std::vector<std::string>> rows;
    for (std::string line; std::getline(lines, line);) {
        line.pop_back();
        std::istringstream fields(line);
        auto& row = rows.emplace_back();
        for (std::string field; std::getline(fields, field, ';');) row.push_back(field);
    }
    const auto records = static_cast<std::int32_t>(rows.size()) - 1;
    const auto variables = static_cast<std::int32_t>(rows[1].size()) - 1;
    TableOfRecords table{Names(records), Names(variables), FloatTable(records, variables)};
    for (std::int32_t j = 1; j <= variables; ++j) table.VariableNames(j) = rows[0][std::size_t(j)];
    for (std::int32_t i = 1; i <= records; ++i) {
        table.RecordNames(i) = rows[std::size_t(i)][0];
        for (std::int32_t j = 1; j <= variables; ++j)
            table.Values(i, j) = std::stof(rows[std::size_t(i)][std::size_t(j)]);
    }
    return table;
}

// A table with a character field NAME and numeric fields VAR1, VAR2, ...
inline std::string plainDBaseTable(int records, int variables, std::uint32_t seed) {
    RandomNumbers numbers(seed);
    std::vector<DBaseBytes::Field> fields{{"NAME", 'C', 12}};
    for (int j = 1; j <= variables; ++j) fields.push_back({"VAR" + std::to_string(j), 'N', 10});
    DBaseBytes table(fields);
    for (int i = 1; i <= records; ++i) {
        std::vector<std::string> values{"Record " + std::to_string(i)};
        for (int j = 1; j <= variables; ++j) values.push_back(numbers.next());
        table.record(values);
    }
    return table.bytes();
}

// All records, each value by the name of its field.
inline TableOfRecords plainReadDBase(modDBF& dbase, const std::string& file, const DBaseSelection& selection,
                                     std::int32_t records) {
    const auto variables = static_cast<std::int32_t>(selection.Variables.size());
    TableOfRecords table{Names(records), Names(variables), FloatTable(records, variables)};
    for (std::int32_t k = 1; k <= variables; ++k)
        table.VariableNames(k) = selection.Variables[std::size_t(k - 1)].substr(0, 8);
    for (std::int32_t record = 1; record <= records; ++record) {
        dbase.ReadRecord(file, record);
        if (dbase.DBRecord.substr(0, 1) != " ") continue;
        for (std::int32_t k = 1; k <= variables; ++k)
            table.Values(record, k) =
                ParseSheetNumber(std::string(dbase.FieldValue(selection.Variables[std::size_t(k - 1)])), '.');
        if (selection.RecordName)
            table.RecordNames(record) = TrimSpaces(dbase.FieldValue(*selection.RecordName));
    }
    return table;
}

} // namespace dorvan::test
