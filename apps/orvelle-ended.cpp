// Tells the user that the panel has ended without being asked to, and offers to start it again. The key guard becomes
// this program when the panel is gone: the first word is the panel's file, the second one what the panel said of its
// end, if it said something. What the user reads stands in the system's journal, too, also where no window can be
// shown.
#include <syslog.h>
#include <unistd.h>

#include <QDir>
#include <QMessageBox>
#include <QPushButton>
#include <cstdlib>
#include <system_error>

#include "adapters/linux/ControlGroup.h"
#include "adapters/linux/StartedPrograms.h"
#include "adapters/looks/DesktopTheme.h"
#include "adapters/looks/SignIcon.h"
#include "adapters/looks/Text.h"
#include "adapters/qt/services/Application.h"
#include "adapters/qt/widgets/StatusImage.h"
#include "apps/EndSentences.h"
#include "apps/WindowSystem.h"

using namespace orvelle;

namespace {

void WriteToJournal(const std::string& sentences) {
    openlog("OrvelleCP", LOG_PID, LOG_USER);
    syslog(LOG_ERR, "%s", sentences.c_str());
    closelog();
}

enum class Answer { StartAgain, Close };

Answer Ask(const std::string& sentences) {
    QMessageBox box(QMessageBox::NoIcon, "Orvelle Control Panel", ToQt(sentences));
    box.setIconPixmap(SignIcon(Sign::Waiting).pixmap(3 * box.fontMetrics().height()));
    box.setTextFormat(Qt::PlainText);
    // Whatever the user works in meanwhile, the panel is missing.
    box.setWindowFlag(Qt::WindowStaysOnTopHint);
    const QPushButton* again = box.addButton("&Start again", QMessageBox::AcceptRole);
    box.addButton("&Close", QMessageBox::RejectRole);
    box.exec();
    return box.clickedButton() == again ? Answer::StartAgain : Answer::Close;
}

// As from a menu: in the user's home, and not in the group of processes that this one has from the key guard.
void StartPanel(const std::string& file) {
    QDir::setCurrent(QDir::homePath());
    linux::LeaveControlGroup("orvelle-panel");
    const int error = linux::StartedPrograms().Start(file, {}, "").Error;
    if (error == 0) return;
    const std::string reason = std::generic_category().message(error);
    QMessageBox(QMessageBox::Warning, "Orvelle Control Panel",
                ToQt("The panel " + file + " could not be started: " + reason + "."))
        .exec();
}

}  // namespace

int main(int count, char** arguments) {
    if (count < 2 || count > 3) return 2;
    const std::string sentences = count == 3 ? arguments[2] : EndWithoutWord();
    WriteToJournal(sentences);
    const WindowSystem windows = FindWindowSystem();
    if (!windows.Missing.empty()) return EXIT_FAILURE;

    qt::Application application("orvelle-ended", windows.Name, [](const std::exception&) { _exit(EXIT_FAILURE); });
    qt::Application::setDesktopFileName("net.orvelle.orvellecp");
    const DesktopTheme theme;
    qt::Application::setWindowIcon(qt::StatusIcon("VVVVVV"));
    if (Ask(sentences) == Answer::StartAgain) StartPanel(arguments[1]);
}
