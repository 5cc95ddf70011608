#pragma once

#include "import/import_choices.h"
#include "import/import_dialog.h"
#include "import/modDBF.h"
#include "import/reading_dbase.h"
#include "platform/multi_list_box.h"

#include <cstdint>
#include <stdexcept>

namespace dorvan {

// The table has no field of that name, or not of the kind that is asked for.
class UnknownField : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// The dialog of the import of a dBase III table: opens the table, lets its numeric fields be moved between
// two lists, and reads the selected ones into the working arrays.
class frmImpDBF : public ImportDialog {
public:
    explicit frmImpDBF(Session& session) : ImportDialog("frmImpDBF", "Import DBF", session) {}

    Frame Frame1{"Frame1", "File:"};
    Label Label1{"Label1"}; // the path in lower case
    CommandButton cmdBrowse{"cmdBrowse", "Browse"};
    Frame Frame2{"Frame2", "Date:"};
    Label lblDate{"lblDate"};
    Frame Frame3{"Frame3", "Records:"};
    Label lblRec{"lblRec"};
    Frame Frame4{"Frame4", "Select fields:"};
    Label Label2{"Label2", "Available numeric fields:"};
    MultiListBox AList{"AList"};
    CommandButton cmdCopyToRight{"cmdCopyToRight", ">"};
    CommandButton cmdCopyToLeft{"cmdCopyToLeft", "<"};
    Label Label3{"Label3", "Selected fields:"};
    MultiListBox SList{"SList"}; // in the order of moving
    Label Label4{"Label4", "Get record name from:"};
    ComboBox cmbString{"cmbString"};
    CommandButton cmdOK{"cmdOK", "OK"};
    CommandButton cmdCancel{"cmdCancel", "Cancel"};

    modDBF Table;

    // Of the table that is open: moves the fields to the selected ones. Fails with UnknownField.
    void Enter(const DBaseImportChoices& choices);

    void cmdBrowse_Click();
    void cmdCopyToRight_Click() { MoveSelected(AList, SList); }
    void cmdCopyToLeft_Click() { MoveSelected(SList, AList); }
    void AList_DblClick() { MoveCurrent(AList, SList); }
    void SList_DblClick() { MoveCurrent(SList, AList); }
    // The arrow that points at the other list moves the selected items.
    void AList_KeyDown(int& keyCode);
    void SList_KeyDown(int& keyCode);
    void cmdOK_Click();
    void cmdCancel_Click();
    void CancelCommand() override { cmdCancel_Click(); }

private:
    bool OpenTable();
    void ShowTable();
    void MoveSelected(MultiListBox& from, MultiListBox& to);
    static void MoveCurrent(MultiListBox& from, MultiListBox& to);
    std::int32_t RecordsToRead();
    DBaseRecords ReadSelection();
    void Clear();
};

} // namespace dorvan
