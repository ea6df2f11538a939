#include <gtest/gtest.h>

#include <QApplication>

// The expected boards are painted by this process, with the same fonts as the real program's: on the same
// display.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "xcb");
    const QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
