#include "adapters/avahi/ServiceAnnouncement.h"

#include <avahi-common/alternative.h>
#include <avahi-common/domain.h>
#include <avahi-common/error.h>
#include <avahi-common/malloc.h>

#include <utility>

#include "adapters/avahi/ServiceBrowser.h"
#include "adapters/shared/Utf8.h"

namespace orvelle::avahi {

namespace {

constexpr std::size_t LongestInstance = AVAHI_LABEL_MAX - 1;                          // bytes
constexpr std::size_t LongestSetUp = 255 - std::char_traits<char>::length("setup=");  // of one text of a record
constexpr int NamesToTry = 100;

std::string FirstBytes(std::string text, std::size_t most) {
    if (text.size() > most) text.resize(most);
    while (!IsUtf8(text)) text.pop_back();
    return text;
}

}  // namespace

ServiceAnnouncement::ServiceAnnouncement(EventLoop& eventLoop, const std::string& setUpName, int brokerPort)
    : setUp(FirstBytes(ToUtf8(setUpName), LongestSetUp)),
      port(brokerPort),
      instance(FirstBytes(setUp, LongestInstance)),
      daemon(eventLoop) {
    daemon.Ready = [this](AvahiClient* client) { Announce(client); };
    daemon.Lost = [this] {
        group = nullptr;
        known.clear();
    };
    daemon.Told = [this](const std::string& sentence) { Told(sentence); };
    daemon.Open();
}

void ServiceAnnouncement::Announce(AvahiClient* client) {
    const auto follow = [](AvahiEntryGroup* of, AvahiEntryGroupState state, void* object) {
        static_cast<ServiceAnnouncement*>(object)->Follow(of, state);
    };
    if (group == nullptr) group = avahi_entry_group_new(client, follow, this);
    if (group == nullptr) return;
    known.clear();
    const std::string named = "setup=" + setUp;
    for (int tried = 0; tried < NamesToTry; ++tried) {
        avahi_entry_group_reset(group);
        const int result = avahi_entry_group_add_service(
            group, AVAHI_IF_UNSPEC, AVAHI_PROTO_UNSPEC, AvahiPublishFlags{}, instance.c_str(), ServiceType, nullptr,
            nullptr, static_cast<std::uint16_t>(port), "version=1", named.c_str(), nullptr);
        if (result == AVAHI_OK) {
            avahi_entry_group_commit(group);
            return;
        }
        if (result != AVAHI_ERR_COLLISION) return;
        TakeNextName();
    }
}

// Called by the library, for the first time before it has given the group.
void ServiceAnnouncement::Follow(AvahiEntryGroup* of, AvahiEntryGroupState state) {
    if (state == AVAHI_ENTRY_GROUP_ESTABLISHED) known = instance;
    if (state != AVAHI_ENTRY_GROUP_COLLISION) return;
    TakeNextName();
    Announce(avahi_entry_group_get_client(of));
}

void ServiceAnnouncement::TakeNextName() {
    char* const next = avahi_alternative_service_name(instance.c_str());
    instance = next;
    avahi_free(next);
}

}  // namespace orvelle::avahi
