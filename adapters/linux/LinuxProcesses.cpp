#include "adapters/linux/LinuxProcesses.h"

#include <sys/epoll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <system_error>

#include "adapters/linux/CommandLine.h"
#include "adapters/linux/OwnFile.h"
#include "adapters/linux/SearchPath.h"

namespace orvelle::linux {

namespace {

bool Exists(const std::string& path) { return access(path.c_str(), F_OK) == 0; }

bool IsFile(const std::string& path) {
    struct stat status;
    return stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

struct Command {
    std::string File;   // "" if there is none
    std::size_t Words;  // of the line that it takes up
};

Command FindProgram(const std::string& line, const std::vector<CommandWord>& words) {
    const std::string& first = words.front().Text;
    if (first.find('/') == std::string::npos) return {SearchPath(first), 1};
    if (Exists(first) || words.front().IsQuoted) return {first, 1};

    const std::size_t start = line.find_first_not_of(" \t");
    for (std::size_t count = 2; count <= words.size() && !words[count - 1].IsQuoted; ++count) {
        const std::string head = line.substr(start, words[count - 1].End - start);
        if (IsFile(head)) return {head, count};
    }
    return {first, 1};
}

Long ResultOf(int error) {
    switch (error) {
        case 0:
            return LinuxProcesses::Started;
        case ENOENT:
        case ENOTDIR:
        case ENAMETOOLONG:
        case ELOOP:
            return LinuxProcesses::NoSuchFile;
        case E2BIG:
        case ENOMEM:
        case EAGAIN:
            return LinuxProcesses::TooLong;
        case ENOEXEC:
            return LinuxProcesses::NoProgram;
        default:
            return LinuxProcesses::NotPermitted;
    }
}

// Whose line begins with what follows the path; "" if the path is there.
std::string ProgramWithoutPath(const std::string& line) {
    const std::size_t start = line.find_first_not_of(' ');
    if (start == std::string::npos) return "TeamSpeak";
    const std::string_view rest = std::string_view(line).substr(start);
    return start > 0 && (rest.starts_with("/join1 ") || rest.starts_with("/leave ")) ? "RogerWilco" : "";
}

std::string Sentence(const std::string& line, const std::string& program, int error) {
    if (error == 0) return "Started " + line;
    if (const std::string name = ProgramWithoutPath(line); !name.empty())
        return name + " was not started: the path to its program is empty; set it on the page " + name + ".";
    if (program.empty()) return "No program was started, because the command line names none.";
    if (ResultOf(error) == LinuxProcesses::NoSuchFile)
        return "No program was started, because there is no file " + program + ".";
    return "The program " + program + " could not be started: " + std::generic_category().message(error) + ".";
}

}  // namespace

LinuxProcesses::LinuxProcesses(std::string display)
    : readiness(epoll_create1(EPOLL_CLOEXEC)), minimised(std::move(display)) {
    for (const int descriptor : {programs.Descriptor(), minimised.Descriptor()}) {
        epoll_event interest{};
        interest.events = EPOLLIN;
        epoll_ctl(readiness.Number(), EPOLL_CTL_ADD, descriptor, &interest);
    }
}

void LinuxProcesses::Serve() {
    programs.Bury();
    minimised.Serve();
}

int LinuxProcesses::Start(const std::string& file, const std::vector<std::string>& arguments, Long show) {
    if (show != ShowMinimisedInactive) return programs.Start(file, arguments, "").Error;
    const StartedPrograms::Result result = programs.Start(file, arguments, minimised.Prepare());
    if (result.Error == 0)
        minimised.Watch(result.Session);
    else
        minimised.Cancel();
    return result.Error;
}

Long LinuxProcesses::WinExec(const std::string& commandLine, Long show) {
    // The system's texts end at a zero, and so does the line.
    const std::string line = commandLine.substr(0, commandLine.find('\0'));
    const std::vector<CommandWord> words = SplitCommandLine(line);
    const Command command = words.empty() ? Command{"", 0} : FindProgram(line, words);
    int error = ENOENT;
    if (!command.File.empty()) {
        std::vector<std::string> arguments;
        for (std::size_t word = command.Words; word < words.size(); ++word) arguments.push_back(words[word].Text);
        error = Start(command.File, arguments, show);
    }
    Told(Sentence(line, words.empty() ? "" : words.front().Text, error));
    return ResultOf(error);
}

std::string LinuxProcesses::GetModuleFileNameA() { return OwnFile(); }

std::string LinuxProcesses::GetCurrentDirectoryA(Long size) {
    std::error_code error;
    const std::string path = std::filesystem::current_path(error).string();
    return error || size <= 0 || path.size() >= static_cast<std::size_t>(size) ? "" : path;
}

void LinuxProcesses::SetCurrentDirectoryA(const std::string& path) {
    std::error_code error;
    std::filesystem::current_path(path, error);
}

}  // namespace orvelle::linux
