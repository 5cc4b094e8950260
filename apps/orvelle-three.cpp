// What ./run three does without a display of the user's: the story of three computers and the simulator's, each with a
// display of its own, told in the terminal while it happens. It runs on the display of the simulator's computer, and is
// given the script by which the others get theirs: tests/with-display. Exit status 0 if everything came about.
#include <QTemporaryDir>
#include <cstdlib>
#include <iostream>

#include "adapters/linux/TerminationSignals.h"
#include "adapters/looks/Text.h"
#include "adapters/qt/services/Application.h"
#include "adapters/qt/services/QtEventLoop.h"
#include "adapters/x11/Display.h"
#include "apps/three/Story.h"

using namespace orvelle;

namespace {

constexpr const char* Introduction =
    "Three computers, c02, c03 and c04, share the voice duties of one simulator, whose computer is c01. All of it "
    "runs\n"
    "on this machine, each computer with programs, settings and a virtual display of its own. Times count from the\n"
    "start; what comes of a thing is told with how much later it came.\n";

[[noreturn]] void FailBy(const std::string& reason) {
    std::cerr << "orvelle-three: " << reason << std::endl;
    std::exit(EXIT_FAILURE);
}

}  // namespace

int main(int count, char** words) {
    linux::TerminationSignals endings;
    if (count != 2) FailBy("usage: orvelle-three DISPLAY-SCRIPT");
    if (const std::string missing = MissingDisplay(); !missing.empty()) FailBy(missing);
    // It shows no window, and must outlive the display that it runs on, to end what it has started.
    qt::Application application("orvelle-three", "offscreen",
                                [](const std::exception& error) { FailBy(error.what()); });
    // Made anew under a name that nobody can guess, for this user alone.
    const QTemporaryDir work;
    if (!work.isValid()) FailBy("no folder to work in: " + FromQt(work.errorString()));
    qt::QtEventLoop loop;
    Story story(loop, work.path(), QDir("build/pictures"), QFileInfo(words[1]).absoluteFilePath());
    const Ticket stopped = loop.WhenReadable(endings.Descriptor(), [&] {
        if (endings.Take() != 0) story.Stop();
    });
    std::cout << Introduction << std::endl;
    return story.Play() ? EXIT_SUCCESS : EXIT_FAILURE;
}
