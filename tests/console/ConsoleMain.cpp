#include <QApplication>

#include <gtest/gtest.h>

// The window needs a QApplication, where the other suites run with a QCoreApplication.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
