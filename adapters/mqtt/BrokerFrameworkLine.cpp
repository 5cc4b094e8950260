#include "adapters/mqtt/BrokerFrameworkLine.h"

#include <algorithm>
#include <utility>

namespace orvelle::mqtt {

namespace {

// In which a record that was known before a loss of the connection may show up again
constexpr Long GraceMilliseconds = 3000;

}  // namespace

BrokerFrameworkLine::BrokerFrameworkLine(EventLoop& eventLoop, Brokers& setUpBrokers)
    : loop(eventLoop), brokers(setUpBrokers), records([this](int identity) {
          return at && at->Others().IsThere({identity, Program::Panel});
      }) {
    records.Said = [this](Long id, const RecordContent& content) { RecordSaid(id, content); };
    records.Ended = [this](Long id) { RecordEnded(id); };
}

void BrokerFrameworkLine::Open(const std::string& name) {
    wanted = name;
    moved = brokers.Changed.Attach([this] { Open(std::string(*wanted)); });
    found = brokers.Found.Observe([this] { TellFound(); });
    std::shared_ptr<PanelAtBroker> next = brokers.At(name);
    if (next != at || !next) Join(std::move(next));
}

void BrokerFrameworkLine::Close() {
    wanted.reset();
    moved.End();
    found.End();
    Join(nullptr);
    first.End();
    server = 0;
    taken.clear();
    records.ForgetAll();
}

// The panel's own records go along to another broker, not to none.
void BrokerFrameworkLine::Join(std::shared_ptr<PanelAtBroker> next) {
    const std::shared_ptr<PanelAtBroker> before = std::exchange(at, std::move(next));
    coming.End();
    changed.End();
    heard.End();
    waiting.End();
    telling.End();
    wasThere = false;
    sessions.clear();
    records.ForgetHeard();
    if (before) {
        const std::map<Long, RecordContent> own = before->OwnRecords();
        for (const auto& [number, content] : own) {
            before->EndRecord(number);
            if (at) at->SayRecord(number, content);
        }
        // It may be telling us of something now, so it goes when that is over.
        loop.Post([before] {});
    }
    if (at) {
        coming = at->Coming.Attach([this] { GiveWay(Holding::OthersKeep); });
        changed = at->Changed.Attach([this] { Review(); });
        heard = at->Heard.Attach([this](const Topic& topic, const std::string& payload) { Hear(topic, payload); });
    }
    // What is so already is told from the loop.
    first = loop.After(0, [this] {
        TellFound();
        if (at) {
            const std::map<std::string, std::string> kept = at->Kept();
            for (const auto& [topic, payload] : kept)
                if (const auto read = ReadTopic(topic)) Hear(*read, payload);
        }
        Review();
    });
}

Long BrokerFrameworkLine::NewRecordId() {
    if (!at || static_cast<Long>(at->OwnRecords().size()) >= LastRecord) return 0;
    do lastNumber = lastNumber % LastRecord + 1;
    while (at->OwnRecords().contains(lastNumber));
    return RecordId(at->Identity(), lastNumber);
}

void BrokerFrameworkLine::SayRecord(Long id, const RecordContent& record, const RecordParameters&) {
    if (!at) return;
    // A record that gives way at once is told to nobody: for all who want the role it would be one more that goes.
    if (at->IsThere() && GivesWay(record, Holding::LowerIdentityKeeps)) return Take(RecordOf(id));
    at->SayRecord(RecordOf(id), record);
}

void BrokerFrameworkLine::SayRecordEnded(Long id) {
    if (at) at->EndRecord(RecordOf(id));
}

void BrokerFrameworkLine::SayWrite(Long id, const RecordParameters& written) {
    if (at) at->Say(TopicKind::Write, WriteWrite({IdentityOf(id), RecordOf(id), written}));
}

void BrokerFrameworkLine::Review() {
    const bool isThere = at && at->IsThere();
    if (isThere != std::exchange(wasThere, isThere)) {
        if (isThere) {
            missing = Missing::MayStillShowUp;
            waiting = loop.After(GraceMilliseconds, [this] {
                missing = Missing::CountsAsEnded;
                records.LookAtAll();
                TellRecords();
            });
        } else {
            waiting.End();
            sessions.clear();
            records.ForgetHeard();
        }
    }
    const int now = isThere ? at->Others().SimulatorOffering(&PresenceSetting::OffersFramework) : 0;
    const int before = std::exchange(server, now);
    if (isThere) GiveWay(Holding::LowerIdentityKeeps);
    records.LookAtAll();
    if (now == 0) {
        if (before != 0) Lost();
        return;
    }
    if (before == 0) Up();
    if (before != now) TellSession();
    TellRecords();
}

// A handler may close the line.
void BrokerFrameworkLine::TellFound() {
    for (const std::string& host : brokers.Found.Hosts())
        if (wanted) ServerFound(host);
}

void BrokerFrameworkLine::Hear(const Topic& topic, const std::string& payload) {
    if (topic.Kind == TopicKind::Session) {
        const auto session = ReadSession(payload);
        if (!session) return at->CountRefused();
        sessions[topic.Identity] = *session;
        if (topic.Identity == server) TellSession();
    } else if (topic.Kind == TopicKind::Record && topic.Identity != at->Identity()) {
        HearRecord(topic, payload);
    } else if (topic.Kind == TopicKind::Write) {
        HearWrite(topic, payload);
    }
}

void BrokerFrameworkLine::HearRecord(const Topic& topic, const std::string& payload) {
    const Long id = RecordId(topic.Identity, topic.Record);
    if (payload.empty()) {
        records.HearEnded(id);
    } else {
        const auto record = ReadRecord(payload);
        if (!record) return at->CountRefused();
        records.Hear(id, *record);
    }
    if (!wasThere) return;
    GiveWay(Holding::LowerIdentityKeeps);
    TellRecords();
}

void BrokerFrameworkLine::HearWrite(const Topic& topic, const std::string& payload) {
    const auto request = ReadWrite(payload);
    if (!request) return at->CountRefused();
    if (request->To != at->Identity() || !at->OwnRecords().contains(request->Record)) return;
    if (at->Others().IsThere({topic.Identity, topic.From}))
        WriteSaid(RecordId(request->To, request->Record), request->Written);
}

void BrokerFrameworkLine::TellSession() {
    const auto found = sessions.find(server);
    const SessionSetting session = found != sessions.end() ? found->second : SessionSetting{};
    SessionSaid(session);
}

// What came in another's place is told before what gave way to it.
void BrokerFrameworkLine::TellRecords() {
    if (server == 0) return;
    records.Tell(missing);
    while (!taken.empty()) {
        const Long id = taken.front();
        taken.erase(taken.begin());
        RecordTaken(id);
    }
}

bool BrokerFrameworkLine::GivesWay(const RecordContent& own, Holding holding) const {
    const Long other = records.Holder(own.Type, own.Role);
    return other != 0 && (holding == Holding::OthersKeep || IdentityOf(other) < at->Identity());
}

void BrokerFrameworkLine::GiveWay(Holding holding) {
    const std::map<Long, RecordContent> own = at->OwnRecords();
    for (const auto& [number, content] : own)
        if (GivesWay(content, holding)) Take(number);
}

// The record ends for all at once; the panel here is told with what it gave way to.
void BrokerFrameworkLine::Take(Long number) {
    if (at->OwnRecords().contains(number)) at->EndRecord(number);
    taken.push_back(RecordId(at->Identity(), number));
    if (wasThere) telling = loop.After(0, [this] { TellRecords(); });
}

}  // namespace orvelle::mqtt
