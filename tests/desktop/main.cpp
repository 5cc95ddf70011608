#include <QApplication>

#include <gtest/gtest.h>

#include <cstdlib>
#include <unistd.h>

int main(int argumentCount, char** arguments) {
    ::testing::InitGoogleTest(&argumentCount, arguments);
    if (::testing::GTEST_FLAG(list_tests)) return RUN_ALL_TESTS();
    ::alarm(120); // a modal dialog that nobody answers must not hang the test
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    const QApplication application(argumentCount, arguments);
    return RUN_ALL_TESTS();
}
