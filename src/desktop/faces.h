#pragma once

#include "numbers/runtime_failure.h"

#include <functional>
#include <map>
#include <string>
#include <typeindex>
#include <utility>

namespace dorvan {

// Which function lays out the face of a class, for faces with `More` beside their window. Filled before main.
template <class Face, class Window, class... More> class Layouts {
public:
    using LayOut = std::function<void(Face&, Window&, const More&...)>;

    static void Add(std::type_index type, LayOut layOut) { All().insert_or_assign(type, std::move(layOut)); }

    // Fails with InvalidProcedureCall for a class without a face.
    static const LayOut& For(const Window& window) {
        const auto found = All().find(typeid(window));
        if (found == All().end()) throw RuntimeFailure(Failure::InvalidProcedureCall, window.Name);
        return found->second;
    }

private:
    static std::map<std::type_index, LayOut>& All() {
        static std::map<std::type_index, LayOut> all;
        return all;
    }
};

} // namespace dorvan
