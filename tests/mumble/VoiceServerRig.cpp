#include "tests/mumble/VoiceServerRig.h"

#include <gtest/gtest.h>
#include <stdlib.h>

#include <csignal>
#include <sstream>
#include <utility>
#include <vector>

#include "apps/FreePort.h"
#include "tests/linux/WaitUntil.h"

namespace orvelle::mumble {

namespace {

std::filesystem::path NewFolder() {
    std::string pattern = std::filesystem::temp_directory_path() / "orvelle-voice-server-XXXXXX";
    return mkdtemp(pattern.data());
}

void Run(const std::vector<std::string>& commandLine) {
    linux::ChildProcess program(commandLine);
    EXPECT_EQ(program.Wait(), 0) << commandLine.front() << ": " << program.Errors();
}

}  // namespace

VoiceServerRig::VoiceServerRig(VoiceServerSetting wished)
    : setting(std::move(wished)),
      folder(NewFolder()),
      files(folder),
      port(setting.Port != 0 ? setting.Port : FreePort()) {
    TakeAnotherCertificate();
    WriteConfiguration();
    EXPECT_EQ(files.MakeDatabase(SuperUserPassword, setting.Of), "");
    Start();
}

VoiceServerRig::~VoiceServerRig() {
    process.reset();
    std::error_code error;
    std::filesystem::remove_all(folder, error);
}

void VoiceServerRig::WriteConfiguration() {
    std::ostringstream more;
    more << "serverpassword=" << setting.Password << "\nusers=" << setting.Users
         << "\nautobanAttempts=" << setting.BansAfter << "\nmessageburst=" << setting.ChangesAtOnce
         << "\nmessagelimit=1\nsslCert=" << (folder / "certificate").string()
         << "\nsslKey=" << (folder / "key").string() << '\n'
         << setting.More;
    EXPECT_EQ(files.WriteConfiguration(setting.Host, port, more.str()), "");
}

void VoiceServerRig::TakeAnotherCertificate() {
    Run({"openssl", "req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:P-256", "-nodes", "-keyout",
         (folder / "key").string(), "-out", (folder / "certificate").string(), "-subj", "/CN=voice", "-days", "3650"});
}

void VoiceServerRig::TakePassword(const std::string& password) {
    setting.Password = password;
    WriteConfiguration();
}

void VoiceServerRig::Start() {
    EXPECT_EQ(files.GiveToServer(), "");
    process = std::make_unique<linux::ChildProcess>(files.ServerCommand());
    linux::Await({process.get()}, [this] { return IsListenedTo(port); });
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
