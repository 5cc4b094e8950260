#include "tests/heard/Trial.h"

#include <poll.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <stdexcept>

#include "tests/heard/SoundOfComputers.h"
#include "tests/linux/WaitUntil.h"

namespace orvelle::heard {

namespace {

std::filesystem::path NewFolder() {
    std::string pattern = std::filesystem::temp_directory_path() / "orvelle-trial-XXXXXX";
    return mkdtemp(pattern.data());
}

}  // namespace

TrialFiles OwnTrialFiles() { return {VOICE_TRIAL, VOICE_MODULE}; }

// Where that build keeps what this one keeps there.
TrialFiles TrialFilesIn(const std::filesystem::path& build) {
    const auto there = [&](const std::filesystem::path& own) { return build / own.lexically_relative(OWN_BUILD); };
    return {there(VOICE_TRIAL), there(VOICE_MODULE)};
}

Trial::Trial(int ofComputer, const TrialFiles& files)
    : computer(ofComputer),
      folder(NewFolder()),
      process({files.Program.string(), files.Module.string(), folder.string(), SoundOfComputers::Microphone(computer),
               SoundOfComputers::Output(computer, 0), SoundOfComputers::Output(computer, 1)}) {
    for (const char* const each : {"signal 0 0", "signal 1 0", "squelch 0 0", "start"}) Say(each);
    if (!Await("started")) throw std::runtime_error("no voice engine: " + Told() + process.HowItEnded());
}

Trial::~Trial() {
    process.Kill(SIGKILL);
    process.Wait();
    std::error_code error;
    std::filesystem::remove_all(folder, error);
}

bool Trial::Await(const std::string& beginning) { return !Line(beginning).empty(); }

std::string Trial::Line(const std::string& beginning) {
    std::string found;
    linux::WaitUntil([&] {
        Read();
        for (; next < lines.size() && found.empty(); ++next)
            if (lines[next].starts_with(beginning)) found = lines[next];
        return !found.empty() || !process.HowItEnded().empty();
    });
    return found;
}

bool Trial::Join(int room, const std::string& address) {
    const std::string number = std::to_string(room);
    Say("join " + number + " PILOT" + std::to_string(computer) + " " + address);
    if (!Await("joined " + number)) return false;
    Say("route " + number + " 0 1");
    return true;
}

std::string Trial::Told() const {
    std::string text;
    for (const std::string& each : lines) text += each + "\n";
    return text;
}

void Trial::Read() {
    pollfd ready{process.Output(), POLLIN, 0};
    char piece[4096];
    while (poll(&ready, 1, 0) > 0) {
        const ssize_t got = read(process.Output(), piece, sizeof piece);
        if (got <= 0) break;
        unread.append(piece, static_cast<std::size_t>(got));
    }
    for (std::size_t end = unread.find('\n'); end != std::string::npos; end = unread.find('\n')) {
        lines.push_back(unread.substr(0, end));
        unread.erase(0, end + 1);
    }
}

}  // namespace orvelle::heard
