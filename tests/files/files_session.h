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

// A session with a folder for files, and a log of what the openers put on the list of recent files.
class FilesSession : public ::testing::Test, protected TestSession {
protected:
    TemporaryFolder folder;
    std::vector<std::string> log;

    FilesSession() {
        settings.onWrite = [this](const std::string& key, const std::string& path) {
            if (key == "RecentFile1")
                log.push_back(fmt::format("recent {} {}", path, messages.shown.size() + windows()));
        };
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
