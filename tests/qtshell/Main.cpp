#include "tests/qtshell/Main.h"

#include <gtest/gtest.h>

#include "platform/RuntimeError.h"
#include "platform/qt/Application.h"

namespace orvelle {

std::vector<int>& Failures() {
    static std::vector<int> numbers;
    return numbers;
}

}  // namespace orvelle

int main(int argumentCount, char** arguments) {
    testing::InitGoogleTest(&argumentCount, arguments);
    orvelle::Application application("qtshell_tests", [](const std::exception& error) {
        orvelle::Failures().push_back(dynamic_cast<const orvelle::RuntimeError&>(error).Number);
    });
    return RUN_ALL_TESTS();
}
