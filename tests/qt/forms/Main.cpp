#include <gtest/gtest.h>

#include <QApplication>

#include "adapters/looks/Theme.h"

int main(int argumentCount, char** arguments) {
    testing::InitGoogleTest(&argumentCount, arguments);
    QApplication application(argumentCount, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    orvelle::ApplyTheme(orvelle::Scheme::Light);
    return RUN_ALL_TESTS();
}
