#include "adapters/mqtt/BrokerNetworkSide.h"

#include <random>

namespace orvelle::mqtt {

namespace {

// No session of this run has the handle of one of an earlier run. By the clock two runs could have the same, as it may
// be set back.
Long HandleBeforeAll() { return static_cast<Long>(std::random_device()() & 0x3FFFFFFF); }

}  // namespace

BrokerNetworkSide::BrokerNetworkSide(SimulatorAtBroker& simulatorProgram)
    : SessionDesk(HandleBeforeAll()), OfferedLink(simulatorProgram, &PresenceSetting::OffersFramework) {}

std::map<Long, InterfaceRecord> BrokerNetworkSide::Records() const {
    std::map<Long, InterfaceRecord> records;
    for (const auto& [id, content] : program.Records()) {
        InterfaceRecord& record = records[id];
        const PresenceSetting* const owner = program.Others().Find({IdentityOf(id), Program::Panel});
        record.Owner = owner ? owner->Name : WriteIdentity(IdentityOf(id));
        record.Type = content.Type;
        record.Role = content.Role;
        for (const auto& [index, number] : content.Parameters.Numbers) record.Parameters[index].Content = number;
        for (const auto& [index, text] : content.Parameters.Texts) record.Texts[index].Content = text;
    }
    return records;
}

void BrokerNetworkSide::SaySession() {
    program.SaySession(Session());
    program.MarkChange();
}

bool BrokerNetworkSide::Write(Long id, const RecordParameters& written) {
    if (!program.Records().contains(id)) return false;
    ++writes;
    program.SayWrite({IdentityOf(id), RecordOf(id), written});
    return true;
}

}  // namespace orvelle::mqtt
