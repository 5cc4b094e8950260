#include "adapters/pulse/PulseDevices.h"

#include <algorithm>
#include <type_traits>
#include <utility>

#include "platform/VolumeControl.h"

namespace orvelle::pulse {

namespace {

constexpr int Lists = 3;  // the defaults, the sources, the sinks

template <typename Info>
constexpr DeviceKind KindOf = std::is_same_v<Info, pa_source_info> ? DeviceKind::Source : DeviceKind::Sink;

bool IsOwn(const pa_source_info& source) { return source.monitor_of_sink == PA_INVALID_INDEX; }
bool IsOwn(const pa_sink_info&) { return true; }

std::string Text(const char* text) { return text ? text : ""; }

}  // namespace

void OperationEnd::operator()(pa_operation* operation) const {
    if (pa_operation_get_state(operation) == PA_OPERATION_RUNNING) pa_operation_cancel(operation);
    pa_operation_unref(operation);
}

PulseDevices::PulseDevices(EventLoop& eventLoop, PulseConnection& serverConnection)
    : loop(eventLoop), connection(serverConnection), changes(eventLoop) {
    connection.Ready = [this] { AskAll(); };
    connection.Lost = [this] { Forget(); };
}

PulseDevice* PulseDevices::Find(DeviceKind kind, const std::string& name) const {
    const auto first = [&](const std::string& wanted, std::string PulseDevice::*member) -> PulseDevice* {
        const auto found =
            std::ranges::find_if(Of(kind), [&](const auto& entry) { return *entry.second.*member == wanted; });
        return found != Of(kind).end() ? found->second.get() : nullptr;
    };
    if (name == DefaultMixerDevice) return first(defaults[static_cast<std::size_t>(kind)], &PulseDevice::Name);
    if (PulseDevice* const listed = first(name, &PulseDevice::Title)) return listed;
    return first(name, &PulseDevice::Name);
}

std::vector<std::string> PulseDevices::TitlesOf(DeviceKind kind) const {
    std::vector<std::string> names;
    for (const auto& [index, device] : Of(kind)) names.push_back(device->Title);
    return names;
}

std::string PulseDevices::NameOf(DeviceKind kind, const std::string& title) const {
    const auto& known = names[static_cast<std::size_t>(kind)];
    const auto found = known.find(title);
    return found != known.end() ? found->second : "";
}

// What changes meanwhile is told as well, and asked behind the lists.
void PulseDevices::AskAll() {
    pa_context* const context = connection.Context();
    listsAwaited = Lists;
    pa_context_set_subscribe_callback(
        context,
        [](pa_context*, pa_subscription_event_type_t event, std::uint32_t index, void* user) {
            static_cast<PulseDevices*>(user)->Take(event, index);
        },
        this);
    constexpr auto Watched = static_cast<pa_subscription_mask_t>(
        PA_SUBSCRIPTION_MASK_SOURCE | PA_SUBSCRIPTION_MASK_SINK | PA_SUBSCRIPTION_MASK_SERVER);
    connection.Asked(pa_context_subscribe(context, Watched, nullptr, nullptr));
    connection.Asked(pa_context_get_server_info(
        context,
        [](pa_context*, const pa_server_info* info, void* user) {
            auto& asker = *static_cast<PulseDevices*>(user);
            if (info) asker.TakeDefaults(*info);
            asker.EndList();
        },
        this));
    connection.Asked(pa_context_get_source_info_list(context, &TakeListed<pa_source_info>, this));
    connection.Asked(pa_context_get_sink_info_list(context, &TakeListed<pa_sink_info>, this));
}

void PulseDevices::Forget() {
    for (ByIndex& each : devices) each.clear();
    defaults = {};
    changes.Mark();
}

void PulseDevices::AskDefaults() {
    connection.Asked(pa_context_get_server_info(
        connection.Context(),
        [](pa_context*, const pa_server_info* info, void* user) {
            if (info) static_cast<PulseDevices*>(user)->TakeDefaults(*info);
        },
        this));
}

void PulseDevices::Ask(DeviceKind kind, std::uint32_t index) {
    pa_context* const context = connection.Context();
    connection.Asked(kind == DeviceKind::Source
                         ? pa_context_get_source_info_by_index(context, index, &TakeInfo<pa_source_info>, this)
                         : pa_context_get_sink_info_by_index(context, index, &TakeInfo<pa_sink_info>, this));
}

void PulseDevices::Take(pa_subscription_event_type_t event, std::uint32_t index) {
    const int facility = event & PA_SUBSCRIPTION_EVENT_FACILITY_MASK;
    if (facility == PA_SUBSCRIPTION_EVENT_SERVER) return AskDefaults();
    const DeviceKind kind = facility == PA_SUBSCRIPTION_EVENT_SOURCE ? DeviceKind::Source : DeviceKind::Sink;
    if ((event & PA_SUBSCRIPTION_EVENT_TYPE_MASK) != PA_SUBSCRIPTION_EVENT_REMOVE) return Ask(kind, index);
    if (Of(kind).erase(index) > 0) changes.Mark();
}

void PulseDevices::TakeDefaults(const pa_server_info& info) {
    defaults = {Text(info.default_source_name), Text(info.default_sink_name)};
    changes.Mark();
}

template <typename Info>
void PulseDevices::TakeInfo(pa_context*, const Info* info, int end, void* user) {
    // One that has gone meanwhile is told as gone.
    if (end == 0 && IsOwn(*info))
        static_cast<PulseDevices*>(user)->Take(KindOf<Info>, info->index, info->name, info->description, info->volume);
}

template <typename Info>
void PulseDevices::TakeListed(pa_context* context, const Info* info, int end, void* user) {
    TakeInfo(context, info, end, user);
    if (end != 0) static_cast<PulseDevices*>(user)->EndList();
}

void PulseDevices::EndList() {
    if (--listsAwaited == 0) changes.Mark();
}

void PulseDevices::Take(DeviceKind kind, std::uint32_t index, const char* name, const char* description,
                        const pa_cvolume& volume) {
    std::unique_ptr<PulseDevice>& device = Of(kind)[index];
    const std::string& title = titles.For(Text(name), Text(description));
    names[static_cast<std::size_t>(kind)][title] = Text(name);
    if (!device || device->Name != Text(name)) {
        const auto send = [this, kind, &device](const pa_cvolume& wanted) { Send(kind, *device, wanted); };
        device = std::make_unique<PulseDevice>(index, Text(name), title, loop, send, [this] { changes.Mark(); });
        changes.Mark();
    }
    if (std::exchange(device->Title, title) != title) changes.Mark();
    device->Level.Hear(volume);
}

void PulseDevices::Send(DeviceKind kind, PulseDevice& device, const pa_cvolume& volume) {
    pa_context* const context = connection.Context();
    const auto received = [](pa_context*, int, void* user) { static_cast<PulseLevel*>(user)->Receive(); };
    const auto set =
        kind == DeviceKind::Source ? &pa_context_set_source_volume_by_index : &pa_context_set_sink_volume_by_index;
    pa_operation* const sending = set(context, device.Index, &volume, received, &device.Level);
    if (!sending) return;  // the server is about to be lost
    device.Sending.reset(pa_operation_ref(sending));
    connection.Asked(sending);
}

}  // namespace orvelle::pulse
