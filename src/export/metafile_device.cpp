#include "export/metafile_device.h"

#include <algorithm>

namespace dorvan {

namespace {

constexpr std::size_t HeaderBytes = 18;
constexpr std::size_t FaceBytes = 32;

namespace function {
constexpr std::uint16_t End = 0x0000;
constexpr std::uint16_t SelectObject = 0x012D;
constexpr std::uint16_t DeleteObject = 0x01F0;
constexpr std::uint16_t LineTo = 0x0213;
constexpr std::uint16_t MoveTo = 0x0214;
constexpr std::uint16_t CreateFontIndirect = 0x02FB;
constexpr std::uint16_t CreateBrushIndirect = 0x02FC;
constexpr std::uint16_t Ellipse = 0x0418;
constexpr std::uint16_t TextOut = 0x0521;
} // namespace function

void PutWord(std::string& bytes, int value) {
    bytes += static_cast<char>(value & 0xFF);
    bytes += static_cast<char>(value >> 8 & 0xFF);
}

void PutLong(std::string& bytes, std::uint32_t value) {
    PutWord(bytes, static_cast<int>(value & 0xFFFF));
    PutWord(bytes, static_cast<int>(value >> 16));
}

// Its size in words, its function, its parameters.
std::string RecordOf(std::uint16_t called, std::string_view parameters) {
    std::string record;
    PutLong(record, static_cast<std::uint32_t>((6 + parameters.size()) / 2));
    PutWord(record, called);
    return record.append(parameters);
}

} // namespace

MetafileDevice::Handle MetafileDevice::Keep(std::string creation) {
    objects_[++last_] = {std::move(creation), -1};
    return last_;
}

MetafileDevice::Handle MetafileDevice::CreateFont(const LogicalFont& font) {
    std::string parameters;
    for (const int value : {font.Height, 0, 0, 0, font.Weight}) PutWord(parameters, value);
    parameters += std::string(3, '\0'); // neither italic nor underlined nor struck out
    parameters += static_cast<char>(font.CharSet);
    parameters += std::string(2, '\0'); // precisions
    parameters += static_cast<char>(font.Quality);
    parameters += '\0'; // pitch
    std::string face = font.Face.substr(0, FaceBytes - 1);
    face.resize(FaceBytes, '\0');
    return Keep(RecordOf(function::CreateFontIndirect, parameters + face));
}

MetafileDevice::Handle MetafileDevice::CreateSolidBrush(std::uint32_t colour) {
    std::string parameters;
    PutWord(parameters, 0); // solid
    PutLong(parameters, colour);
    PutWord(parameters, 0); // no hatch
    return Keep(RecordOf(function::CreateBrushIndirect, parameters));
}

int MetafileDevice::FreePlace() {
    const auto free = std::find(places_.begin(), places_.end(), false);
    const int place = static_cast<int>(free - places_.begin());
    if (free == places_.end()) places_.push_back(true);
    places_[std::size_t(place)] = true;
    return place;
}

void MetafileDevice::SelectObject(Handle object) {
    const auto found = objects_.find(object);
    if (found == objects_.end()) return;
    if (found->second.Place < 0) {
        found->second.Place = FreePlace();
        Append(found->second.Creation);
    }
    Record(function::SelectObject, {found->second.Place});
}

void MetafileDevice::DeleteObject(Handle object) {
    const auto found = objects_.find(object);
    if (found == objects_.end()) return;
    if (const int place = found->second.Place; place >= 0) {
        Record(function::DeleteObject, {place});
        places_[std::size_t(place)] = false;
    }
    objects_.erase(found);
}

// Parameters stand in the reverse order of the call's.
void MetafileDevice::MoveTo(int x, int y) { Record(function::MoveTo, {y, x}); }

void MetafileDevice::LineTo(int x, int y) { Record(function::LineTo, {y, x}); }

void MetafileDevice::Ellipse(int left, int top, int right, int bottom) {
    Record(function::Ellipse, {bottom, right, top, left});
}

void MetafileDevice::TextOut(int x, int y, std::string_view bytes) {
    std::string parameters;
    PutWord(parameters, static_cast<int>(bytes.size()));
    parameters += bytes;
    if (bytes.size() % 2 != 0) parameters += '\0';
    PutWord(parameters, y);
    PutWord(parameters, x);
    Append(RecordOf(function::TextOut, parameters));
}

void MetafileDevice::Record(std::uint16_t called, std::initializer_list<int> words) {
    std::string parameters;
    for (const int word : words) PutWord(parameters, word);
    Append(RecordOf(called, parameters));
}

void MetafileDevice::Append(std::string_view record) {
    largest_ = std::max(largest_, record.size());
    records_ += record;
}

std::string MetafileDevice::Close() {
    Record(function::End, {});
    std::string bytes;
    PutWord(bytes, 1);               // a metafile
    PutWord(bytes, HeaderBytes / 2); // all sizes in words
    PutWord(bytes, 0x0300);          // version
    PutLong(bytes, static_cast<std::uint32_t>((HeaderBytes + records_.size()) / 2));
    PutWord(bytes, static_cast<int>(places_.size()));
    PutLong(bytes, static_cast<std::uint32_t>(largest_ / 2));
    PutWord(bytes, 0); // not used
    return bytes + records_;
}

} // namespace dorvan
