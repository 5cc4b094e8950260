#include "adapters/mqtt/RetainedMessages.h"

#include "adapters/mqtt/Bounds.h"

namespace orvelle::mqtt {

bool RetainedMessages::Take(const Topic& topic, const std::string& payload) {
    const std::string name = WriteTopic(topic);
    const auto known = byTopic.find(name);
    if (topic.Kind == TopicKind::Record) {
        Extent& extent = extents[topic.Identity];
        Extent next = extent;
        if (known != byTopic.end()) {
            --next.Records;
            next.Bytes -= known->second.size();
        }
        if (!payload.empty()) {
            ++next.Records;
            next.Bytes += payload.size();
            if (next.Records > bounds::RecordsOfOneComputer || next.Bytes > bounds::BytesOfOneComputer) return false;
        }
        extent = next;
    }
    if (!payload.empty())
        byTopic.insert_or_assign(name, payload);
    else if (known != byTopic.end())
        byTopic.erase(known);
    return true;
}

void RetainedMessages::Clear() {
    byTopic.clear();
    extents.clear();
}

}  // namespace orvelle::mqtt
