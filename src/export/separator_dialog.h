#pragma once

#include "export/text_choices.h"
#include "platform/form.h"
#include "session/session.h"

#include <cstdint>
#include <string>
#include <utility>

namespace dorvan {

// What the two dialogs of text exports share: the separator, a value of the session's, and how they end.
class SeparatorDialog : public Form {
public:
    Frame Frame1{"Frame1", "Separator:"};
    OptionButton Option1;
    OptionButton Option2;
    OptionButton Option3{"Option3", "&tab separator"};
    CommandButton Command1{"Command1", "Cancel"};
    CommandButton Command2{"Command2", "O&K"};

    void Enter(const TextChoices& choices);

    void Form_Load() override { Enter({.Separator = session_.*separator_}); }
    void Command1_Click();
    void Command2_Click();
    void CancelCommand() override { Command1_Click(); }

protected:
    SeparatorDialog(std::string name, std::string caption, Session& session, std::int16_t Session::*separator,
                    std::string semicolon, std::string comma)
        : Form(std::move(name), std::move(caption)), Option1("Option1", std::move(semicolon)),
          Option2("Option2", std::move(comma)), session_(session), separator_(separator) {}

    Session& session_;

private:
    std::int16_t Session::*separator_;
};

} // namespace dorvan
