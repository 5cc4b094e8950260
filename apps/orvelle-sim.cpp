// The program on the simulator's computer: it tells the panels of the set-up which keys and buttons are held there, the
// session and the radios, and brings the broker over which they hear of it.
#include <getopt.h>

#include <array>
#include <charconv>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>

#include "adapters/linux/InstanceLock.h"
#include "adapters/linux/PollEventLoop.h"
#include "adapters/linux/TerminationSignals.h"
#include "apps/SimulatorCommands.h"
#include "apps/SimulatorProgram.h"

namespace {

using namespace orvelle;

constexpr const char* Help =
    "orvelle-sim [OPTION...]\n"
    "Tells the panels of a set-up what is held on the simulator's computer, and brings their broker.\n"
    "\n"
    "  --no-window      serves without a window\n"
    "  --add            makes a key for the next free computer and prints the code to type there\n"
    "  --list           prints the computers of the set-up\n"
    "  --remove cNN     takes a computer out of the set-up and cuts it off\n"
    "  --data FOLDER    keeps everything below this folder\n"
    "  --port NUMBER    where a new broker listens, 8883 unless told\n"
    "  --help, --version\n";

struct Options {
    enum class Command { Serve, Add, List, Remove, Help, Version } Wanted = Command::Serve;
    std::string Computer;
    std::string Data;
    int Port = mqtt::UsualPort;
};

std::optional<int> ReadPort(std::string_view text) {
    int port = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), port);
    const bool isPort = error == std::errc() && end == text.data() + text.size() && port >= 1 && port <= 65535;
    return isPort ? std::optional(port) : std::nullopt;
}

// Nothing for a command line that is wrong, which has been told.
std::optional<Options> ReadOptions(int count, char** arguments) {
    const std::array<option, 9> known{{{"no-window", no_argument, nullptr, 'n'},
                                       {"add", no_argument, nullptr, 'a'},
                                       {"list", no_argument, nullptr, 'l'},
                                       {"remove", required_argument, nullptr, 'r'},
                                       {"data", required_argument, nullptr, 'd'},
                                       {"port", required_argument, nullptr, 'p'},
                                       {"help", no_argument, nullptr, 'h'},
                                       {"version", no_argument, nullptr, 'v'},
                                       {nullptr, 0, nullptr, 0}}};
    Options options;
    for (int sign = 0; (sign = getopt_long(count, arguments, "", known.data(), nullptr)) != -1;) {
        switch (sign) {
            case 'n':
                break;
            case 'a':
                options.Wanted = Options::Command::Add;
                break;
            case 'l':
                options.Wanted = Options::Command::List;
                break;
            case 'r':
                options.Wanted = Options::Command::Remove;
                options.Computer = optarg;
                break;
            case 'd':
                options.Data = optarg;
                break;
            case 'p':
                if (const auto port = ReadPort(optarg)) {
                    options.Port = *port;
                    break;
                }
                std::cerr << "orvelle-sim: \"" << optarg << "\" is no port, which is a number from 1 to 65535.\n";
                return std::nullopt;
            case 'h':
                options.Wanted = Options::Command::Help;
                break;
            case 'v':
                options.Wanted = Options::Command::Version;
                break;
            default:
                return std::nullopt;
        }
    }
    if (optind < count) {
        std::cerr << "orvelle-sim: \"" << arguments[optind] << "\" is no option; --help names them.\n";
        return std::nullopt;
    }
    return options;
}

// By the desktop's convention, where the panel keeps its settings as well.
std::filesystem::path DataFolder(const Options& options) {
    if (!options.Data.empty()) return std::filesystem::absolute(options.Data);
    const char* const data = std::getenv("XDG_DATA_HOME");
    if (data != nullptr && *data == '/') return std::filesystem::path(data) / "OrvelleCP";
    const char* const home = std::getenv("HOME");
    return std::filesystem::path(home != nullptr ? home : "/") / ".local/share/OrvelleCP";
}

int Answer(const CommandAnswer& answer) {
    if (answer.Status == EXIT_SUCCESS)
        std::cout << answer.Text << "\n";
    else
        std::cerr << "orvelle-sim: " << answer.Text << "\n";
    return answer.Status;
}

int Serve(const std::filesystem::path& folder, int port) {
    linux::TerminationSignals endings;
    std::error_code ignored;
    std::filesystem::create_directories(folder, ignored);
    linux::InstanceLock lock(folder.string(), "orvelle-sim");
    if (!lock.Take()) {
        std::cerr << "orvelle-sim: it runs already for " << folder.string() << ".\n";
        return EXIT_FAILURE;
    }
    linux::PollEventLoop loop;
    SimulatorProgram program(loop, folder, port);
    program.Told = [](const std::string& sentence) { std::cerr << "orvelle-sim: " << sentence << std::endl; };
    const Ticket end = loop.WhenReadable(endings.Descriptor(), [&] {
        if (endings.Take() != 0) loop.Stop();
    });
    program.Open();
    loop.Run();
    return EXIT_SUCCESS;
}

}  // namespace

int main(int count, char** arguments) {
    const auto options = ReadOptions(count, arguments);
    if (!options) return EXIT_FAILURE;
    const std::filesystem::path folder = DataFolder(*options);
    const mqtt::OwnSetUp setUp(folder);
    switch (options->Wanted) {
        case Options::Command::Add:
            return Answer(AddComputer(setUp, "Home", options->Port));
        case Options::Command::List:
            return Answer(ListComputers(setUp));
        case Options::Command::Remove:
            return Answer(RemoveComputer(setUp, options->Computer));
        case Options::Command::Help:
            std::cout << Help;
            return EXIT_SUCCESS;
        case Options::Command::Version:
            std::cout << "orvelle-sim " ORVELLE_VERSION "\n";
            return EXIT_SUCCESS;
        case Options::Command::Serve:
            break;
    }
    return Serve(folder, options->Port);
}
