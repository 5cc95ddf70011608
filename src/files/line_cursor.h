#pragma once

#include "files/file_text.h"
#include "session/documents.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace dorvan {

// Walks over the lines of a file in memory. A line ends with CR LF or a lone LF; what stands behind the last
// of them is a line of its own unless it is empty.
class LineCursor {
public:
    explicit LineCursor(std::string_view bytes) : rest_(bytes) {}

    // The next line without its end. Fails with a FileFault when there is none.
    std::string_view Next();

    std::int64_t LineNumber() const { return line_; } // of the line read last, from 1
    std::size_t Remaining() const { return rest_.size(); }

private:
    std::string_view rest_;
    std::int64_t line_ = 0;
};

// A count of a file's header and the line that holds it.
struct HeaderCount {
    std::int16_t Value = 0;
    std::int64_t Line = 0;
};

// An empty field is no number; where a reader is told so, it stands for an empty cell.
enum class EmptyFields { Refused, Taken };

// The parts that the three text formats have in common, read from a cursor. Each fails with a FileFault that
// names the line.
class SectionReader {
public:
    SectionReader(std::string_view bytes, const FileText& text) : lines_(bytes), text_(text) {}

    std::string_view FirstLine() { return lines_.Next(); }

    // Two lines, the second of which names the section ("HEADER"); the first is not looked at.
    void ExpectSection(std::string_view section);

    // One header line, split at its first "=". Another key in its place leaves the value empty, or 0.
    std::string Text(std::string_view key);
    HeaderCount Count(std::string_view key);
    float Limit(std::string_view key);

    // The lone line "N/A" of a section without content.
    void ExpectNothing(std::string_view section);

    // Fails for a count below 1, by which nothing can be sized.
    static void ExpectPositive(const HeaderCount& count);

    // `count` lines, cut to `mostCharacters`. Fails for a count below 1. On failure `labels` holds those read
    // so far.
    void Labels(const HeaderCount& count, std::size_t mostCharacters, Names& labels);

    // Fails when `rows` lines of `columns` fields each cannot stand in the rest of the file, so that nothing
    // is sized by a count that the file does not fill.
    void ExpectRoomFor(std::int32_t rows, std::int32_t columns,
                       EmptyFields empty = EmptyFields::Refused) const;

    // One line of at least `columns` fields between semicolons; `take(j, field)` gets the fields 1 to
    // `columns` in turn, further ones are ignored.
    template <class Take> void Row(std::int32_t columns, Take take) {
        std::string_view rest = NextTrimmed();
        for (std::int32_t j = 1; j <= columns; ++j) {
            const std::size_t end = rest.find(';');
            take(j, rest.substr(0, end));
            if (end != std::string_view::npos)
                rest.remove_prefix(end + 1);
            else if (j < columns)
                FailTooFewFields(j, columns);
        }
    }

    // A field as a number, NaValue for "N/A", EmptyValue for an empty one that is taken.
    float Number(std::string_view field) const;
    float NumberOrMissing(std::string_view field, EmptyFields empty = EmptyFields::Refused) const;

    const FileText& Style() const { return text_; }

private:
    std::string_view NextTrimmed();
    std::optional<std::string_view> Value(std::string_view key);
    [[noreturn]] void FailTooFewFields(std::int32_t found, std::int32_t wanted) const;

    LineCursor lines_;
    FileText text_;
};

} // namespace dorvan
