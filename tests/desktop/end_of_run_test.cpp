#include "desktop/end_of_run.h"
#include "desktop_test.h"
#include "support/golden.h"

#include <QDir>
#include <QMetaObject>
#include <QSessionManager>

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <new>

namespace dorvan::test {
namespace {

// A home of its own, so that copies do not land in the user's documents.
class EndOfRunTest : public DesktopTest {
protected:
    QTemporaryDir home;
    QByteArray homeBefore = qgetenv("HOME");
    QByteArray configBefore = qgetenv("XDG_CONFIG_HOME");

    EndOfRunTest() {
        qputenv("HOME", home.path().toUtf8());
        qputenv("XDG_CONFIG_HOME", home.filePath("config").toUtf8());
    }
    ~EndOfRunTest() override {
        qputenv("HOME", homeBefore);
        qputenv("XDG_CONFIG_HOME", configBefore);
    }

    QDir Rescued() { return QDir(home.filePath("Documents/Dorvan rescued documents")); }

    // The signal that the toolkit sends when the desktop session ends. Nobody looks at the manager, of which
    // there is none without a session.
    static void EndDesktopSession() {
        alignas(std::max_align_t) static std::byte place[sizeof(QSessionManager)] = {};
        ASSERT_TRUE(QMetaObject::invokeMethod(qApp, "commitDataRequest", Qt::DirectConnection,
                                              QGenericArgument("QSessionManager&", place)));
    }
};

TEST_F(EndOfRunTest, TheEndOfTheDesktopSessionRescuesWhatNoFileHolds) {
    const EndOfRun listener(desktop.session);
    NewSheet(2, 3);
    EndDesktopSession();
    const QStringList copies = Rescued().entryList(QDir::Files);
    ASSERT_EQ(copies.size(), 1);
    EXPECT_TRUE(copies[0].startsWith("untitled-1 ") && copies[0].endsWith(".mdt")) << copies[0].toStdString();
    EXPECT_EQ(fileBytes(Rescued().filePath(copies[0]).toStdString()),
              "Dorvan DATA "
              "3.3\r\n\r\n[HEADER]\r\nDescription=\r\nRecCount=2\r\nVarCount=3\r\n\r\n[RECORD_LABEL]\r\n"
              "Record 1\r\nRecord 2\r\n\r\n[VARIABLE_LABEL]\r\nVAR  1\r\nVAR  2\r\nVAR  3\r\n\r\n[DATA]\r\n"
              "0.000;0.000;0.000\r\n0.000;0.000;0.000\r\n");
    EXPECT_EQ(desktop.session.Children.size(), 1u); // the program itself goes on until it is told to end
}

// The box closes by its button; the child process in which this happens ends then.
TEST_F(EndOfRunTest, TheBoxOfAFailureSaysThatTheProgramClosesAndWhereTheCopiesAre) {
    NewSheet(2, 3);
    const auto end = [this] {
        InDialog([](QDialog& dialog) {
            const auto& box = dynamic_cast<QMessageBox&>(dialog);
            std::fprintf(stderr, "BOX %s|%s\n", qPrintable(box.text()), qPrintable(box.informativeText()));
            dialog.accept();
        });
        EndOfRun(desktop.session).OnFailure("Run-time error '9': Subscript out of range");
    };
    const std::string path = Rescued().path().toStdString() + "/untitled-1 ";
    EXPECT_EXIT(end(), ::testing::ExitedWithCode(EXIT_FAILURE),
                "BOX Run-time error '9': Subscript out of range.The program closes now\\.\n\n"
                "Copies of documents that no file holds:\n  " +
                    path);
}

TEST_F(EndOfRunTest, MemoryThatDoesNotSufficeEndsTheRunByItsClassicNumber) {
    desktop.dispatch.Run([] { throw std::bad_alloc(); });
    EXPECT_EQ(ended, "Run-time error '7': Out of memory");
    ended.clear();
}

TEST_F(EndOfRunTest, AnEndWithNothingToRescueWritesNothing) {
    const EndOfRun listener(desktop.session);
    EndDesktopSession();
    EXPECT_FALSE(Rescued().exists());
}

} // namespace
} // namespace dorvan::test
