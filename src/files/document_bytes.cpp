#include "files/document_bytes.h"

#include "files/disk.h"
#include "files/file_fault.h"
#include "numbers/utf8.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <limits>
#include <new>
#include <string_view>
#include <system_error>

namespace dorvan {

namespace {

constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view FirstWord = "Dorvan ";
constexpr std::size_t LookedAt = 12; // bytes, even: six characters of UTF-16

// Plain characters of UTF-16, either byte first.
bool EveryOtherByteIsNul(std::string_view bytes) {
    if (bytes.size() < LookedAt) return false;
    for (const std::size_t low : {0u, 1u}) {
        bool alternates = true;
        for (std::size_t place = 0; place < LookedAt; ++place)
            alternates = alternates && (bytes[place] == '\0') == (place % 2 != low);
        if (alternates) return true;
    }
    return false;
}

bool IsUtf16(std::string_view bytes) {
    return bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF") || EveryOtherByteIsNul(bytes);
}

bool IsUtf8(std::string_view bytes) {
    for (std::size_t offset = 0; offset < bytes.size();) {
        const Utf8Character character = Utf8CharacterAt(bytes, offset);
        if (!character.wellFormed) return false;
        offset += character.length;
    }
    return true;
}

// An open document takes up to so many times the size of its file: a matrix with the texts of all its cells.
constexpr std::uintmax_t MemoryOfADocument = 14;

// In bytes, as the system reckons; the most there is where it does not tell.
std::uintmax_t AvailableMemory() {
    std::ifstream reckoning("/proc/meminfo");
    std::uintmax_t available = 0;
    for (std::string line; std::getline(reckoning, line);)
        if (line.starts_with("MemAvailable:") || line.starts_with("SwapFree:"))
            available += std::strtoull(line.c_str() + line.find(':') + 1, nullptr, 10) * 1024;
    return available > 0 ? available : std::numeric_limits<std::uintmax_t>::max();
}

// The system promises memory that it does not have, and ends the process that uses it.
void ExpectMemoryFor(const std::string& path) {
    std::error_code none;
    const std::uintmax_t size = std::filesystem::file_size(path, none);
    if (!none && size > AvailableMemory() / MemoryOfADocument) throw std::bad_alloc();
}

} // namespace

std::string LoadDocument(const std::string& path, const CodePage& codes) {
    ExpectMemoryFor(path);
    std::string bytes = LoadFile(path);
    if (IsUtf16(bytes))
        throw FileFault::OfWholeFile(fmt::format("The file is text in UTF-16. Save it in the code page "
                                                 "windows-{} or in UTF-8 with a byte order mark",
                                                 codes.Number()));
    const std::string_view text = std::string_view(bytes).substr(std::min(Utf8Mark.size(), bytes.size()));
    if (!bytes.starts_with(Utf8Mark) || !text.starts_with(FirstWord)) return bytes;
    if (IsUtf8(text)) return codes.FromUtf8(text);
    bytes.erase(0, Utf8Mark.size());
    return bytes;
}

} // namespace dorvan
