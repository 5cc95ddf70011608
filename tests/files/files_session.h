#pragma once

#include "files/file_text.h"
#include "numbers/text.h"
#include "platform/child_window.h"
#include "session/registry.h"
#include "sheet/frmNotePad.h"
#include "support/golden.h"
#include "support/test_platform.h"

#include <gtest/gtest.h>

#include <fmt/format.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace dorvan::test {

inline constexpr std::string_view OlderVersionText =
    "This file has been created in older Dorvan version. You can save it only with new format.";

inline FileText PointText() { return {CodePage(1252), '.', {}}; }
inline FileText CommaText() { return {CodePage(1250), ',', {}}; }

inline std::string golden(const std::string& name) { return goldenBytes("files/" + name); }

// The bytes with one piece in the place of another, which has to be there.
inline std::string with(std::string_view bytes, std::string_view piece, std::string_view other) {
    EXPECT_NE(bytes.find(piece), std::string_view::npos) << piece;
    return ReplaceAll(bytes, piece, other);
}

// A matrix or diagram window that remembers what it was given.
class RecordingWindow : public ChildWindow {
public:
    RecordingWindow(Session& session, std::string name, std::string_view kind)
        : ChildWindow(std::move(name)), session_(session), kind_(kind) {}

    std::vector<std::string> presented;

    // As the real windows: whatever sets the description marks the document changed.
    void Present(const std::string& description) override {
        presented.push_back(description);
        auto& states = kind_ == DocumentKind::Matrix ? session_.MatrixStates : session_.DiagramStates;
        states.at(std::size_t(Index)).Dirty = true;
    }
    void Form_Activate() override { TypeOfForm = kind_; }
    void Form_Deactivate() override {}
    void Form_Unload() override {}

private:
    Session& session_;
    std::string kind_;
};

// A session with data windows, recording windows for the other kinds, a folder for files, and a log of the
// commands that the openers reach through the command table.
class FilesSession : public ::testing::Test, protected TestSession {
protected:
    TemporaryFolder folder;
    std::vector<std::string> log;

    FilesSession() {
        session.windowMakers["DATA"] = [](Session& owner) { return std::make_shared<frmNotePad>(owner); };
        session.windowMakers["MATRIX"] = [](Session& owner) {
            return std::make_shared<RecordingWindow>(owner, "frmMacierz", DocumentKind::Matrix);
        };
        session.windowMakers["DIAGRAM"] = [](Session& owner) {
            return std::make_shared<RecordingWindow>(owner, "frmDiagram", DocumentKind::Diagram);
        };
        session.commands.Set("UpdateRecentFiles", [this](const CommandCall& call) {
            log.push_back(fmt::format("recent {} {}", call.Path, messages.shown.size() + windows()));
        });
        session.commands.Set("ClassifyDiagram", [this](const CommandCall& call) {
            auto& document = session.DiagramDocuments.at(std::size_t(call.Index));
            for (auto& cell : document.Classes.Cells()) cell = 5;
            log.push_back(fmt::format("classify {}", call.Index));
        });
    }
    ~FilesSession() override { expectScriptsUsedUp(); }

    std::size_t windows() const { return session.Children.size(); }

    std::string file(const std::string& name, std::string_view bytes) {
        writeFile(folder / name, bytes);
        return folder / name;
    }
    std::string goldenFile(const std::string& name) { return file(name, golden(name)); }

    std::vector<std::string> texts() const {
        std::vector<std::string> all;
        for (const auto& message : messages.shown) all.push_back(message.Text);
        return all;
    }

    // One message of this text and icon, and no window.
    void expectOnlyMessage(const std::string& text, MessageIcon icon) {
        ASSERT_EQ(messages.shown.size(), 1u);
        EXPECT_EQ(messages.shown[0], (Message{.Text = text, .Icon = icon, .Title = "Dorvan"}));
        EXPECT_EQ(windows(), 0u);
        EXPECT_TRUE(children.log.empty());
    }
    void expectSectionMessage(const std::string& text) { expectOnlyMessage(text, MessageIcon::Exclamation); }
    void expectFaultMessage(const std::string& text) { expectOnlyMessage(text, MessageIcon::Critical); }

    // The messages that tell of a fault, without the remark on an older version.
    std::size_t faultCount() const {
        std::size_t count = 0;
        for (const auto& message : messages.shown) count += message.Text == OlderVersionText ? 0 : 1;
        return count;
    }
};

// Where the last value of a text document starts: a file cut off before its first digit has a fault.
inline std::size_t lastFieldOf(std::string_view bytes) { return bytes.rfind(';') + 1; }

} // namespace dorvan::test
