#include "adapters/mqtt/HeardRecords.h"

#include "adapters/mqtt/Topics.h"

namespace orvelle::mqtt {

void HeardRecords::Hear(Long id, const RecordContent& content) {
    heard.insert_or_assign(id, content);
    ended.erase(id);
    pending.insert(id);
}

void HeardRecords::HearEnded(Long id) {
    heard.erase(id);
    if (!told.contains(id)) return;
    ended.insert(id);
    pending.insert(id);
}

void HeardRecords::ForgetHeard() {
    heard.clear();
    shown.clear();
    pending.clear();
    LookAtAll();
}

void HeardRecords::ForgetAll() {
    told.clear();
    ended.clear();
    ForgetHeard();
}

void HeardRecords::LookAtAll() {
    for (const auto& [id, content] : heard) pending.insert(id);
    for (const auto& [id, content] : told) pending.insert(id);
}

// Who is told may serve the loop, which may bring more.
void HeardRecords::Tell(Missing missing) {
    while (!pending.empty()) {
        const Long id = *pending.begin();
        pending.erase(pending.begin());
        TellOf(id, missing);
    }
}

void HeardRecords::TellOf(Long id, Missing missing) {
    const RecordContent* now = Find(id);
    const auto known = told.find(id);
    if (now) {
        shown.insert(id);
        if (known != told.end() && known->second == *now) return;
        const RecordContent content = *now;
        told.insert_or_assign(id, content);
        Said(id, content);
    } else if (known != told.end() && (missing == Missing::CountsAsEnded || ended.contains(id) || shown.contains(id))) {
        told.erase(known);
        ended.erase(id);
        shown.erase(id);
        Ended(id);
    }
}

Long HeardRecords::Holder(const std::string& type, const std::string& role) const {
    for (const auto& [id, content] : heard)
        if (content.Type == type && content.Role == role && Find(id)) return id;
    return 0;
}

const RecordContent* HeardRecords::Find(Long id) const {
    const auto found = heard.find(id);
    return found != heard.end() && ownerIsThere(IdentityOf(id)) ? &found->second : nullptr;
}

}  // namespace orvelle::mqtt
