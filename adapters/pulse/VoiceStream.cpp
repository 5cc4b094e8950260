#include "adapters/pulse/VoiceStream.h"

#include <pulse/proplist.h>

#include <utility>

#include "adapters/speech/Block.h"

namespace orvelle::pulse {

namespace {

constexpr pa_sample_spec Form{PA_SAMPLE_FLOAT32NE, static_cast<std::uint32_t>(speech::SampleRate), 1};

// A stream that was still for this many looks does not work; after more of them it is opened anew, one that the server
// did not even make after as many.
constexpr Long LooksOfPatience = LooksASecond;
constexpr Long LooksUntilAnew = 4 * LooksASecond;
// One that goes on after so long is opened anew as well: what it holds is old, and one of the servers may keep it
// silent from then on. But not again after its first moments: a device that had nobody may take a while to serve one,
// and the next stream would have the same to wait for.
constexpr std::chrono::seconds LongestPause{1};
constexpr std::chrono::milliseconds FirstMoments{500};

constexpr const char* DesktopName = "net.orvelle.orvellecp";

pa_stream* NewStream(pa_context* context, const std::string& name) {
    pa_proplist* const properties = pa_proplist_new();
    const auto set = [properties](const char* key, const std::string& value) {
        pa_proplist_sets(properties, key, value.c_str());
    };
    set(PA_PROP_APPLICATION_NAME, "OrvelleCP");
    set(PA_PROP_APPLICATION_ID, DesktopName);
    set(PA_PROP_APPLICATION_ICON_NAME, DesktopName);
    set(PA_PROP_MEDIA_ICON_NAME, DesktopName);
    set(PA_PROP_MEDIA_ROLE, "phone");
    // By the role alone all telephones would share the volume that the user gives one of them.
    set("module-stream-restore.id", "orvelle-" + name);
    pa_stream* const stream = pa_stream_new_with_proplist(context, name.c_str(), &Form, nullptr, properties);
    pa_proplist_free(properties);
    return stream;
}

// One that the server still makes can be ended only when it is made.
void Leave(pa_stream* stream) {
    pa_stream_set_read_callback(stream, nullptr, nullptr);
    pa_stream_set_write_callback(stream, nullptr, nullptr);
    if (pa_stream_get_state(stream) == PA_STREAM_CREATING)
        return pa_stream_set_state_callback(
            stream, [](pa_stream* made, void*) { Leave(made); }, nullptr);
    pa_stream_set_state_callback(stream, nullptr, nullptr);
    pa_stream_disconnect(stream);
    pa_stream_unref(stream);
}

}  // namespace

VoiceStream::VoiceStream(std::string name, std::function<void()> changed)
    : name(std::move(name)), changed(std::move(changed)) {}

VoiceStream::~VoiceStream() {
    if (stream) Leave(stream);
}

void VoiceStream::SetDevice(const std::string& newDevice) {
    if (std::exchange(device, newDevice) != newDevice) Close();
}

void VoiceStream::Open(pa_context* context) {
    stream = NewStream(context, name);
    if (!stream) return;
    stillFor = 0;
    movedAt.reset();
    Forget();
    pace.Restart();
    const auto carry = [](pa_stream*, std::size_t bytes, void* user) { static_cast<VoiceStream*>(user)->Move(bytes); };
    pa_stream_set_read_callback(stream, carry, this);
    pa_stream_set_write_callback(stream, carry, this);
    const int unmovable = device.empty() ? 0 : PA_STREAM_DONT_MOVE;
    const auto flags = static_cast<pa_stream_flags_t>(PA_STREAM_ADJUST_LATENCY | unmovable);
    if (Connect(stream, device.empty() ? nullptr : device.c_str(), flags) < 0) return Close();
    pa_stream_set_state_callback(
        stream, [](pa_stream*, void* user) { static_cast<VoiceStream*>(user)->TakeState(); }, this);
}

void VoiceStream::Close() {
    if (!stream) return;
    Leave(std::exchange(stream, nullptr));
    Stand();
}

void VoiceStream::TakeState() {
    if (!PA_STREAM_IS_GOOD(pa_stream_get_state(stream))) return Close();
    if (pa_stream_get_state(stream) != PA_STREAM_READY) return;
    if (const pa_buffer_attr* const buffer = pa_stream_get_buffer_attr(stream))
        pace.Restart(BytesAtOnce(*buffer) / sizeof(float));
}

void VoiceStream::Move(std::size_t bytes) {
    const SoundPace::Moment now = std::chrono::steady_clock::now();
    if (!movedAt) evenSince = now;
    const SoundPace::Moment before = std::exchange(movedAt, now).value_or(now);
    if (before - evenSince > FirstMoments) isAnew = false;
    if (now - before > LongestPause) {
        evenSince = now;
        if (!std::exchange(isAnew, true)) {
            Close();
            return changed();
        }
    }
    stillFor = 0;
    if (!std::exchange(isMoving, true)) changed();
    Carry(bytes);
}

void VoiceStream::Look() {
    if (!stream) return;
    ++stillFor;
    if (stillFor > LooksOfPatience) Stand();
    const bool isMade = pa_stream_get_state(stream) == PA_STREAM_READY;
    if (stillFor > (isMade ? LooksUntilAnew : LooksOfPatience)) return Close();
    if (isMade) ShowLife();
}

void VoiceStream::Stand() {
    if (std::exchange(isMoving, false)) changed();
}

}  // namespace orvelle::pulse
