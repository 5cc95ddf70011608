#include "import/reading_dbase.h"

#include "files/file_fault.h"
#include "files/label_sizes.h"
#include "numbers/number_text.h"
#include "numbers/runtime_failure.h"
#include "numbers/text.h"

#include <fmt/format.h>

#include <cstddef>
#include <utility>

namespace dorvan {

namespace {

constexpr char LiveRecord = ' ';
constexpr char DeletedRecord = '*';

std::string_view ValueOf(const modDBF& table, std::int32_t index) {
    return index == 0 ? std::string_view() : table.FieldValueByIndex(index);
}

// One way through the records. The fields are looked up once; 0 stands for a name that the table lacks.
class Reading {
public:
    Reading(modDBF& table, const DBaseSelection& selection, std::int32_t count)
        : Result{{Names(count), Names(static_cast<std::int32_t>(selection.Variables.size())),
                  FloatTable(count, static_cast<std::int32_t>(selection.Variables.size()))},
                 0},
          table_(table), selection_(selection) {
        for (const auto& name : selection.Variables) {
            variables_.push_back(table.FieldIndex(name));
            Result.Table.VariableNames(static_cast<std::int32_t>(variables_.size())) =
                LeftCharacters(name, VariableLabelSize);
        }
        if (selection.RecordName) recordName_ = table.FieldIndex(*selection.RecordName);
    }

    void TakeLiveRecord(std::int32_t record, char decimalSeparator, const TextCodes& codes) {
        float* row = Result.Table.Values.Row(record);
        for (std::size_t k = 0; k < variables_.size(); ++k) {
            const std::string_view value = ValueOf(table_, variables_[k]);
            try {
                row[k] = ParseSheetNumber(value, decimalSeparator);
            } catch (const RuntimeFailure& failure) {
                throw FileFault::AtRecord(record, selection_.Variables[k],
                                          WhyNoNumber(failure, codes.Page.ToUtf8(value)));
            }
        }
        Result.Table.RecordNames(record) = TrimSpaces(ValueOf(table_, recordName_));
    }

    DBaseRecords Result;

private:
    modDBF& table_;
    const DBaseSelection& selection_;
    std::vector<std::int32_t> variables_;
    std::int32_t recordName_ = 0;
};

} // namespace

DBaseRecords ReadDBaseRecords(modDBF& table, std::string_view file, const DBaseSelection& selection,
                              std::int32_t count, char decimalSeparator, const TextCodes& codes,
                              const std::function<void(std::int32_t)>& unreadable) {
    if (count < 1) throw FileFault::OfWholeFile(fmt::format("The table's count of records is {}", count));
    Reading reading(table, selection, count);
    for (std::int32_t record = 1; record <= count; ++record) {
        table.ReadRecord(file, record);
        const char mark = table.DBRecord.empty() ? '\0' : table.DBRecord.front();
        if (mark == LiveRecord)
            reading.TakeLiveRecord(record, decimalSeparator, codes);
        else if (mark == DeletedRecord)
            ++reading.Result.Deleted;
        else
            unreadable(record);
    }
    auto& names = reading.Result.Table.RecordNames.Cells();
    names = TextsJudgedTogether(std::move(names), codes);
    return std::move(reading.Result);
}

} // namespace dorvan
