#include "adapters/avahi/ServiceBrowser.h"

#include <avahi-client/lookup.h>
#include <avahi-common/malloc.h>

#include <algorithm>
#include <iterator>
#include <map>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "adapters/shared/Utf8.h"

namespace orvelle::avahi {

namespace {

constexpr std::size_t LongestName = 255;    // bytes
constexpr std::size_t MostSightings = 200;  // that somebody on the network may make us follow

// What comes from the network is shown: no blanks for a host, no signs that steer a terminal.
bool IsShowable(std::string_view text, char least) {
    return !text.empty() && text.size() <= LongestName && IsUtf8(text) && std::ranges::all_of(text, [=](char each) {
        return static_cast<unsigned char>(each) >= static_cast<unsigned char>(least) && each != '\x7F';
    });
}

std::string ValueOf(AvahiStringList* texts, const char* name) {
    AvahiStringList* const found = avahi_string_list_find(texts, name);
    char* value = nullptr;
    std::size_t size = 0;
    if (found == nullptr || avahi_string_list_get_pair(found, nullptr, &value, &size) != 0 || value == nullptr)
        return "";
    std::string text(value, size);
    avahi_free(value);
    return text;
}

std::optional<FoundService> ReadService(const char* host, std::uint16_t port, AvahiStringList* texts) {
    FoundService service{ValueOf(texts, "setup"), host != nullptr ? host : "", port};
    while (service.Host.ends_with('.')) service.Host.pop_back();
    if (ValueOf(texts, "version") != "1" || port == 0 || !IsShowable(service.SetUp, ' ') ||
        !IsShowable(service.Host, '!'))
        return std::nullopt;
    return service;
}

// On the library's thread: what there is, told to the loop as a whole after each change.
class Browsing : public DaemonWork {
public:
    struct Telling {
        std::function<void(const std::set<FoundService>& now)> Found;
        std::function<void()> Missing;
    };

    Browsing(std::shared_ptr<LoopInbox> inbox, Telling telling)
        : DaemonWork(std::move(inbox)), inLoop(std::move(telling)) {}

    void Begin(AvahiClient* client) override;
    void Forget() override;
    void Miss() override { ToLoop(inLoop.Missing); }

private:
    // A set-up shows once for each network that it is seen on.
    using Sighting = std::tuple<AvahiIfIndex, AvahiProtocol, std::string, std::string>;
    struct Seen {
        AvahiServiceResolver* Resolver = nullptr;
        std::optional<FoundService> Service;
    };

    void See(AvahiClient* client, const Sighting& sighting);
    void Resolve(AvahiServiceResolver* resolver, std::optional<FoundService> service);
    void Tell() const;

    const Telling inLoop;
    AvahiServiceBrowser* browser = nullptr;
    std::map<Sighting, Seen> seen;
};

void Browsing::Begin(AvahiClient* client) {
    if (browser != nullptr) return;
    const auto follow = [](AvahiServiceBrowser* from, AvahiIfIndex interface, AvahiProtocol protocol,
                           AvahiBrowserEvent event, const char* name, const char*, const char* domain,
                           AvahiLookupResultFlags, void* object) {
        auto& self = *static_cast<Browsing*>(object);
        if (event != AVAHI_BROWSER_NEW && event != AVAHI_BROWSER_REMOVE) return;
        const Sighting sighting(interface, protocol, name, domain);
        if (event == AVAHI_BROWSER_NEW) return self.See(avahi_service_browser_get_client(from), sighting);
        const auto gone = self.seen.find(sighting);
        if (gone == self.seen.end()) return;
        if (gone->second.Resolver != nullptr) avahi_service_resolver_free(gone->second.Resolver);
        self.seen.erase(gone);
        self.Tell();
    };
    browser = avahi_service_browser_new(client, AVAHI_IF_UNSPEC, AVAHI_PROTO_UNSPEC, ServiceType, nullptr,
                                        AvahiLookupFlags{}, follow, this);
}

void Browsing::Forget() {
    browser = nullptr;
    seen.clear();
    Tell();
}

// The resolver stays, and tells a host or a port that changes.
void Browsing::See(AvahiClient* client, const Sighting& sighting) {
    if (seen.size() >= MostSightings) return;
    const auto follow = [](AvahiServiceResolver* resolver, AvahiIfIndex, AvahiProtocol, AvahiResolverEvent event,
                           const char*, const char*, const char*, const char* host, const AvahiAddress*,
                           std::uint16_t port, AvahiStringList* texts, AvahiLookupResultFlags, void* object) {
        static_cast<Browsing*>(object)->Resolve(
            resolver, event == AVAHI_RESOLVER_FOUND ? ReadService(host, port, texts) : std::nullopt);
    };
    const auto& [interface, protocol, name, domain] = sighting;
    Seen& entry = seen[sighting];
    if (entry.Resolver != nullptr) return;
    entry.Resolver = avahi_service_resolver_new(client, interface, protocol, name.c_str(), ServiceType, domain.c_str(),
                                                AVAHI_PROTO_UNSPEC, AVAHI_LOOKUP_NO_ADDRESS, follow, this);
}

void Browsing::Resolve(AvahiServiceResolver* resolver, std::optional<FoundService> service) {
    const auto of = std::ranges::find_if(seen, [=](const auto& each) { return each.second.Resolver == resolver; });
    if (of == seen.end()) return;
    of->second.Service = std::move(service);
    Tell();
}

void Browsing::Tell() const {
    std::set<FoundService> now;
    for (const auto& [sighting, entry] : seen)
        if (entry.Service) now.insert(*entry.Service);
    ToLoop([tell = inLoop.Found, now] { tell(now); });
}

}  // namespace

ServiceBrowser::ServiceBrowser(EventLoop& loop)
    : daemon(loop, [this](std::shared_ptr<LoopInbox> inbox) {
          return std::make_unique<Browsing>(
              std::move(inbox), Browsing::Telling{.Found = [this](const std::set<FoundService>& now) { Tell(now); },
                                                  .Missing =
                                                      [this] {
                                                          if (!std::exchange(isMissingTold, true))
                                                              Told(MissingSentence);
                                                      }});
      }) {}

void ServiceBrowser::Tell(const std::set<FoundService>& now) {
    std::vector<FoundService> came, went;
    std::set_difference(now.begin(), now.end(), told.begin(), told.end(), std::back_inserter(came));
    std::set_difference(told.begin(), told.end(), now.begin(), now.end(), std::back_inserter(went));
    told = now;
    for (const FoundService& each : went) Went(each);
    for (const FoundService& each : came) Came(each);
}

}  // namespace orvelle::avahi
