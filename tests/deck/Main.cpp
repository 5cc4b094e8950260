#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    // A list of the tests is asked for while building, where there is no screen of any kind.
    if (GTEST_FLAG_GET(list_tests)) return RUN_ALL_TESTS();
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
