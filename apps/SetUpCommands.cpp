#include "apps/SetUpCommands.h"

#include <cstdlib>
#include <map>
#include <ostream>

#include "adapters/linux/PollEventLoop.h"
#include "adapters/mqtt/Topics.h"
#include "apps/OneLine.h"
#include "apps/SetUpDesk.h"

namespace orvelle {

namespace {

constexpr const char* Help =
    "usage: orvelle-setup [COMMAND] [--data FOLDER]\n"
    "Lets this computer join a set-up of several computers, or leave it; without a command in a window.\n"
    "\n"
    "  --join CODE [--host HOST[:PORT]]  join by the code that orvelle-sim gave for this computer; without\n"
    "                                    a host the one set-up that is found on the network\n"
    "  --leave                           leave the set-up\n"
    "  --show                            tell which set-up this computer is in; the status is 1 if in none\n"
    "  --data FOLDER                     keep setup.json in another folder\n"
    "  --help, --version\n"
    "\n"
    "A set-up that is full, with 99 computers, gives no code: orvelle-sim says so where one is asked for. Each code\n"
    "has its place, until the computer is removed there.\n";

int TellShown(const SetUpDesk& desk, std::ostream& output, std::ostream& errors) {
    if (const auto joined = desk.Joined()) {
        output << "This computer is " << mqtt::WriteIdentity(joined->Number) << " of the set-up "
               << OneLine(joined->Name) << ", whose broker is " << joined->Place << ".\n";
        return EXIT_SUCCESS;
    }
    errors << (desk.Sentence().empty() ? "This computer is in no set-up." : desk.Sentence()) << "\n";
    return EXIT_FAILURE;
}

}  // namespace

std::optional<SetUpCommand> ReadSetUpCommand(const std::vector<std::string>& arguments) {
    using enum SetUpCommand::Kind;
    const std::map<std::string, SetUpCommand::Kind> kinds{
        {"--join", Join}, {"--leave", Leave}, {"--show", Show}, {"--help", Help}, {"--version", Version}};
    SetUpCommand command;
    for (std::size_t place = 0; place < arguments.size(); ++place) {
        const std::string& argument = arguments[place];
        const auto value = [&]() -> std::optional<std::string> {
            return ++place < arguments.size() ? std::optional(arguments[place]) : std::nullopt;
        };
        if (const auto kind = kinds.find(argument); kind != kinds.end()) {
            if (command.Wanted != Window) return std::nullopt;
            command.Wanted = kind->second;
            if (command.Wanted != Join) continue;
            const auto code = value();
            if (!code) return std::nullopt;
            command.Code = *code;
        } else if (argument == "--host" || argument == "--data") {
            const auto given = value();
            if (!given || given->empty()) return std::nullopt;
            if (argument == "--host")
                command.Place = *given;
            else
                command.DataFolder = *given;
        } else {
            return std::nullopt;
        }
    }
    if (!command.Place.empty() && command.Wanted != Join) return std::nullopt;
    return command;
}

int RunSetUpCommand(const SetUpCommand& command, std::ostream& output, std::ostream& errors) {
    using enum SetUpCommand::Kind;
    if (command.Wanted == SetUpCommand::Kind::Help) {
        output << orvelle::Help;
        return EXIT_SUCCESS;
    }
    if (command.Wanted == Version) {
        output << "orvelle-setup " << ORVELLE_VERSION << "\n";
        return EXIT_SUCCESS;
    }
    linux::PollEventLoop loop;
    SetUpDesk desk(loop, command.DataFolder);
    if (command.Wanted == Show) return TellShown(desk, output, errors);
    const Ticket watch = desk.Observe([&] {
        if (desk.State() == JoinState::Succeeded || desk.State() == JoinState::Failed) loop.Stop();
    });
    if (command.Wanted == Join)
        desk.Join(command.Code, command.Place);
    else
        desk.Leave();
    loop.Run();
    const bool isWell = desk.State() == JoinState::Succeeded;
    (isWell ? output : errors) << OneLine(desk.Sentence()) << "\n";
    return isWell ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace orvelle
