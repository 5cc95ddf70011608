#pragma once

#include <string>

namespace dorvan {

enum class MessageIcon { None, Critical, Question, Exclamation, Information };
enum class MessageButtons { Ok, YesNo, YesNoCancel };
enum class Answer { Ok, Yes, No, Cancel };

struct Message {
    std::string Text; // lines end with "\n" or "\r\n"
    MessageIcon Icon = MessageIcon::None;
    MessageButtons Buttons = MessageButtons::Ok;
    std::string Title = "Dorvan";
    Answer Default = Answer::Yes; // the default button of a question

    bool operator==(const Message&) const = default;
};

struct MessageBoxes { // a port: no toolkit type, no default that hides a missing answer
    virtual ~MessageBoxes() = default;
    virtual Answer show(const Message& message) = 0;
};

} // namespace dorvan
