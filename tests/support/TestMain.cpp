#include <QCoreApplication>

#include <gtest/gtest.h>

// Every test executable runs with a QCoreApplication, as the tool does.
int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
