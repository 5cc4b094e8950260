// A computer with a panel, as stories play it: a home that stays when it is switched off, a virtual display with window
// manager, tray and session bus, and the programs that run there, one group of processes. It joins a set-up as a user
// would make it join. All ends with the object.
#pragma once

#include <sys/types.h>

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <string>

namespace orvelle {

class VirtualComputer {
public:
    static constexpr int UsualScreenWidth = 984;  // pixels: the panel's window with its frame

    // `displayScript` is tests/with-display. Nobody else writes to `folder`, which is made.
    VirtualComputer(const QDir& folder, const QString& displayScript, int screenWidth = UsualScreenWidth);
    VirtualComputer(const VirtualComputer&) = delete;
    VirtualComputer& operator=(const VirtualComputer&) = delete;
    ~VirtualComputer();

    const QDir Home;
    std::string SettingsFile() const;  // of its panel
    QString RunFolder() const { return Home.filePath("run"); }

    void SwitchOn();  // its display
    bool IsOn();      // from when that is there
    void SwitchOff();
    std::string Display() const { return display; }  // "" while it is off
    QImage Screen() const;                           // none while it is off
    pid_t Group() const { return static_cast<pid_t>(desktop.processId()); }

    // What its programs find in their environment beside home, display and bus: at first what this process has.
    QProcessEnvironment Environment = QProcessEnvironment::systemEnvironment();
    // A program of ours, which lies beside this one.
    void Run(QProcess& program, const char* file, const QStringList& words);

    // By the code that was made for it: orvelle-setup. The broker may take it only a moment after it was made, so it is
    // typed again until it is taken.
    void Join(const std::string& code, int brokerPort);
    bool HasJoined();
    const std::string& SaidOfJoining() const { return saidOfJoining; }

private:
    const QString script;
    const int width;
    std::string display;
    QString sessionBus;
    QProcess desktop;
    QProcess joining;
    QStringList joiningWords;
    std::string saidOfJoining;
};

}  // namespace orvelle
