// Panels as programs, with settings of the test's own, and what is seen of them from outside: their windows and those
// of the programs that they leave behind.
#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <optional>

#include "adapters/store/SqliteStore.h"
#include "adapters/x11/TopLevelWindows.h"
#include "tests/endtoend/MarkedProcesses.h"
#include "tests/endtoend/User.h"
#include "tests/shared/HandLoop.h"

namespace orvelle {

class StartedPanel : public testing::Test {
protected:
    void Start(QProcess& process, const QString& program = PANEL_PROGRAM,
               const QString& display = qEnvironmentVariable("DISPLAY")) const {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("XDG_DATA_HOME", folder.path());
        environment.remove("WAYLAND_DISPLAY");
        environment.insert("DISPLAY", display);
        process.setProcessEnvironment(environment);
        process.start(program, QStringList());
    }
    // Those settings, while no panel runs.
    store::SqliteStore Settings() {
        QDir(folder.path()).mkpath("OrvelleCP");
        return {loop, folder.filePath("OrvelleCP/settings.sqlite").toStdString(),
                [](const std::string& sentence) { ADD_FAILURE() << sentence; }};
    }
    static bool IsOver(const QProcess& process) {
        return ComesTrue([&] { return process.state() == QProcess::NotRunning; });
    }
    // A window that is on the screen, of a process of ours that runs that program.
    std::optional<xcb_window_t> WindowOf(const std::string& program) {
        for (const pid_t process : processes.Running(program))
            for (const xcb_window_t window : windows.List())
                if (windows.ProcessOf(window) == process && windows.StateOf(window) == TopLevelWindows::State::Normal)
                    return window;
        return std::nullopt;
    }
    bool Shows(const std::string& program) {
        return ComesTrue([&] { return WindowOf(program).has_value(); });
    }
    // All that descends from this test has ended.
    bool NothingIsLeft() const {
        return ComesTrue([this] { return processes.Running().empty(); });
    }

    const QTemporaryDir folder;
    HandLoop loop;
    MarkedProcesses processes;
    TopLevelWindows windows{""};
    User user;
};

}  // namespace orvelle
