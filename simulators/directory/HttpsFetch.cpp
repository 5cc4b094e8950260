#include "simulators/directory/HttpsFetch.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <sstream>
#include <utility>
#include <vector>

#include "adapters/shared/ChildProgram.h"
#include "simulators/directory/DirectoryReading.h"
#include "simulators/directory/KeptFile.h"

namespace orvelle::directory {

namespace {

std::vector<std::string> CommandLine(const std::string& curl) {
    // The address comes by the standard input, as others may see a command line. --disable has to be the first one.
    return {curl,
            "--disable",
            "--config",
            "-",
            "--silent",
            "--fail",
            "--globoff",
            "--compressed",
            "--proto",
            "=https",
            "--location",
            "--proto-redir",
            "=https",
            "--max-redirs",
            "5",
            "--connect-timeout",
            "20",
            "--max-time",
            "60",
            "--max-filesize",
            std::to_string(LongestDirectory),
            "--write-out",
            "%{http_code} %{errormsg}"};
}

// Its values are quoted as JSON's are, as far as names of files and addresses go.
std::string Settings(const FetchRequest& request) {
    std::string lines;
    const auto add = [&lines](const char* name, const std::string& value) {
        lines += name + (" = " + JsonText(value)) + '\n';
    };
    add("url", request.Address);
    add("output", request.File.string());
    add("etag-save", request.Tag.string());
    if (!request.FormerTag.empty()) add("etag-compare", request.FormerTag.string());
    return lines;
}

// By the child: a server that doesn't tell its length writes no more than this.
void BoundFiles() {
    const rlimit most{LongestDirectory, LongestDirectory};
    setrlimit(RLIMIT_FSIZE, &most);
    signal(SIGXFSZ, SIG_DFL);
    umask(S_IRWXG | S_IRWXO);
}

std::string ReadAll(const FileDescriptor& from) {
    std::string text;
    std::array<char, 4096> part{};
    for (ssize_t count = 0; (count = read(from.Number(), part.data(), part.size())) > 0;)
        text.append(part.data(), static_cast<std::size_t>(count));
    return text;
}

}  // namespace

void HttpsFetch::Start(const FetchRequest& request) {
    std::vector<std::string> words = CommandLine(FindProgram("curl"));
    std::vector<char*> arguments;
    for (std::string& word : words) arguments.push_back(word.data());
    arguments.push_back(nullptr);
    const std::string settings = Settings(request);
    // A pipe takes them whole, so nobody waits for the child to read them.
    std::array<int, 2> input{-1, -1};
    std::array<int, 2> told{-1, -1};
    const bool hasPipes = pipe2(input.data(), O_CLOEXEC) == 0 && pipe2(told.data(), O_CLOEXEC | O_NONBLOCK) == 0;
    const FileDescriptor theirInput(input[0]);
    const FileDescriptor ourInput(input[1]);
    output = FileDescriptor(told[0]);
    const FileDescriptor theirOutput(told[1]);
    const pid_t parent = getpid();
    if (hasPipes && fcntl(ourInput.Number(), F_SETFL, O_NONBLOCK) == 0) {
        [[maybe_unused]] const auto written = write(ourInput.Number(), settings.data(), settings.size());
        process = fork();
    }
    if (process == 0) {
        BoundFiles();
        BecomeProgram(arguments.data(), {.Input = theirInput.Number(), .Output = theirOutput.Number()}, parent);
    }
    end = FileDescriptor(process < 0 ? -1 : static_cast<int>(syscall(SYS_pidfd_open, process, 0)));
    ended = end ? loop.WhenReadable(end.Number(), [this] { Tell(); }) : loop.After(0, [this] { Tell(); });
}

void HttpsFetch::Stop() {
    ended.End();
    if (process <= 0) return;
    kill(process, SIGKILL);
    waitpid(std::exchange(process, -1), nullptr, 0);
}

void HttpsFetch::Tell() {
    ended.End();
    FetchEnd how{.Exit = -1, .Message = "this computer can't start another program now"};
    if (process > 0) {
        int status = 0;
        if (!end) kill(process, SIGKILL);
        waitpid(std::exchange(process, -1), &status, 0);
        how.Signal = WIFSIGNALED(status) ? WTERMSIG(status) : 0;
        how.Exit = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        std::istringstream words(ReadAll(output));
        words >> how.Answer >> std::ws;
        std::getline(words, how.Message);
    }
    Ended(how);
}

}  // namespace orvelle::directory
