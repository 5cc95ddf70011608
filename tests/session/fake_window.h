#pragma once

#include "session/children.h"
#include "session/registry.h"
#include "support/test_platform.h"

#include <memory>
#include <string>
#include <vector>

namespace dorvan::test {

// A child window that records what happens to it, in a log that it shares with the others.
class FakeWindow : public ChildWindow {
public:
    FakeWindow(Session& session, std::string_view kind, std::vector<std::string>& log)
        : ChildWindow("frmFake"), session_(session), kind_(kind), log_(log) {}

    bool Asks = false; // asks before it closes

    void Form_Activate() override {
        TypeOfForm = kind_;
        log_.push_back("activate " + Caption);
    }
    void Form_Deactivate() override { log_.push_back("deactivate " + Caption); }
    bool Form_QueryUnload() override {
        return !Asks || AskToSave(session_, "data", Caption, MessageIcon::Exclamation) != Answer::Cancel;
    }
    void Form_Unload() override { log_.push_back("unload " + Caption); }

private:
    Session& session_;
    std::string kind_;
    std::vector<std::string>& log_;
};

// A started session whose windows are all fakes.
struct FakeWindowSession : TestSession {
    std::vector<std::string> log;

    // Opens an untitled window of the kind, as its openers do.
    template <class Window = FakeWindow> Window& Open(std::string_view kind) {
        session.NewWindowIndex = FindFreeSlot(session, kind);
        const auto window = std::make_shared<Window>(session, kind, log);
        PutIntoRegistry(session, kind, window);
        window->Caption = UntitledCaption(kind, window->Index);
        ShowChild(session, *window);
        return *window;
    }
};

} // namespace dorvan::test
