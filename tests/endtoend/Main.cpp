#include <gtest/gtest.h>

#include "adapters/looks/Theme.h"
#include "adapters/qt/services/Application.h"
#include "tests/avahi/AvahiRig.h"

int main(int argumentCount, char** arguments) {
    testing::InitGoogleTest(&argumentCount, arguments);
    // What this computer's own network shows is of no interest here.
    orvelle::avahi::AvahiRig::UseOwnBus();
    orvelle::qt::Application application("endtoend-tests", "xcb", [](const std::exception& error) {
        ADD_FAILURE() << "an error left a handler: " << error.what();
    });
    orvelle::ApplyTheme(orvelle::Scheme::Light);
    return RUN_ALL_TESTS();
}
