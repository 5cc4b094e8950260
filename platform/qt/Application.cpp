#include "platform/qt/Application.h"

#include <utility>

#include "platform/RuntimeError.h"

namespace orvelle {

namespace {

// Nothing here draws by OpenGL, and the library for it would cost more memory than the panel. The setting is this
// program's own: a program that it starts must not inherit it.
class WithoutOpenGl {
public:
    WithoutOpenGl() {
        if (!qEnvironmentVariableIsSet(variable)) isOurs = qputenv(variable, "none");
    }
    ~WithoutOpenGl() {
        if (isOurs) qunsetenv(variable);
    }
    WithoutOpenGl(const WithoutOpenGl&) = delete;
    WithoutOpenGl& operator=(const WithoutOpenGl&) = delete;

private:
    static constexpr const char* variable = "QT_XCB_GL_INTEGRATION";
    bool isOurs = false;
};

std::string ErrorName(int number) {
    switch (number) {
        case RuntimeError::Overflow: return "overflow";
        case RuntimeError::SubscriptOutOfRange: return "subscript out of range";
        case RuntimeError::TypeMismatch: return "type mismatch";
        default: return "unknown";
    }
}

}  // namespace

Application::Application(std::string programName, FailureHandler failureHandler)
    : ApplicationArguments(std::move(programName)),
      QApplication((WithoutOpenGl(), count), values),
      failed(std::move(failureHandler)) {
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
    return program + "run-time error " + std::to_string(runtimeError->Number) + " (" +
           ErrorName(runtimeError->Number) + ")";
}

}  // namespace orvelle
