#include "export/modWMF.h"

#include "export/metafile_device.h"
#include "files/disk.h"
#include "numbers/rounding.h"
#include "numbers/text.h"
#include "view/legend_texts.h"

#include <fmt/format.h>

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace dorvan {

namespace {

constexpr int Cell = 140;
constexpr std::array<int, 6> Diameters{0, 0, 20, 45, 65, 90}; // by class
constexpr int NameCharacters = 12;
constexpr int UnitsPerInch = 1000;
// Of 45 points on a screen of 96 dots to the inch.
constexpr int FontHeight = 45 * 96 / 72;
constexpr std::uint32_t Black = 0;

int DiameterOf(int cellClass) {
    if (cellClass < 0 || std::size_t(cellClass) >= Diameters.size())
        throw RuntimeFailure(Failure::SubscriptOutOfRange, "a cell without a section");
    return Diameters[std::size_t(cellClass)];
}

class DiagramDrawer {
public:
    DiagramDrawer(const DiagramDocument& diagram, const CodePage& codes)
        : diagram_(diagram), codes_(codes), count_(diagram.RecCount) {}

    std::string Draw(const std::array<std::string, 5>& legend) {
        // The font that was selected before is the system's own: deleting it leaves no record.
        device_.SelectObject(device_.CreateFont({.Height = -FontHeight, .Face = "Courier New"}));
        DrawNumbers();
        DrawHeader();
        DrawNames();
        for (int column = 1; column <= count_; ++column)
            for (int row = 1; row <= count_; ++row)
                DrawDot((column + 4) * Cell + Cell / 2, row * Cell + Cell / 2,
                        DiameterOf(diagram_.Classes(column, row)));
        DrawLegend(legend);
        return device_.Close();
    }

private:
    int Right() const { return (count_ + 5) * Cell; }
    int Bottom() const { return (count_ + 1) * Cell; }

    void MetaLine(int x1, int y1, int x2, int y2) {
        device_.MoveTo(x1, y1);
        device_.LineTo(x2, y2);
    }

    void MetaDot(int x, int y, int diameter) {
        const int radius = RoundToInt32(diameter / 2.0);
        device_.Ellipse(x - radius, y - radius, x + radius, y + radius);
    }

    // The brush goes while it is selected, and the one before does not come back.
    void DrawDot(int x, int y, int diameter) {
        const auto brush = device_.CreateSolidBrush(Black);
        device_.SelectObject(brush);
        MetaDot(x, y, diameter);
        device_.DeleteObject(brush);
    }

    void Write(int x, int y, std::string_view text) { device_.TextOut(x, y, codes_.FromUtf8(text)); }

    void DrawNumbers() {
        for (int line = 0; line <= count_; ++line) {
            MetaLine(0, line * Cell, Right(), line * Cell);
            if (line > 0) Write(25, line * Cell + 10, fmt::format("{}", line));
        }
        MetaLine(Cell, 0, Cell, Bottom());
        MetaLine(0, 0, 0, Bottom());
        MetaLine(0, Bottom(), Right(), Bottom());
        MetaLine(Right(), 0, Right(), Bottom());
    }

    void DrawHeader() {
        for (int column = 1; column <= count_; ++column) {
            const int left = (column + 4) * Cell;
            MetaLine(left, 0, left, Bottom());
            Write(left + 25, 10, fmt::format("{}", column));
        }
    }

    void DrawNames() {
        for (int line = 0; line <= count_; ++line) {
            MetaLine(Cell, line * Cell, 5 * Cell, line * Cell);
            Write(Cell + 25, line * Cell + 10,
                  line == 0 ? "Name" : LeftCharacters(diagram_.RecordNames(line), NameCharacters));
        }
    }

    // From the nearest section to the farthest.
    void DrawLegend(const std::array<std::string, 5>& legend) {
        for (int item = 0; item < 5; ++item) {
            const int y = Bottom() + 200 + item * Cell;
            DrawDot(120, y, DiameterOf(5 - item));
            MetaLine(50, y - 70, 190, y - 70);
            MetaLine(190, y - 70, 190, y + 70);
            MetaLine(190, y + 70, 50, y + 70);
            MetaLine(50, y + 70, 50, y - 70);
            Write(260, y - 35, legend[std::size_t(item)]);
        }
    }

    const DiagramDocument& diagram_;
    const CodePage& codes_;
    int count_;
    MetafileDevice device_;
};

} // namespace

MetafileBox BoxOfDiagram(int records) {
    return {0, 0, records * Cell + 700 + Cell, records * Cell + Cell + 200 + 700 + 100};
}

std::string DrawDiagram(const DiagramDocument& diagram, char decimalSeparator, const CodePage& codes) {
    return DiagramDrawer(diagram, codes).Draw(LegendTexts(diagram.SectionLimits, decimalSeparator));
}

std::string PlaceableHeader(const MetafileBox& box) {
    const std::array<int, 10> words{0xCDD7,   0x9AC6,  0, // key, handle
                                    box.Left, box.Top, box.Right, box.Bottom, UnitsPerInch, 0, 0};
    std::string header;
    int checksum = 0;
    const auto put = [&header](int word) {
        header += static_cast<char>(word & 0xFF);
        header += static_cast<char>(word >> 8 & 0xFF);
    };
    for (const int word : words) {
        put(word);
        checksum ^= word & 0xFFFF;
    }
    put(checksum);
    return header;
}

void WriteOverStart(const std::string& path, std::string_view bytes) {
    const int descriptor = ::open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0666);
    if (descriptor < 0) throw FileError(errno);
    int error = 0;
    while (!bytes.empty() && error == 0) {
        const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
        if (written >= 0)
            bytes.remove_prefix(std::size_t(written));
        else if (errno != EINTR)
            error = errno;
    }
    if (::close(descriptor) != 0 && error == 0) error = errno;
    if (error != 0) throw FileError(error);
}

} // namespace dorvan
