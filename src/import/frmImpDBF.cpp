#include "import/frmImpDBF.h"

#include "files/disk.h"
#include "files/file_fault.h"
#include "files/reading.h"
#include "import/imported_sheet.h"
#include "numbers/text.h"
#include "platform/keys.h"

#include <fmt/format.h>

#include <algorithm>
#include <optional>
#include <utility>

namespace dorvan {

namespace {

constexpr int FirstYear = 1900;

// What is left of a list once the items that `moves(place)` names are at the end of another.
template <class Moves> void MoveItems(MultiListBox& from, MultiListBox& to, const Moves& moves) {
    std::vector<std::string> kept;
    for (std::size_t place = 0; place < from.List.size(); ++place)
        (moves(place) ? to.List : kept).push_back(std::move(from.List[place]));
    from.SetList(std::move(kept));
    to.SetList(std::move(to.List));
}

int PlaceOf(const ListBox& list, const std::string& name, const char* kind) {
    const auto found = std::find(list.List.begin(), list.List.end(), name);
    if (found == list.List.end())
        throw UnknownField(fmt::format("the table has no {} field \"{}\"", kind, name));
    return static_cast<int>(found - list.List.begin());
}

} // namespace

void frmImpDBF::Enter(const DBaseImportChoices& choices) {
    for (const std::string& name : choices.Fields) {
        AList.Selected.at(std::size_t(PlaceOf(AList, name, "numeric"))) = true;
        cmdCopyToRight_Click();
    }
    if (choices.Fields.empty()) {
        AList.SelectAll();
        if (AList.AnySelected()) cmdCopyToRight_Click();
    }
    if (!choices.RecordNames.empty())
        cmbString.ListIndex = PlaceOf(cmbString, choices.RecordNames, "character");
}

void frmImpDBF::cmdBrowse_Click() {
    Table.DBPath.clear();
    const std::string path = PickFileToOpen(session_, FileFiltersOf("dbf", "dbf"), " - Select dbf file");
    if (path.empty()) return;
    Table.DBPath = path;
    if (OpenTable()) ShowTable();
}

// False after a message.
bool frmImpDBF::OpenTable() {
    const bool read = ReadsWithoutFault(session_, Table.DBPath, Wait::No, [&] {
        std::string file;
        try {
            file = LoadFile(Table.DBPath);
        } catch (const FileFault&) {
            file.clear(); // told as a header that cannot be read
        }
        Table.OpenDBF(file, Codes());
    });
    if (!read || Table.DBStatus == 0) return read;
    session_.platform.messages.show({.Text = fmt::format("Error in file: DBError = {}", Table.DBStatus)});
    Table.DBStatus = 0;
    return false;
}

void frmImpDBF::ShowTable() {
    const TableHeader& header = Table.DBHeader;
    Label1.Caption = LowerCase(Table.DBPath);
    lblDate.Caption = fmt::format("{:02}.{:02}.{}", header.Day, header.Month, FirstYear + header.Year);
    lblRec.Caption = fmt::format("{}", header.RecordCount);
    const WaitCursor wait(session_.platform);
    std::vector<std::string> numeric;
    cmbString.List.clear();
    for (const auto& field : Table.DBFields.Cells()) {
        if (field.Type == 'N') numeric.push_back(CleanName(field.Name));
        if (field.Type == 'C') cmbString.List.push_back(CleanName(field.Name));
    }
    AList.SetList(std::move(numeric));
    SList.SetList({});
    cmbString.Enabled = !cmbString.List.empty();
    cmbString.ListIndex = cmbString.Enabled ? 0 : -1;
}

void frmImpDBF::MoveSelected(MultiListBox& from, MultiListBox& to) {
    if (!from.AnySelected()) {
        session_.platform.messages.show({.Text = "No item selected.", .Icon = MessageIcon::Exclamation});
        return;
    }
    const auto selected = from.Selected;
    MoveItems(from, to, [&](std::size_t place) { return selected[place]; });
}

void frmImpDBF::MoveCurrent(MultiListBox& from, MultiListBox& to) {
    const int current = from.ListIndex;
    if (current >= 0) MoveItems(from, to, [&](std::size_t place) { return place == std::size_t(current); });
}

void frmImpDBF::AList_KeyDown(int& keyCode) {
    if (keyCode != key::Right) return;
    keyCode = key::None;
    cmdCopyToRight_Click();
}

void frmImpDBF::SList_KeyDown(int& keyCode) {
    if (keyCode != key::Left) return;
    keyCode = key::None;
    cmdCopyToLeft_Click();
}

// After a message where the table has more records than a diagram takes.
std::int32_t frmImpDBF::RecordsToRead() {
    const std::int32_t count = Table.DBHeader.RecordCount;
    const std::int32_t limit = session_.MaxDiagramRecords;
    if (count <= limit) return count;
    session_.platform.messages.show(
        {.Text = fmt::format("Maximum number of record in Dorvan data file is {}. In this database is {} "
                             "records. Only first {} have been imported.",
                             limit, SignedText(count), limit),
         .Icon = MessageIcon::Exclamation});
    return limit;
}

DBaseRecords frmImpDBF::ReadSelection() {
    const std::int32_t count = RecordsToRead();
    DBaseSelection selection{SList.List, std::nullopt};
    if (!cmbString.List.empty()) selection.RecordName = cmbString.Text();
    return ReadDBaseRecords(Table, LoadFile(Table.DBPath), selection, count, session_.DecimalSeparator,
                            Codes(), [this](std::int32_t record) {
                                session_.platform.messages.show(
                                    {.Text = fmt::format("Error in record: {}", record)});
                            });
}

void frmImpDBF::cmdOK_Click() {
    if (!HasFile(Label1)) return;
    if (SList.List.empty()) return Tell("No variables selected.");
    DBaseRecords read;
    if (!ReadsWithoutFault(session_, Table.DBPath, Wait::No, [&] { read = ReadSelection(); })) return;
    if (read.Deleted > 0)
        session_.platform.messages.show(
            {.Text = fmt::format("{} record(s) deleted and no reading", read.Deleted)});
    HandOver(session_, std::move(read.Table));
    Clear();
    Close(DialogResult::Accepted);
}

void frmImpDBF::cmdCancel_Click() {
    Clear();
    Close(DialogResult::Cancelled);
}

void frmImpDBF::Clear() {
    Label1.Caption.clear();
    AList.SetList({});
    SList.SetList({});
    cmbString.List.clear();
    cmbString.ListIndex = -1;
}

} // namespace dorvan
