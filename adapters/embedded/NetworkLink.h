// The framework link inside this process: the panel's near end opens it as its line; whoever plays the network acts on
// its far side, the session with its radio set, and the interface records of other computers. What is done there
// reaches the panel after the delay, while the link stands. Main thread only; a refusal shows as the result that the
// interfaces tell.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <utility>

#include "adapters/embedded/PlayedLink.h"
#include "adapters/shared/SessionDesk.h"
#include "platform/FrameworkLine.h"
#include "platform/sides/PlayedNetworkSide.h"

namespace orvelle::embedded {

class NetworkLink : public FrameworkLine, public SessionDesk, public PlayedLink, public PlayedNetworkSide {
public:
    explicit NetworkLink(EventLoop& loop) : PlayedLink(loop) {}

    // The line.
    void Open(const std::string& server) override { OpenLink(server); }
    void Close() override;
    bool LetsOpenSession() override { return !refuse.OpenSession; }
    bool LetsOpenRecord() override { return !refuse.OpenInterface; }
    Long NewRecordId() override;  // the least that is free; 0 before Open
    void SayRecord(Long id, const RecordContent& record, const RecordParameters& written) override;
    void SayRecordEnded(Long id) override;
    void SayWrite(Long id, const RecordParameters& written) override;

    Ticket Observe(std::function<void()> observer) override { return PlayedLink::Observe(std::move(observer)); }

    PlayedNetworkSide* PlayedNetwork() override { return this; }

    // The records.
    Long Claim(const std::string& owner, const std::string& role, const std::string& type) override;
    bool DropClaim(Long id) override;
    bool AnnounceChange(Long id) override;
    bool WriteParameter(Long id, Long index, Long value) override;
    bool WriteText(Long id, Long index, const std::string& text) override;
    std::map<Long, InterfaceRecord> Records() const override;
    std::size_t Writes() const override { return writes; }
    NetworkRefusals& Refuse() override { return refuse; }

private:
    // A record keeps its id until the panel was told that it is gone: a new one would be taken for the old one.
    struct Entry {
        InterfaceRecord Record;
        bool Said = false;  // the panel knows of it
        bool Dropped = false;
    };

    void RaiseUp() override;
    void RaiseLost() override { Lost(); }
    void RaiseServerFound(const std::string& name) override { ServerFound(name); }
    void SaySession() override;

    Entry* Find(Long id);
    Entry* Reachable(Long id);  // by other parties
    void Enter(InterfaceRecord& record, const RecordParameters& written, ParameterWriter writer);
    bool Write(Long id, const RecordParameters& written);
    void SayForeignRecord(Long id);

    std::map<Long, Entry> records;
    std::size_t writes = 0;
    NetworkRefusals refuse;
};

}  // namespace orvelle::embedded
