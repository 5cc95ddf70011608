#pragma once

#include "platform/drawing.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

// The state of a window's controls. Rules live in the window's class; a face mirrors these values.
namespace dorvan {

struct Control {
    explicit Control(std::string name, std::string caption = {})
        : Name(std::move(name)), Caption(std::move(caption)) {}
    virtual ~Control() = default;

    std::string Name;
    std::string Caption; // "&" marks the access key
    bool Enabled = true;
    bool Visible = true;
};

struct Label : Control {
    using Control::Control;
};

struct Frame : Control {
    using Control::Control;
};

struct CommandButton : Control {
    using Control::Control;
};

// A filled area that grows with a quantity. Lengths in twips.
struct Bar : Control {
    Bar(std::string name, double width) : Control(std::move(name)), Width(width) {}
    double Width;
};

enum class Alignment { Left, Right, Centre };

struct TextBox : Control {
    explicit TextBox(std::string name, std::string text = {})
        : Control(std::move(name)), Text(std::move(text)) {}

    std::string Text;
    int MaxLength = 0; // characters; 0 is no limit
    int SelStart = 0;  // characters before the caret (or the selection)
    int SelLength = 0;
    Alignment TextAlignment = Alignment::Left;
};

struct OptionButton : Control {
    using Control::Control;
    bool Value = false;
};

struct CheckBox : Control {
    using Control::Control;
    bool Value = false;
};

// A list of lines of which at most one is selected, counted from 0; -1 when none is.
struct ListBox : Control {
    using Control::Control;

    std::vector<std::string> List;
    int ListIndex = -1;

    std::string Text() const { return ListIndex < 0 ? std::string() : List.at(std::size_t(ListIndex)); }
};

// A drop-down list.
struct ComboBox : ListBox {
    using ListBox::ListBox;
};

// A white area that shows a drawing at its upper left corner.
class Picture : public Control {
public:
    using Control::Control;

    const Drawing& Shown() const { return shown_; }
    void Show(Drawing drawing) {
        shown_ = std::move(drawing);
        ++revision_;
    }
    // Grows with every change: a face that has painted a revision need not paint it again.
    std::uint64_t Revision() const { return revision_; }

private:
    Drawing shown_;
    std::uint64_t revision_ = 0;
};

} // namespace dorvan
