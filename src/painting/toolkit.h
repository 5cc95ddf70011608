#pragma once

#include <memory>

namespace dorvan::painting {

// Starts the toolkit for a program without windows, as long as it lives. It needs no screen and looks for
// none.
class Toolkit {
public:
    Toolkit();
    ~Toolkit();
    Toolkit(const Toolkit&) = delete;
    Toolkit& operator=(const Toolkit&) = delete;

private:
    struct Started;
    std::unique_ptr<Started> started_;
};

} // namespace dorvan::painting
