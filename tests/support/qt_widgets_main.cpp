// main() of tests that drive windows, on a platform without a display.

#include <gtest/gtest.h>

#include <QApplication>

#include "console/theme.h"

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    zelvor::theme::prepare(application);
    zelvor::theme::apply(application);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
