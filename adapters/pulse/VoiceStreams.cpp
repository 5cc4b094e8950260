#include "adapters/pulse/VoiceStreams.h"

#include <pulse/introspect.h>
#include <pulse/subscribe.h>

#include <algorithm>
#include <utility>

namespace orvelle::pulse {

VoiceStreams::VoiceStreams(EventLoop& eventLoop, std::string server)
    : loop(eventLoop),
      server(std::move(server)),
      microphone([this] { TellLater(); }, [this](const speech::Block& block) { Recorded(block); }),
      outputs{OutputStream(
                  "Headset", [this] { TellLater(); }, [this](speech::Block& block) { Wanted(Headset, block); }),
              OutputStream(
                  "Speakers", [this] { TellLater(); }, [this](speech::Block& block) { Wanted(Speakers, block); })} {}

// What the streams and the connection still say is nobody's any more.
VoiceStreams::~VoiceStreams() {
    for (VoiceStream* const stream : All()) stream->Close();
}

std::array<VoiceStream*, 3> VoiceStreams::All() { return {&microphone, &outputs[Headset], &outputs[Speakers]}; }

void VoiceStreams::SetMicrophone(const std::string& source) { SetDevice(microphone, source); }

void VoiceStreams::SetOutput(Long output, const std::string& sink) {
    if (IsOutput(output)) SetDevice(outputs[static_cast<std::size_t>(output)], sink);
}

void VoiceStreams::SetDevice(VoiceStream& stream, const std::string& device) {
    stream.SetDevice(device);
    OpenWanted();
}

void VoiceStreams::OpenMicrophone() { Want(microphone); }
void VoiceStreams::CloseMicrophone() { Leave(microphone); }
void VoiceStreams::OpenOutputs() {
    for (OutputStream& output : outputs) Want(output);
}
void VoiceStreams::CloseOutputs() {
    for (OutputStream& output : outputs) Leave(output);
}

void VoiceStreams::RouseOutputs() {
    for (OutputStream& output : outputs) output.Rouse();
}

bool VoiceStreams::OutputWorks(Long output) const {
    return IsOutput(output) && outputs[static_cast<std::size_t>(output)].Works();
}

void VoiceStreams::Want(VoiceStream& stream) {
    stream.IsWanted = true;
    if (!connection) Begin();
    OpenWanted();
}

// The connection may be the one that calls.
void VoiceStreams::Leave(VoiceStream& stream) {
    stream.IsWanted = false;
    stream.Close();
    ending = loop.After(0, [this] { EndIfUnwanted(); });
}

void VoiceStreams::Begin() {
    connection.emplace(loop, server);
    connection->Ready = [this] { TakeServer(); };
    connection->Lost = [this] {
        for (VoiceStream* const stream : All()) stream->Close();
    };
    looks = 0;
    looking = loop.After(LookEvery, [this] { Look(); });
    connection->Seek();
}

void VoiceStreams::EndIfUnwanted() {
    if (std::ranges::any_of(All(), &VoiceStream::IsWanted)) return;
    looking.End();
    opening.End();
    connection.reset();
}

void VoiceStreams::TakeServer() {
    pa_context* const context = connection->Context();
    connection->Asked(pa_context_set_name(context, "OrvelleCP", nullptr, nullptr));
    pa_context_set_subscribe_callback(
        context,
        [](pa_context*, pa_subscription_event_type_t event, std::uint32_t, void* user) {
            static_cast<VoiceStreams*>(user)->TakeChange(event);
        },
        this);
    constexpr auto Watched = static_cast<pa_subscription_mask_t>(
        PA_SUBSCRIPTION_MASK_SOURCE | PA_SUBSCRIPTION_MASK_SINK | PA_SUBSCRIPTION_MASK_SERVER);
    connection->Asked(pa_context_subscribe(context, Watched, nullptr, nullptr));
    OpenWanted();
}

// A device that is there now, or the default ones that are others.
void VoiceStreams::TakeChange(pa_subscription_event_type_t event) {
    const bool isNew = (event & PA_SUBSCRIPTION_EVENT_TYPE_MASK) == PA_SUBSCRIPTION_EVENT_NEW;
    const bool isServers = (event & PA_SUBSCRIPTION_EVENT_FACILITY_MASK) == PA_SUBSCRIPTION_EVENT_SERVER;
    if (isNew || isServers) opening = loop.After(0, [this] { OpenWanted(); });
}

void VoiceStreams::OpenWanted() {
    if (!connection || !connection->Context()) return;
    for (VoiceStream* const stream : All())
        if (stream->IsWanted && !stream->IsOpen()) stream->Open(connection->Context());
}

void VoiceStreams::Look() {
    looking = loop.After(LookEvery, [this] { Look(); });
    for (VoiceStream* const stream : All()) stream->Look();
    if (++looks % LooksASecond != 0) return;
    if (!connection->Context()) return connection->Seek();
    if (std::ranges::any_of(All(), [](const VoiceStream* stream) { return stream->IsWanted && !stream->Works(); }))
        AskForLife();
    OpenWanted();
}

// Where nothing is carried, an unanswered question tells whether it is the server that hangs.
void VoiceStreams::AskForLife() {
    connection->Asked(pa_context_get_server_info(
        connection->Context(), [](pa_context*, const pa_server_info*, void*) {}, nullptr));
}

// What was closed is opened again before anything is told, where that can be.
void VoiceStreams::TellLater() {
    telling = loop.After(0, [this] {
        OpenWanted();
        Changed();
    });
}

}  // namespace orvelle::pulse
