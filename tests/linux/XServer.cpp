#include "tests/linux/XServer.h"

#include <csignal>
#include <stdexcept>

namespace orvelle::linux {

namespace {

std::vector<std::string> CommandLine(const std::vector<std::string>& furtherArguments) {
    // The display number comes on the server's standard output.
    std::vector<std::string> words{"Xvfb",       "-displayfd", "1",   "-screen", "0",
                                   "800x600x24", "-nolisten",  "tcp", "-noreset"};
    words.insert(words.end(), furtherArguments.begin(), furtherArguments.end());
    return words;
}

}  // namespace

XServer::XServer(const std::vector<std::string>& furtherArguments)
    : process(CommandLine(furtherArguments)), display(":" + process.ReadLine()) {
    if (display == ":") throw std::runtime_error("no X server: " + process.Errors());
}

void XServer::End() {
    process.Kill(SIGKILL);
    process.Wait();
}

void XServer::SetLayout(const std::string& layouts) {
    ChildProcess({"setxkbmap", "-display", display, "-layout", layouts}).Wait();
}

}  // namespace orvelle::linux
