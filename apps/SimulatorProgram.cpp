#include "apps/SimulatorProgram.h"

#include <unistd.h>

#include <array>
#include <cstdlib>
#include <utility>

#include "platform/ServerNames.h"

namespace orvelle {

namespace {

std::string ComputerName() {
    std::array<char, 256> name{};
    return gethostname(name.data(), name.size() - 1) == 0 && name[0] != '\0' ? name.data() : "this computer";
}

std::string DesktopName() {
    const char* const type = std::getenv("XDG_SESSION_TYPE");
    return type != nullptr && *type != '\0' ? type : "none";
}

// By the computer that made it, on that computer.
bool IsOwn(const mqtt::SetUpSetting& setUp) { return setUp.Identity == 1 && setUp.Host == LocalHost; }

}  // namespace

SimulatorProgram::SimulatorProgram(EventLoop& eventLoop, const std::filesystem::path& dataFolder, int port)
    : SetUp(dataFolder),
      AtBroker(eventLoop,
               [] { return mqtt::PresenceSetting{.Name = ComputerName(), .Address = "", .Desktop = DesktopName()}; }),
      loop(eventLoop),
      newPort(port) {
    Simulator.SetLink(LinkState::Up);
    Network.SetLink(LinkState::Up);
}

void SimulatorProgram::Open() {
    mqtt::FoundSetUp found = mqtt::ReadSetUpFile(SetUp.SetUpFile());
    if (!found.Sentence.empty()) return Told(found.Sentence);
    if (!found.Setting || IsOwn(*found.Setting)) {
        const std::string name = found.Setting ? found.Setting->Name : ComputerName();
        const std::string sentence = SetUp.Make(name, found.Setting ? found.Setting->Port : newPort);
        if (!sentence.empty()) return Told(sentence);
        keys = SetUp.Read().Keys.value_or(mqtt::ComputerKeys{});
        broker.emplace(loop, SetUp.Configuration());
        broker->Told = [this](const std::string& sentence) { Told(sentence); };
        broker->Start();
        keysWatch.emplace(loop, SetUp.KeysFile());
        keysWatch->Changed = [this] { TakeUpKeys(); };
    }
    setUpWatch.emplace(loop, SetUp.SetUpFile());
    setUpWatch->Changed = [this] { TakeUpSetUp(); };
    TakeUpSetUp();
}

void SimulatorProgram::TakeUpSetUp() {
    mqtt::FoundSetUp found = mqtt::ReadSetUpFile(SetUp.SetUpFile());
    if (!found.Sentence.empty()) Told(found.Sentence);
    if (std::exchange(current, found.Setting) == found.Setting) return;
    if (current)
        AtBroker.Open(*current);
    else
        AtBroker.Close();
}

void SimulatorProgram::TakeUpKeys() {
    mqtt::OwnSetUp::Found found = SetUp.Read();
    if (!found.Sentence.empty()) Told(found.Sentence);
    if (!found.Keys || *found.Keys == keys) return;
    const mqtt::ComputerKeys before = std::exchange(keys, std::move(*found.Keys));
    broker->ReadKeysAgain();
    for (const auto& [identity, key] : before) {
        const auto now = keys.find(identity);
        if (now == keys.end() || now->second != key) Expel(identity);
    }
}

void SimulatorProgram::Expel(int identity) {
    if (!current || identity == current->Identity) return;
    expulsions.emplace_back(loop, *current, identity);
    const auto expulsion = std::prev(expulsions.end());
    expulsion->StillHeard = [this] { broker->StartAgain(); };
    expulsion->Done = [this, expulsion] { loop.Post([this, expulsion] { expulsions.erase(expulsion); }); };
}

}  // namespace orvelle
