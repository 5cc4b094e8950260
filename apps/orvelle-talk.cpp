// What ./run voice does: two pilots, each with a panel on a virtual display, over a voice server and a sound server of
// their own, of whom one says a sentence to the other; told in the terminal while it happens. Given the script by which
// the displays are had: tests/with-display. Exit status 0 if the sentence was heard; else 1 and one sentence.
#include <QTemporaryDir>
#include <cstdlib>
#include <iostream>

#include "adapters/linux/TerminationSignals.h"
#include "adapters/looks/Text.h"
#include "adapters/qt/services/Application.h"
#include "adapters/qt/services/QtEventLoop.h"
#include "apps/talk/TalkStory.h"

using namespace orvelle;

namespace {

constexpr const char* Introduction =
    "Two pilots on one frequency. All of it runs on this machine: a voice server, a sound server without the\n"
    "computer's devices, and for each pilot a virtual display with orvelle-sim and a panel. Times count from the "
    "start;\n"
    "what comes of a thing is told with how much later it came.\n";

[[noreturn]] void FailBy(const std::string& reason) {
    std::cerr << "orvelle-talk: " << reason << std::endl;
    std::exit(EXIT_FAILURE);
}

}  // namespace

int main(int count, char** words) {
    linux::TerminationSignals endings;
    if (count != 2) FailBy("usage: orvelle-talk DISPLAY-SCRIPT");
    qt::Application application("orvelle-talk", "offscreen", [](const std::exception& error) { FailBy(error.what()); });
    const QTemporaryDir work;
    if (!work.isValid()) FailBy("no folder to work in: " + FromQt(work.errorString()));
    qt::QtEventLoop loop;
    std::string problem;
    {
        TalkStory story(loop, work.path(), QDir("build/voice"), QFileInfo(words[1]).absoluteFilePath());
        const Ticket stopped = loop.WhenReadable(endings.Descriptor(), [&] {
            if (endings.Take() != 0) story.Stop();
        });
        std::cout << Introduction << std::endl;
        problem = story.Play();
    }
    if (!problem.empty()) std::cerr << "orvelle-talk: " << problem << std::endl;
    return problem.empty() ? EXIT_SUCCESS : EXIT_FAILURE;
}
