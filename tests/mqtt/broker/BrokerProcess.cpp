#include "tests/mqtt/broker/BrokerProcess.h"

#include <csignal>
#include <fstream>

#include "adapters/mqtt/Topics.h"
#include "apps/FreePort.h"

namespace orvelle::mqtt {

namespace {

constexpr int Computers = 10;

Key KeyOf(int identity) {
    Key key{};
    key.fill(static_cast<unsigned char>(16 + identity));
    return key;
}

}  // namespace

BrokerProcess::BrokerProcess() : port(FreePort()) {
    std::string pattern = std::filesystem::temp_directory_path() / "orvelle-broker-XXXXXX";
    folder = mkdtemp(pattern.data());
    std::ofstream(folder / "access") << "pattern write orvelle/1/%u/#\npattern read orvelle/1/#\n";
    std::ofstream keys(folder / "keys");
    for (int identity = 1; identity <= Computers; ++identity)
        keys << WriteIdentity(identity) << ':' << WriteKey(KeyOf(identity)) << '\n';
    std::ofstream(folder / "configuration")
        << "listener " << port << " 127.0.0.1\nallow_anonymous false\nuse_identity_as_username true\npsk_hint orvelle\n"
        << "psk_file " << (folder / "keys").string() << "\nacl_file " << (folder / "access").string()
        << "\nset_tcp_nodelay true\npersistence false\nuser root\n";
    keys.close();
    Start();
}

BrokerProcess::~BrokerProcess() {
    process.reset();
    std::filesystem::remove_all(folder);
}

void BrokerProcess::Start() {
    process = std::make_unique<linux::ChildProcess>(
        std::vector<std::string>{"/usr/sbin/mosquitto", "-c", (folder / "configuration").string()});
    linux::Await({process.get()}, [this] { return IsListenedTo(port); });
}

void BrokerProcess::Kill(int signal) {
    process->Kill(signal);
    process->Wait();
}

void BrokerProcess::Signal(int signal) { process->Kill(signal); }

SetUpSetting BrokerProcess::SetUpOf(int identity) const {
    return {"Test", "127.0.0.1", port, identity, KeyOf(identity)};
}

std::vector<std::string> BrokerProcess::ClientOptions(int identity) const {
    return {"-h",
            "127.0.0.1",
            "-p",
            std::to_string(port),
            "-V",
            "5",
            "--psk-identity",
            WriteIdentity(identity),
            "--psk",
            WriteKey(KeyOf(identity))};
}

}  // namespace orvelle::mqtt
