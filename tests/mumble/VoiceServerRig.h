// A voice server of the test's own on loopback: a real one, on a port that is free, with its files in a folder that
// goes with it and under a user of its own where the test is root. Rooms can be made by everybody, nobody is banned,
// unless the setting says otherwise. It dies with the test.
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>

#include "adapters/shared/HostAndPort.h"
#include "apps/talk/VoiceServerFiles.h"
#include "tests/linux/ChildProcess.h"

namespace orvelle::mumble {

struct VoiceServerSetting {
    using Rights = VoiceServerFiles::Rights;

    std::string Host = "127.0.0.1";  // where it listens
    std::uint16_t Port = 0;          // 0: one that is free
    std::string Password{};          // "" for none
    Rights Of = Rights::EverybodyMakesChannels;
    int Users = 100;         // connections at the most
    int BansAfter = 0;       // connections within two minutes; 0: never
    int ChangesAtOnce = 40;  // of channels and the like; 5 as delivered
    std::string More{};      // lines of the server's configuration, each ended by a line feed
};

class VoiceServerRig {
public:
    // Returns when the server can be connected to.
    explicit VoiceServerRig(VoiceServerSetting setting = {});
    VoiceServerRig(const VoiceServerRig&) = delete;
    VoiceServerRig& operator=(const VoiceServerRig&) = delete;
    ~VoiceServerRig();

    // What a record says of it.
    std::string Host() const { return setting.Host; }
    std::uint16_t Port() const { return port; }
    std::string Address() const { return WriteHostAndPort({Host(), port}, 0); }
    std::string Room(const std::string& channel) const { return Address() + "/" + channel; }

    pid_t Id() const { return process->Id(); }
    // Who may do everything, as "SuperUser".
    static constexpr const char* SuperUserPassword = "over-all";

    void Kill();   // and waits for its end; nothing answers at the port then
    void Start();  // again; returns when it can be connected to
    void Freeze();
    void Thaw();
    // Between Kill and Start.
    void TakeAnotherCertificate();
    void TakePassword(const std::string& password);

    // All that it wrote, over its restarts.
    std::string Log();
    int TimesLogged(const std::string& text);
    // Waits until the log has it so often; false where that takes very long.
    bool HasLogged(const std::string& text, int times = 1);

private:
    void WriteConfiguration();

    VoiceServerSetting setting;
    std::filesystem::path folder;
    VoiceServerFiles files;
    std::uint16_t port = 0;
    std::string earlierLog;
    std::unique_ptr<linux::ChildProcess> process;
};

}  // namespace orvelle::mumble
