#include "painting/toolkit.h"

#include <QGuiApplication>

#include <fmt/format.h>

#include <array>
#include <cstdio>

namespace dorvan::painting {

namespace {

// The toolkit's advice to its developers is nothing for the user of a command line.
void OnlyWhatFails(QtMsgType type, const QMessageLogContext&, const QString& text) {
    if (type == QtCriticalMsg || type == QtFatalMsg) fmt::print(stderr, "{}\n", text.toStdString());
}

} // namespace

struct Toolkit::Started {
    QtMessageHandler before = qInstallMessageHandler(OnlyWhatFails);
    ~Started() { qInstallMessageHandler(before); }

    // The application keeps references to both.
    std::array<char, 11> name{"dorvan-cli"};
    std::array<char, 10> option{"-platform"};
    std::array<char, 10> platform{"offscreen"};
    std::array<char*, 4> arguments{name.data(), option.data(), platform.data(), nullptr};
    int count = 3;
    QGuiApplication application{count, arguments.data()};
};

Toolkit::Toolkit() : started_(std::make_unique<Started>()) {}
Toolkit::~Toolkit() = default;

} // namespace dorvan::painting
