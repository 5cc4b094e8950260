#include <gtest/gtest.h>

#include "adapters/looks/Theme.h"
#include "adapters/qt/services/Application.h"
#include "apps/ThisProcess.h"

int main(int argumentCount, char** arguments) {
    testing::InitGoogleTest(&argumentCount, arguments);
    const std::string windowSystem = orvelle::ThisProcess().WindowSystem();
    orvelle::qt::Application application("wayland-tests", windowSystem, [](const std::exception& error) {
        ADD_FAILURE() << "an error left a handler: " << error.what();
    });
    orvelle::ApplyTheme(orvelle::Scheme::Light);
    return RUN_ALL_TESTS();
}
