// The sources and sinks of the user's sound server, by their titles, kept up as the server tells of changes; a source
// that only listens to a sink is none. The list of names is for the voice engine, the devices are for the mixers.
// Without a server there are none. Observers are called from the loop.
#pragma once

#include <pulse/introspect.h>
#include <pulse/operation.h>
#include <pulse/subscribe.h>

#include <array>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "adapters/pulse/DeviceTitles.h"
#include "adapters/pulse/PulseConnection.h"
#include "adapters/pulse/PulseLevel.h"
#include "adapters/shared/Changes.h"
#include "platform/AudioDevices.h"

namespace orvelle::pulse {

enum class DeviceKind { Source, Sink };

struct OperationEnd {
    void operator()(pa_operation* operation) const;  // not answered any more
};

struct PulseDevice {
    PulseDevice(std::uint32_t index, std::string name, std::string title, EventLoop& loop,
                std::function<void(const pa_cvolume&)> send, std::function<void()> changed)
        : Index(index),
          Name(std::move(name)),
          Title(std::move(title)),
          Level(loop, std::move(send), std::move(changed)) {}

    std::uint32_t Index;  // of the server; another one when the device has come back
    std::string Name;     // the server's own
    std::string Title;
    PulseLevel Level;
    std::unique_ptr<pa_operation, OperationEnd> Sending;  // of a level
};

class PulseDevices : public AudioDevices {
public:
    // Takes the connection's events. The connection outlives it.
    PulseDevices(EventLoop& loop, PulseConnection& serverConnection);

    // Whether the server has told of all, and whether it may do so in a moment.
    bool AreKnown() const { return connection.Context() && listsAwaited == 0; }
    bool AreAwaited() const { return connection.IsSeeking() || (connection.Context() && listsAwaited > 0); }

    std::vector<std::string> InputNames() const override { return TitlesOf(DeviceKind::Source); }
    std::vector<std::string> OutputNames() const override { return TitlesOf(DeviceKind::Sink); }

    // By title, by the server's own name, or DefaultMixerDevice; null where there is none. Good until the loop's next
    // turn.
    PulseDevice* Find(DeviceKind kind, const std::string& name) const;

    // The server's own name of the device with this title, also of one that is away for now; "" for
    // DefaultMixerDevice and where no device had the title.
    std::string NameOf(DeviceKind kind, const std::string& title) const;

    [[nodiscard]] Ticket Observe(std::function<void()> observer) { return changes.Observe(std::move(observer)); }

private:
    using ByIndex = std::map<std::uint32_t, std::unique_ptr<PulseDevice>>;

    ByIndex& Of(DeviceKind kind) { return devices[static_cast<std::size_t>(kind)]; }
    const ByIndex& Of(DeviceKind kind) const { return devices[static_cast<std::size_t>(kind)]; }
    std::vector<std::string> TitlesOf(DeviceKind kind) const;
    void AskAll();
    void AskDefaults();
    void Forget();
    void Ask(DeviceKind kind, std::uint32_t index);
    void Take(pa_subscription_event_type_t event, std::uint32_t index);
    void TakeDefaults(const pa_server_info& info);
    void Take(DeviceKind kind, std::uint32_t index, const char* name, const char* description,
              const pa_cvolume& volume);
    void EndList();
    void Send(DeviceKind kind, PulseDevice& device, const pa_cvolume& volume);
    template <typename Info>
    static void TakeInfo(pa_context*, const Info* info, int end, void* user);
    template <typename Info>
    static void TakeListed(pa_context*, const Info* info, int end, void* user);

    EventLoop& loop;
    PulseConnection& connection;
    Changes changes;
    DeviceTitles titles;
    std::array<std::map<std::string, std::string>, 2> names;  // the server's own, by title; of all that ever were there
    std::array<ByIndex, 2> devices;
    std::array<std::string, 2> defaults;  // by the server's own names
    int listsAwaited = 0;
};

}  // namespace orvelle::pulse
