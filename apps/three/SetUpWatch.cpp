#include "apps/three/SetUpWatch.h"

#include <unistd.h>

#include <algorithm>

#include "adapters/mqtt/OwnSetUp.h"
#include "adapters/mqtt/Payloads.h"
#include "adapters/mqtt/Topics.h"
#include "platform/VoiceRoles.h"

namespace orvelle {

using mqtt::Program;

std::unique_ptr<SetUpWatch> SetUpWatch::OfMade(EventLoop& loop, const std::filesystem::path& folder) {
    const mqtt::OwnSetUp made(folder);
    const auto setting = made.Read().Setting;
    const auto own = setting ? made.OfThisComputer(*setting) : std::nullopt;
    return own ? std::make_unique<SetUpWatch>(loop, *own) : nullptr;
}

SetUpWatch::SetUpWatch(EventLoop& loop, const mqtt::SetUpSetting& setUp)
    : simulator(setUp.Identity), connection(loop), presences(loop) {
    connection.Heard = [this](const std::string& text, const std::string& payload) { Hear(text, payload); };
    connection.Lost = [this] {
        presences.Clear();
        roles.clear();
    };
    const std::string identity = mqtt::WriteIdentity(simulator);
    const std::string input =
        mqtt::WriteTopic({.Identity = simulator, .From = Program::Simulator, .Kind = mqtt::TopicKind::Input});
    connection.Open({.Access = {setUp.Host, setUp.Port, identity, mqtt::WriteKey(setUp.Key)},
                     .ClientId = identity + ".watch." + std::to_string(getpid()),
                     .WillTopic = "",
                     .Subscriptions = {{"orvelle/1/+/+/presence", 1}, {"orvelle/1/+/panel/record/+", 1}, {input, 0}}});
}

bool SetUpWatch::SimulatorServes() const {
    return presences.SimulatorOffering(&mqtt::PresenceSetting::OffersSimulator) == simulator &&
           presences.SimulatorOffering(&mqtt::PresenceSetting::OffersFramework) == simulator;
}

void SetUpWatch::SetSession(const SessionSetting& session) {
    connection.Publish({.Topic = mqtt::WriteTopic(
                            {.Identity = simulator, .From = Program::Simulator, .Kind = mqtt::TopicKind::Session}),
                        .Payload = mqtt::WriteSession(session),
                        .Keep = mqtt::Retain::Yes});
}

Long SetUpWatch::PanelBeats(int identity) const {
    const mqtt::PresenceSetting* const panel = presences.Find({identity, Program::Panel});
    return panel ? panel->Beat : 0;
}

std::vector<int> SetUpWatch::Holders(const std::string& role) const {
    std::vector<int> holders;
    for (const auto& [id, held] : roles)
        if (held == role && presences.IsThere({mqtt::IdentityOf(id), Program::Panel}))
            holders.push_back(mqtt::IdentityOf(id));
    return holders;
}

bool SetUpWatch::KeepsRecordOf(int identity) const {
    return std::ranges::any_of(roles, [&](const auto& each) { return mqtt::IdentityOf(each.first) == identity; });
}

void SetUpWatch::Hear(const std::string& text, const std::string& payload) {
    const auto topic = mqtt::ReadTopic(text);
    if (!topic) return;
    if (topic->Kind == mqtt::TopicKind::Presence)
        return presences.Hear({topic->Identity, topic->From}, mqtt::ReadPresence(payload));
    if (topic->Kind == mqtt::TopicKind::Input) {
        if (const auto input = mqtt::ReadInput(payload)) InputHeard(input->Held);
        return;
    }
    if (topic->Kind != mqtt::TopicKind::Record) return;
    const Long id = mqtt::RecordId(topic->Identity, topic->Record);
    const auto record = mqtt::ReadRecord(payload);
    if (record && record->Type == VoiceRecordType)
        roles.insert_or_assign(id, record->Role);
    else
        roles.erase(id);
}

}  // namespace orvelle
