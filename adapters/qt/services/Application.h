// The program's one Qt application. An error that leaves a handler, in the loop or in a loop nested in it, goes to the
// callback, which ends the program; it is called on the thread of the loop with the failed handler's stack already
// unwound, and whatever it leaves undone is lost. The application reads no command line.
#pragma once

#include <QApplication>
#include <exception>
#include <functional>
#include <string>

namespace orvelle::qt {

// What QApplication keeps references to for as long as it lives, and the setting that it is built under: nothing here
// draws by OpenGL, and the library for it would cost more memory than the panel.
class ApplicationSetUp {
protected:
    ApplicationSetUp(std::string programName, std::string windowSystem);
    // Programs that the panel starts must not inherit the setting.
    void Done();

    std::string name;
    std::string platformOption = "-platform";
    std::string platform;
    char* values[4] = {name.data(), platformOption.data(), platform.data(), nullptr};
    int count = 3;

private:
    bool isOurSetting;
};

class Application : private ApplicationSetUp, public QApplication {
public:
    using FailureHandler = std::function<void(const std::exception&)>;

    // `windowSystem` as Qt calls it.
    Application(std::string programName, std::string windowSystem, FailureHandler failureHandler);

    // Runs `start`, whose errors are handled like those of the loop, then the loop.
    int Run(const std::function<void()>& start);
    bool notify(QObject* receiver, QEvent* event) override;

private:
    const FailureHandler failed;
};

}  // namespace orvelle::qt
