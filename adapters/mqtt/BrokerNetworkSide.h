// The far side of the framework link over a broker, in the simulator's program: the session that all panels see, and
// their records, to which this program writes as another party. It makes no record of its own.
#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <utility>

#include "adapters/mqtt/OfferedLink.h"
#include "adapters/shared/SessionDesk.h"

namespace orvelle::mqtt {

class BrokerNetworkSide : public SessionDesk, public OfferedLink {
public:
    explicit BrokerNetworkSide(SimulatorAtBroker& simulatorProgram);

    bool WriteParameter(Long id, Long index, Long value) override { return Write(id, {{{index, value}}, {}}); }
    bool WriteText(Long id, Long index, const std::string& text) override { return Write(id, {{}, {{index, text}}}); }
    std::map<Long, InterfaceRecord> Records() const override;
    std::size_t Writes() const override { return writes; }
    PlayedNetworkSide* PlayedNetwork() override { return nullptr; }
    Ticket Observe(std::function<void()> observer) override { return OfferedLink::Observe(std::move(observer)); }

private:
    void SaySession() override;
    bool Write(Long id, const RecordParameters& written);

    std::size_t writes = 0;
};

}  // namespace orvelle::mqtt
