#include "apps/talk/VoiceServer.h"

#include <pwd.h>
#include <sqlite3.h>
#include <unistd.h>

#include <QDir>
#include <QFile>

#include "adapters/looks/Text.h"
#include "apps/three/ChildPrograms.h"

namespace orvelle {

namespace {

const QString Program = "/usr/sbin/murmurd";
const char* const ServersUser = "mumble-server";  // of its package
constexpr int MakingMilliseconds = 30'000;

// Without this the server measures for a second how much work a password can cost.
constexpr const char* LittleWorkForPasswords =
    "create table meta (keystring text primary key, value text);"
    "insert into meta values ('pbkdf2_iterations', '1000');";
// The right to make temporary channels, for all and from the root on.
constexpr const char* EverybodyMakesChannels = "insert into acl values (1, 0, 1, null, 'all', 1, 1, 1024, null);";

bool IsChanged(const QString& database, const char* statements) {
    sqlite3* opened = nullptr;
    const bool isChanged = sqlite3_open(FromQt(database).c_str(), &opened) == SQLITE_OK &&
                           sqlite3_exec(opened, statements, nullptr, nullptr, nullptr) == SQLITE_OK;
    sqlite3_close(opened);
    return isChanged;
}

// Started by root it would change its user by itself, and not end with this program any more.
QStringList AsItsUser(QStringList words) {
    if (geteuid() != 0) return words;
    const QString user = ServersUser;
    return QStringList{"setpriv", "--reuid=" + user, "--regid=" + user, "--clear-groups", "--pdeathsig=TERM"} + words;
}

void StartWith(QProcess& process, QStringList words) {
    words = AsItsUser(std::move(words));
    const QString file = words.takeFirst();
    process.setProcessChannelMode(QProcess::MergedChannels);
    StartChild(process, file, words);
}

}  // namespace

VoiceServer::VoiceServer(int atPort) : port(atPort) {}

VoiceServer::~VoiceServer() { EndChild(program); }

std::string VoiceServer::Start() {
    if (!folder.isValid()) return "no folder for the voice server: " + FromQt(folder.errorString());
    if (!QFile::exists(Program)) return "the package mumble-server is missing";
    QFile configuration(folder.filePath("configuration"));
    if (!configuration.open(QFile::WriteOnly)) return "the voice server's configuration can't be written";
    configuration.write(("database=" + folder.filePath("database") + "\nlogfile=\npidfile=\nhost=127.0.0.1\nport=" +
                         QString::number(port) + "\nautobanAttempts=0\nbonjour=false\n")
                            .toUtf8());
    configuration.close();
    if (const std::string problem = MakeDatabase(); !problem.empty()) return problem;
    StartWith(program, {Program, "-fg", "-ini", folder.filePath("configuration")});
    return "";
}

std::string VoiceServer::MakeDatabase() {
    const QString database = folder.filePath("database");
    if (!IsChanged(database, LittleWorkForPasswords) || !BelongToItsUser())
        return "the voice server's database can't be made";
    QProcess making;
    StartWith(making, {Program, "-ini", folder.filePath("configuration"), "-supw", "nobody-comes-as-this"});
    if (!making.waitForFinished(MakingMilliseconds) || making.exitCode() != 0)
        return "the voice server made no database: " + making.readAll().toStdString();
    return IsChanged(database, EverybodyMakesChannels) && BelongToItsUser() ? ""
                                                                            : "the voice server's rights can't be set";
}

bool VoiceServer::BelongToItsUser() const {
    if (geteuid() != 0) return true;
    const passwd* const user = getpwnam(ServersUser);
    if (!user || chown(FromQt(folder.path()).c_str(), user->pw_uid, user->pw_gid) != 0) return false;
    for (const QString& file : QDir(folder.path()).entryList(QDir::Files))
        if (chown(FromQt(folder.filePath(file)).c_str(), user->pw_uid, user->pw_gid) != 0) return false;
    return true;
}

bool VoiceServer::Serves() { return Says("Server listening on"); }

// Who makes a channel is in it.
bool VoiceServer::HasInChannel(const std::string& callsign) {
    Says("");
    for (const QByteArray& line : said.split('\n'))
        if (line.contains((":" + callsign).c_str()) && (line.contains("> Moved ") || line.contains("> Added channel ")))
            return true;
    return false;
}

bool VoiceServer::Says(const std::string& words) {
    if (program.isOpen()) said += program.readAll();
    return said.contains(words.c_str());
}

}  // namespace orvelle
