#include "apps/talk/VoiceServerFiles.h"

#include <fcntl.h>
#include <pwd.h>
#include <spawn.h>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <fstream>
#include <sstream>

namespace orvelle {

namespace {

constexpr const char* Program = "/usr/sbin/murmurd";
constexpr const char* ServersUser = "mumble-server";  // of its package
constexpr const char* MakingSeconds = "30";

// Without this the server measures for a second how much work a password can cost.
constexpr const char* LittleWorkForPasswords =
    "create table meta (keystring text primary key, value text);"
    "insert into meta values ('pbkdf2_iterations', '1000');";
// The right to make temporary channels, for all and from the root on.
constexpr const char* EverybodyMakesChannels = "insert into acl values (1, 0, 1, null, 'all', 1, 1, 1024, null);";

std::string Change(const std::filesystem::path& database, const char* statements) {
    sqlite3* opened = nullptr;
    std::string problem;
    if (sqlite3_open(database.c_str(), &opened) != SQLITE_OK ||
        sqlite3_exec(opened, statements, nullptr, nullptr, nullptr) != SQLITE_OK)
        problem = std::string("the voice server's database can't be changed: ") + sqlite3_errmsg(opened);
    sqlite3_close(opened);
    return problem;
}

// A server that is started as root changes to its own user; it is started as that one, since it dies with its starter
// only if it stays who it is.
std::vector<std::string> AsItsUser(std::vector<std::string> commandLine) {
    if (geteuid() != 0) return commandLine;
    const std::string user = ServersUser;
    std::vector<std::string> changed{"setpriv", "--reuid=" + user, "--regid=" + user, "--clear-groups",
                                     "--pdeathsig=KILL"};
    changed.insert(changed.end(), commandLine.begin(), commandLine.end());
    return changed;
}

// Waits for its end; all that it says goes into the file.
bool HasRun(std::vector<std::string> commandLine, const std::filesystem::path& said) {
    commandLine.insert(commandLine.begin(), {"timeout", MakingSeconds});
    std::vector<char*> words;
    for (std::string& word : commandLine) words.push_back(word.data());
    words.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, said.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    posix_spawn_file_actions_adddup2(&actions, STDOUT_FILENO, STDERR_FILENO);
    pid_t process = -1;
    int status = -1;
    if (posix_spawnp(&process, words.front(), &actions, nullptr, words.data(), environ) == 0)
        while (waitpid(process, &status, 0) < 0 && errno == EINTR) {
        }
    posix_spawn_file_actions_destroy(&actions);
    return status == 0;
}

std::string TextOf(const std::filesystem::path& file) {
    std::ostringstream text;
    text << std::ifstream(file).rdbuf();
    return text.str();
}

}  // namespace

std::string VoiceServerFiles::WriteConfiguration(const std::string& host, std::uint16_t port,
                                                 const std::string& more) const {
    std::ofstream file(Configuration());
    file << "database=" << Database().string() << "\nlogfile=\npidfile=\nhost=" << host << "\nport=" << port
         << "\nbonjour=false\n"
         << more;
    return file.flush() ? "" : "the voice server's configuration can't be written";
}

std::string VoiceServerFiles::MakeDatabase(const std::string& superUserPassword, Rights rights) const {
    if (access(Program, X_OK) != 0) return "the package mumble-server is missing";
    if (std::string problem = Change(Database(), LittleWorkForPasswords); !problem.empty()) return problem;
    if (std::string problem = GiveToServer(); !problem.empty()) return problem;
    const std::filesystem::path said = folder / "making";
    if (!HasRun(AsItsUser({Program, "-ini", Configuration().string(), "-supw", superUserPassword}), said))
        return "the voice server made no database: " + TextOf(said);
    return rights == Rights::EverybodyMakesChannels ? Change(Database(), EverybodyMakesChannels) : "";
}

// Also the folder: the server's database needs a file beside it while it is written.
std::string VoiceServerFiles::GiveToServer() const {
    if (geteuid() != 0) return "";
    const passwd* const user = getpwnam(ServersUser);
    bool isGiven = user && chown(folder.c_str(), user->pw_uid, user->pw_gid) == 0;
    for (const auto& file : std::filesystem::directory_iterator(folder))
        isGiven = isGiven && chown(file.path().c_str(), user->pw_uid, user->pw_gid) == 0;
    return isGiven ? "" : "the voice server's files can't be given to its user";
}

std::vector<std::string> VoiceServerFiles::ServerCommand() const {
    return AsItsUser({Program, "-fg", "-ini", Configuration().string()});
}

}  // namespace orvelle
