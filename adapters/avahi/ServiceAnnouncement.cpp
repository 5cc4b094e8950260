#include "adapters/avahi/ServiceAnnouncement.h"

#include <avahi-client/publish.h>
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

// On the library's thread.
class Announcing : public DaemonWork {
public:
    struct Telling {
        std::function<void(const std::string& name)> Known;  // "" for no more
        std::function<void()> Missing;
    };

    Announcing(std::shared_ptr<LoopInbox> inbox, const std::string& setUpName, int brokerPort, Telling telling)
        : DaemonWork(std::move(inbox)),
          setUp(FirstBytes(ToUtf8(setUpName), LongestSetUp)),
          port(brokerPort),
          inLoop(std::move(telling)),
          instance(FirstBytes(setUp, LongestInstance)) {}

    void Begin(AvahiClient* client) override;
    void Forget() override {
        group = nullptr;
        Tell("");
    }
    void Miss() override { ToLoop(inLoop.Missing); }

private:
    void Follow(AvahiEntryGroup* of, AvahiEntryGroupState state);
    void TakeNextName();
    void Tell(const std::string& known) const {
        ToLoop([tell = inLoop.Known, known] { tell(known); });
    }

    const std::string setUp;
    const int port;
    const Telling inLoop;
    std::string instance;  // the name that is tried
    AvahiEntryGroup* group = nullptr;
};

void Announcing::Begin(AvahiClient* client) {
    const auto follow = [](AvahiEntryGroup* of, AvahiEntryGroupState state, void* object) {
        static_cast<Announcing*>(object)->Follow(of, state);
    };
    if (group == nullptr) group = avahi_entry_group_new(client, follow, this);
    if (group == nullptr) return;
    Tell("");
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
void Announcing::Follow(AvahiEntryGroup* of, AvahiEntryGroupState state) {
    if (state == AVAHI_ENTRY_GROUP_ESTABLISHED) Tell(instance);
    if (state != AVAHI_ENTRY_GROUP_COLLISION) return;
    TakeNextName();
    Begin(avahi_entry_group_get_client(of));
}

void Announcing::TakeNextName() {
    char* const next = avahi_alternative_service_name(instance.c_str());
    instance = next;
    avahi_free(next);
}

}  // namespace

ServiceAnnouncement::ServiceAnnouncement(EventLoop& loop, const std::string& setUpName, int brokerPort)
    : daemon(loop, [&](std::shared_ptr<LoopInbox> inbox) {
          return std::make_unique<Announcing>(
              std::move(inbox), setUpName, brokerPort,
              Announcing::Telling{.Known = [this](const std::string& name) { known = name; },
                                  .Missing =
                                      [this] {
                                          if (!std::exchange(isMissingTold, true)) Told(MissingSentence);
                                      }});
      }) {}

}  // namespace orvelle::avahi
