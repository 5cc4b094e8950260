#include <gtest/gtest.h>

#include <QCoreApplication>

int main(int count, char** values) {
    testing::InitGoogleTest(&count, values);
    const QCoreApplication application(count, values);
    return RUN_ALL_TESTS();
}
