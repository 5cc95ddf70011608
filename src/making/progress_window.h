#pragma once

#include "platform/form.h"

#include <optional>
#include <string>

namespace dorvan {

// The window of a search under way, also for who shows no windows.
class ProgressWindow : public Form {
public:
    using Form::Form;

    virtual std::string onOneLine() const = 0;                     // what it shows
    virtual std::optional<double> shareDone() const { return {}; } // 0 to 1; none where nobody knows
};

} // namespace dorvan
