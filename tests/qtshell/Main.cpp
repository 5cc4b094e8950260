#include "tests/qtshell/Main.h"

#include <gtest/gtest.h>

#include "platform/qt/Application.h"

namespace orvelle {

EndSignals& TakenSignals() {
    static EndSignals taken;
    return taken;
}

std::vector<std::string>& Failures() {
    static std::vector<std::string> lines;
    return lines;
}

}  // namespace orvelle

int main(int argumentCount, char** arguments) {
    testing::InitGoogleTest(&argumentCount, arguments);
    // Before any thread is there.
    orvelle::TakenSignals();
    orvelle::Application application("qtshell_tests", [](const std::exception& error) {
        orvelle::Failures().push_back(orvelle::Application::FailureLine(error));
    });
    return RUN_ALL_TESTS();
}
