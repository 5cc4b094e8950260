#include "tests/qt/shell/Main.h"

#include <gtest/gtest.h>

#include "adapters/qt/services/Application.h"
#include "platform/RuntimeError.h"

namespace orvelle::qt {

std::vector<int>& Failures() {
    static std::vector<int> numbers;
    return numbers;
}

}  // namespace orvelle::qt

int main(int argumentCount, char** arguments) {
    testing::InitGoogleTest(&argumentCount, arguments);
    orvelle::qt::Application application("qt-shell-tests", "xcb", [](const std::exception& error) {
        orvelle::qt::Failures().push_back(dynamic_cast<const orvelle::RuntimeError&>(error).Number);
    });
    return RUN_ALL_TESTS();
}
