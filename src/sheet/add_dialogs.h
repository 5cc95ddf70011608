#pragma once

#include "platform/number_field.h"
#include "session/dialog.h"

#include <cstdint>
#include <string>

namespace dorvan {

// What the dialogs of new records and of new variables share: a number, which the sheet has to have room for.
class AddDialog : public Dialog {
public:
    Label Label1;
    TextBox Text1{"Text1", "1"};
    CommandButton Command2{"Command2", "OK"};
    CommandButton Command1{"Command1", "Cancel"};

    // The number that was accepted last; the command clears it before it shows the dialog.
    std::int16_t PendingAddCount = 0;

    void Command2_Click();
    void Command1_Click() { Close(DialogResult::Cancelled); }
    void CancelCommand() override { Command1_Click(); }
    void Text1_KeyPress(int& keyAscii) {
        FilterThreeDigitsKey(session_.platform.keyboard, *this, Text1, keyAscii);
    }

protected:
    AddDialog(std::string name, std::string caption, std::string label, Session& session)
        : Dialog(std::move(name), std::move(caption), session), Label1("Label1", std::move(label)) {}

private:
    virtual int Present() const = 0; // what the sheet has of them
    virtual int Most() const = 0;    // what it may have
    virtual std::string NoRoom(const std::string& rest) const = 0;
    void Refuse(const std::string& text);
};

// New records: a sheet holds at most 1999 of them.
class frmAddRec : public AddDialog {
public:
    explicit frmAddRec(Session& session)
        : AddDialog("frmAddRec", "Add record", "Number of new records:", session) {}

private:
    int Present() const override;
    int Most() const override { return 1999; }
    std::string NoRoom(const std::string& rest) const override;
};

// New variables: a sheet holds at most 100 of them.
class frmAddVar : public AddDialog {
public:
    explicit frmAddVar(Session& session)
        : AddDialog("frmAddVar", "Add variable", "Number of new variables:", session) {}

private:
    int Present() const override;
    int Most() const override { return 100; }
    std::string NoRoom(const std::string& rest) const override;
};

} // namespace dorvan
