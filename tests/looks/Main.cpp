#include <gtest/gtest.h>

#include <QApplication>

#include "adapters/looks/Theme.h"

int main(int argumentCount, char** arguments) {
    testing::InitGoogleTest(&argumentCount, arguments);
    const QApplication application(argumentCount, arguments);
    orvelle::ApplyTheme(orvelle::Scheme::Light);
    return RUN_ALL_TESTS();
}
