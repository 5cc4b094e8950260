#include "tests/mumble/VoiceServerRig.h"

#include <gtest/gtest.h>
#include <pwd.h>
#include <sqlite3.h>
#include <unistd.h>

#include <csignal>
#include <fstream>
#include <utility>
#include <vector>

#include "tests/linux/WaitUntil.h"
#include "tests/mumble/FreePort.h"

namespace orvelle::mumble {

namespace {

constexpr const char* Program = "/usr/sbin/murmurd";
constexpr const char* ServersUser = "mumble-server";  // of its package

std::string FoldersPattern() { return std::filesystem::temp_directory_path() / "orvelle-voice-server-XXXXXX"; }

// A server that is started as root changes to its own user; it is started as that one, since it dies with the test only
// if it stays who it is.
std::vector<std::string> AsItsUser(std::vector<std::string> commandLine) {
    if (geteuid() != 0) return commandLine;
    const std::string user = ServersUser;
    std::vector<std::string> changed{"setpriv", "--reuid=" + user, "--regid=" + user, "--clear-groups",
                                     "--pdeathsig=KILL"};
    changed.insert(changed.end(), commandLine.begin(), commandLine.end());
    return changed;
}

void Run(const std::vector<std::string>& commandLine) {
    linux::ChildProcess program(commandLine);
    EXPECT_EQ(program.Wait(), 0) << commandLine.front() << ": " << program.Errors();
}

void Change(const std::filesystem::path& database, const char* statements) {
    sqlite3* opened = nullptr;
    EXPECT_EQ(sqlite3_open(database.c_str(), &opened), SQLITE_OK);
    EXPECT_EQ(sqlite3_exec(opened, statements, nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(opened);
    sqlite3_close(opened);
}

// Without this the server measures for a second how much work a password can cost.
constexpr const char* LittleWorkForPasswords =
    "create table meta (keystring text primary key, value text);"
    "insert into meta values ('pbkdf2_iterations', '1000');";

// The right to make temporary channels, for all and from the root on.
constexpr const char* EverybodyMakesChannels = "insert into acl values (1, 0, 1, null, 'all', 1, 1, 1024, null);";

}  // namespace

VoiceServerRig::VoiceServerRig(VoiceServerSetting wished)
    : setting(std::move(wished)), port(setting.Port != 0 ? setting.Port : FreePort()) {
    std::string pattern = FoldersPattern();
    folder = mkdtemp(pattern.data());
    TakeAnotherCertificate();
    WriteConfiguration();
    MakeDatabase();
    Start();
}

VoiceServerRig::~VoiceServerRig() {
    process.reset();
    std::error_code error;
    std::filesystem::remove_all(folder, error);
}

void VoiceServerRig::MakeDatabase() {
    const std::filesystem::path database = folder / "database";
    Change(database, LittleWorkForPasswords);
    OwnFiles();
    Run(AsItsUser({Program, "-ini", (folder / "configuration").string(), "-supw", SuperUserPassword}));
    if (setting.Of == VoiceServerSetting::Rights::EverybodyMakesChannels) Change(database, EverybodyMakesChannels);
}

void VoiceServerRig::WriteConfiguration() {
    std::ofstream(folder / "configuration")
        << "database=" << (folder / "database").string() << "\nlogfile=\npidfile=\nhost=" << setting.Host
        << "\nport=" << port << "\nserverpassword=" << setting.Password << "\nusers=" << setting.Users
        << "\nautobanAttempts=" << setting.BansAfter << "\nmessageburst=" << setting.ChangesAtOnce
        << "\nmessagelimit=1\nbonjour=false\nsslCert=" << (folder / "certificate").string()
        << "\nsslKey=" << (folder / "key").string() << '\n'
        << setting.More;
}

void VoiceServerRig::TakeAnotherCertificate() {
    Run({"openssl", "req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:P-256", "-nodes", "-keyout",
         (folder / "key").string(), "-out", (folder / "certificate").string(), "-subj", "/CN=voice", "-days", "3650"});
}

void VoiceServerRig::TakePassword(const std::string& password) {
    setting.Password = password;
    WriteConfiguration();
}

// Also the folder: the server's database needs a file beside it while it is written.
void VoiceServerRig::OwnFiles() const {
    const passwd* const user = geteuid() == 0 ? getpwnam(ServersUser) : nullptr;
    if (!user) return;
    EXPECT_EQ(chown(folder.c_str(), user->pw_uid, user->pw_gid), 0);
    for (const auto& file : std::filesystem::directory_iterator(folder))
        EXPECT_EQ(chown(file.path().c_str(), user->pw_uid, user->pw_gid), 0);
}

void VoiceServerRig::Start() {
    OwnFiles();
    process =
        std::make_unique<linux::ChildProcess>(AsItsUser({Program, "-fg", "-ini", (folder / "configuration").string()}));
    EXPECT_TRUE(linux::WaitUntil([this] { return IsListenedTo(port); })) << Log();
}

void VoiceServerRig::Kill() {
    process->Kill(SIGKILL);
    process->Wait();
    earlierLog += process->Errors();
}

void VoiceServerRig::Freeze() { process->Kill(SIGSTOP); }
void VoiceServerRig::Thaw() { process->Kill(SIGCONT); }

std::string VoiceServerRig::Log() { return earlierLog + process->Errors(); }

int VoiceServerRig::TimesLogged(const std::string& text) {
    const std::string log = Log();
    int times = 0;
    for (std::size_t at = log.find(text); at != log.npos; at = log.find(text, at + 1)) ++times;
    return times;
}

bool VoiceServerRig::HasLogged(const std::string& text, int times) {
    return linux::WaitUntil([&] { return TimesLogged(text) >= times; });
}

}  // namespace orvelle::mumble
