#include "adapters/qt/services/Application.h"

#include <cstdlib>
#include <utility>

namespace orvelle::qt {

namespace {

constexpr const char* OpenGlSetting = "QT_XCB_GL_INTEGRATION";

}  // namespace

ApplicationSetUp::ApplicationSetUp(std::string programName, std::string windowSystem)
    : name(std::move(programName)),
      platform(std::move(windowSystem)),
      isOurSetting(!qEnvironmentVariableIsSet(OpenGlSetting) && qputenv(OpenGlSetting, "none")) {}

void ApplicationSetUp::Done() {
    if (isOurSetting) qunsetenv(OpenGlSetting);
}

Application::Application(std::string programName, std::string windowSystem, FailureHandler failureHandler)
    : ApplicationSetUp(std::move(programName), std::move(windowSystem)),
      QApplication(count, values),
      failed(std::move(failureHandler)) {
    Done();
    // The panel lives on without a window, and ends by its own doors only.
    setQuitOnLastWindowClosed(false);
}

int Application::Run(const std::function<void()>& start) {
    try {
        start();
    } catch (const std::exception& error) {
        failed(error);
        return EXIT_FAILURE;
    }
    return exec();
}

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& error) {
        failed(error);
        return true;
    }
}

}  // namespace orvelle::qt
