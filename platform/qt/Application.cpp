#include "platform/qt/Application.h"

#include <utility>

#include "platform/RuntimeError.h"

namespace orvelle {

namespace {

constexpr const char* OpenGlSetting = "QT_XCB_GL_INTEGRATION";

std::string ErrorName(int number) {
    switch (number) {
        case RuntimeError::Overflow:
            return "overflow";
        case RuntimeError::SubscriptOutOfRange:
            return "subscript out of range";
        case RuntimeError::TypeMismatch:
            return "type mismatch";
        default:
            return "unknown";
    }
}

}  // namespace

ApplicationSetUp::ApplicationSetUp(std::string programName)
    : name(std::move(programName)),
      isOurSetting(!qEnvironmentVariableIsSet(OpenGlSetting) && qputenv(OpenGlSetting, "none")) {}

void ApplicationSetUp::Done() {
    if (isOurSetting) qunsetenv(OpenGlSetting);
}

Application::Application(std::string programName, FailureHandler failureHandler)
    : ApplicationSetUp(std::move(programName)), QApplication(count, values), failed(std::move(failureHandler)) {
    Done();
    // The panel lives on without a window, and ends by its own doors only.
    setQuitOnLastWindowClosed(false);
}

int Application::Run(const std::function<void()>& start) {
    try {
        start();
    } catch (const std::exception& error) {
        failed(error);
        return FailureStatus;
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

std::string Application::FailureLine(const std::exception& error) {
    const std::string program = "OrvelleCP: ";
    const auto* runtimeError = dynamic_cast<const RuntimeError*>(&error);
    if (runtimeError == nullptr) return program + "internal error (" + error.what() + ")";
    return program + "run-time error " + std::to_string(runtimeError->Number) + " (" + ErrorName(runtimeError->Number) +
           ")";
}

}  // namespace orvelle
