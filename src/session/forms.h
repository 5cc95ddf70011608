#pragma once

#include "platform/form.h"

#include <map>
#include <memory>
#include <typeindex>

namespace dorvan {

// The dialogs of a run, each made (and loaded) at its first use and kept, so that its fields keep their
// contents; Unload drops one, and its next use loads it anew.
class Forms {
public:
    template <class F, class Context> F& Load(Context& context) {
        auto& form = forms_[typeid(F)];
        if (!form) {
            form = std::make_unique<F>(context);
            form->Form_Load();
        }
        return static_cast<F&>(*form);
    }

    template <class F> void Unload() { forms_.erase(typeid(F)); }

private:
    std::map<std::type_index, std::unique_ptr<Form>> forms_;
};

} // namespace dorvan
