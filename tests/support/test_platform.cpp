#include "support/test_platform.h"

#include <new>
#include <utility>

#include <gtest/gtest.h>

#include <stdexcept>

namespace dorvan::test {

Answer ScriptedMessages::show(const Message& message) {
    shown.push_back(message);
    if (message.Buttons == MessageButtons::Ok) return Answer::Ok;
    if (answers.empty()) {
        ADD_FAILURE() << "an unexpected question: " << message.Text;
        throw std::logic_error("unanswered question: " + message.Text);
    }
    const Answer answer = answers.front();
    answers.pop_front();
    return answer;
}

std::string ScriptedFiles::next(const FileRequest& request) {
    requests.push_back(request);
    if (paths.empty()) {
        ADD_FAILURE() << "an unexpected file dialog: " << request.Title;
        throw std::logic_error("unanswered file dialog: " + request.Title);
    }
    std::string path = paths.front();
    paths.pop_front();
    return path;
}

std::string ScriptedFiles::toOpen(const FileRequest& request) { return next(request); }
std::string ScriptedFiles::toSave(const FileRequest& request) { return next(request); }

void ScriptedForms::showModal(Form& form) {
    log.push_back("modal " + form.Name);
    if (scripts.empty()) {
        ADD_FAILURE() << "an unexpected dialog: " << form.Name;
        throw std::logic_error("unanswered dialog: " + form.Name);
    }
    auto script = scripts.front();
    scripts.pop_front();
    form.Visible = true;
    form.Form_Show();
    form.Form_Resize();
    script(form);
    if (form.Visible) {
        ADD_FAILURE() << "the script leaves " << form.Name << " open";
        form.Visible = false;
    }
}

void ScriptedForms::show(Form& form) {
    log.push_back("show " + form.Name);
    form.Visible = true;
    form.Form_Show();
}

void ScriptedForms::update(Form& form) { log.push_back("update " + form.Name); }

void ScriptedForms::close(Form& form) {
    log.push_back("close " + form.Name);
    form.Visible = false;
}

void RecordingChildren::show(ChildWindow& window) {
    if (std::exchange(memoryEnds, false)) throw std::bad_alloc();
    log.push_back("show " + window.Caption);
}
void RecordingChildren::update(ChildWindow& window) { log.push_back("update " + window.Caption); }
void RecordingChildren::close(ChildWindow& window) { log.push_back("close " + window.Caption); }
void RecordingChildren::arrange(int mode) { log.push_back("arrange " + std::to_string(mode)); }

int ScriptedEvents::run() {
    ++runs;
    if (onRun) onRun(runs);
    return windows;
}

PixelImage BlankRasterizer::pixelsOf(const Drawing& drawing) {
    if (empty) return {};
    const int width = static_cast<int>((drawing.Width + 14) / 15);
    const int height = static_cast<int>((drawing.Height + 14) / 15);
    return {width, height, std::vector<std::uint32_t>(std::size_t(width) * std::size_t(height), 0xFFFFFF)};
}

void RecordingClipboard::clear() {
    if (fails) throw std::runtime_error("the clipboard is another program's");
    log.push_back("clear");
}

void RecordingClipboard::put(const Drawing& drawing) {
    log.push_back("put");
    held = drawing;
}

void RecordingKeyboard::send(const std::string& keys) {
    sent.push_back(keys);
    if (onSend) onSend(keys);
}

std::string MemorySettings::read(const std::string& section, const std::string& key,
                                 const std::string& missing) {
    if (onRead) onRead();
    const auto found = sections[section].find(key);
    return found == sections[section].end() ? missing : found->second;
}

void MemorySettings::write(const std::string& section, const std::string& key, const std::string& value) {
    sections[section][key] = value;
    if (onWrite) onWrite(key, value);
}

std::vector<std::pair<std::string, std::string>> MemorySettings::readSection(const std::string& section) {
    return {sections[section].begin(), sections[section].end()};
}

void RecordingHelp::show(const std::string& file, int command) {
    shown.emplace_back(file, command);
    if (!error.empty()) throw std::runtime_error(error);
}

void TestPlatform::expectScriptsUsedUp() const {
    EXPECT_TRUE(messages.answers.empty()) << "a question was not asked";
    EXPECT_TRUE(files.paths.empty()) << "a file dialog was not shown";
    EXPECT_TRUE(forms.scripts.empty()) << "a dialog was not shown";
}

TestSession::TestSession() {
    StartSession(session, 1, "program-folder");
    session.DecimalSeparator = '.';
    session.codePage = CodePage(1252);
}

} // namespace dorvan::test
