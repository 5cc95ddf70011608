#include "files/line_cursor.h"

#include "files/file_fault.h"
#include "numbers/number_text.h"
#include "numbers/runtime_failure.h"
#include "numbers/text.h"

#include <fmt/format.h>

#include <algorithm>

namespace dorvan {

std::string_view LineCursor::Next() {
    ++line_;
    if (rest_.empty()) throw FileFault::AtLine(line_, "the line is missing, the file ends before it");
    const std::size_t end = rest_.find('\n');
    std::string_view line = rest_.substr(0, end);
    rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end + 1);
    if (line.ends_with('\r')) line.remove_suffix(1);
    return line;
}

std::string_view SectionReader::NextTrimmed() { return TrimSpaces(lines_.Next()); }

void SectionReader::ExpectSection(std::string_view section) {
    lines_.Next();
    const std::string_view line = NextTrimmed();
    if (line.size() != section.size() + 2 || line.front() != '[' || line.back() != ']' ||
        line.substr(1, section.size()) != section)
        throw FileFault::WrongSection(section);
}

std::optional<std::string_view> SectionReader::Value(std::string_view key) {
    const std::string_view line = lines_.Next();
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos)
        throw FileFault::AtLine(lines_.LineNumber(), fmt::format("\"{}=\" is missing", key));
    if (line.substr(0, equals) != key) return std::nullopt;
    return line.substr(equals + 1);
}

std::string SectionReader::Text(std::string_view key) {
    return text_.Codes.ToUtf8(Value(key).value_or(std::string_view()));
}

HeaderCount SectionReader::Count(std::string_view key) {
    const auto value = Value(key);
    HeaderCount count{0, lines_.LineNumber()};
    if (!value) return count;
    try {
        count.Value = StrictInt16(*value, text_.DecimalSeparator);
    } catch (const RuntimeFailure& failure) {
        throw FileFault::AtLine(count.Line,
                                fmt::format("{} {}", key, WhyNoNumber(failure, text_.Codes.ToUtf8(*value))));
    }
    return count;
}

float SectionReader::Limit(std::string_view key) {
    const auto value = Value(key);
    return value ? Number(*value) : 0.0f;
}

void SectionReader::ExpectNothing(std::string_view section) {
    if (NextTrimmed() != NaText) throw FileFault::UnexpectedSymbol(section);
}

void SectionReader::ExpectPositive(const HeaderCount& count) {
    if (count.Value < 1)
        throw FileFault::AtLine(count.Line, fmt::format("the count {} is below 1", count.Value));
}

void SectionReader::Labels(const HeaderCount& count, std::size_t mostCharacters, Names& labels) {
    labels = Names();
    ExpectPositive(count);
    labels.Cells().reserve(std::min<std::size_t>(std::size_t(count.Value), lines_.Remaining()));
    for (std::int32_t i = 1; i <= count.Value; ++i) {
        const std::string_view label = NextTrimmed(); // a byte is a character of the code page
        labels.Append(text_.Codes.ToUtf8(TrimSpaces(label.substr(0, mostCharacters))));
    }
}

void SectionReader::ExpectRoomFor(std::int32_t rows, std::int32_t columns, EmptyFields empty) const {
    // A field takes a character and a separator or line end; the last line may lack its end.
    const std::int64_t perField = empty == EmptyFields::Taken ? 1 : 2;
    const std::int64_t least = std::int64_t(rows) * columns * perField - 1;
    if (least > static_cast<std::int64_t>(lines_.Remaining()))
        throw FileFault::AtLine(lines_.LineNumber(),
                                fmt::format("{} lines of {} values do not fit into the {} bytes that follow",
                                            rows, columns, lines_.Remaining()));
}

float SectionReader::Number(std::string_view field) const {
    try {
        return ParseSheetNumber(field, text_.DecimalSeparator);
    } catch (const RuntimeFailure& failure) {
        throw FileFault::AtLine(lines_.LineNumber(), WhyNoNumber(failure, text_.Codes.ToUtf8(field)));
    }
}

float SectionReader::NumberOrMissing(std::string_view field, EmptyFields empty) const {
    const std::string_view trimmed = TrimSpaces(field);
    if (trimmed == NaText) return NaValue;
    if (empty == EmptyFields::Taken && trimmed.empty()) return EmptyValue;
    return Number(field);
}

void SectionReader::FailTooFewFields(std::int32_t found, std::int32_t wanted) const {
    throw FileFault::AtLine(lines_.LineNumber(),
                            fmt::format("{} fields stand where {} are needed", found, wanted));
}

} // namespace dorvan
