#include "adapters/embedded/NetworkLink.h"

namespace orvelle::embedded {

void NetworkLink::Close() {
    CloseLink();
    std::erase_if(records, [](const auto& entry) { return entry.second.Record.IsLocal || entry.second.Dropped; });
    for (auto& [id, entry] : records) entry.Said = false;
}

// What there is on the network is said when the link has come up: the session, then what the panel does not know yet of
// other computers' records.
void NetworkLink::RaiseUp() {
    if (Session().Handle != 0) SaySession();
    for (const auto& [id, entry] : records)
        if (!entry.Record.IsLocal && entry.Said == entry.Dropped) SayForeignRecord(id);
    Up();
}

void NetworkLink::SaySession() {
    MarkChange();
    SayWhileUp([this, said = Session()] { SessionSaid(said); });
}

}  // namespace orvelle::embedded
