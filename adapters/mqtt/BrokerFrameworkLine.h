// The framework link over a broker: the session that the simulator's program of the lowest identity tells, and the
// interface records of all panels of the set-up. The line is up while the connection stands and such a program is
// there; records live whether it is up or not. A role has one holder: of two panels that hold it the one of the lower
// identity keeps it, and a panel that comes gives up what another one holds by then.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "adapters/mqtt/Brokers.h"
#include "adapters/mqtt/HeardRecords.h"
#include "platform/FrameworkLine.h"

namespace orvelle::mqtt {

class BrokerFrameworkLine : public FrameworkLine {
public:
    BrokerFrameworkLine(EventLoop& eventLoop, Brokers& setUpBrokers);

    void Open(const std::string& server) override;
    void Close() override;

    bool LetsOpenSession() override { return true; }
    bool LetsOpenRecord() override { return true; }
    Long NewRecordId() override;
    void SayRecord(Long id, const RecordContent& record, const RecordParameters& written) override;
    void SayRecordEnded(Long id) override;
    void SayWrite(Long id, const RecordParameters& written) override;

private:
    enum class Holding { LowerIdentityKeeps, OthersKeep };

    void Join(std::shared_ptr<PanelAtBroker> next);
    void Review();
    void TellFound();
    void Hear(const Topic& topic, const std::string& payload);
    void HearRecord(const Topic& topic, const std::string& payload);
    void HearWrite(const Topic& topic, const std::string& payload);
    void TellSession();
    void TellRecords();
    bool GivesWay(const RecordContent& own, Holding holding) const;
    void GiveWay(Holding holding);
    void Take(Long number);

    EventLoop& loop;
    Brokers& brokers;
    std::optional<std::string> wanted;  // the server's name while open
    std::shared_ptr<PanelAtBroker> at;  // null while closed
    bool wasThere = false;
    int server = 0;                          // the identity of the program that serves, 0 while the line is down
    std::map<int, SessionSetting> sessions;  // by the identity that tells it
    HeardRecords records;
    Missing missing = Missing::CountsAsEnded;
    std::vector<Long> taken;  // own records that gave way, to be told
    Long lastNumber = 0;      // of an own record
    Ticket moved, found, coming, changed, heard, first, waiting, telling;
};

}  // namespace orvelle::mqtt
