#include "adapters/speech/RoomActivity.h"

#include <utility>

namespace orvelle::speech {

namespace {

// A room in which so many talk is active by these alone, and a server can name any number.
constexpr std::size_t MostTalks = 64;

}  // namespace

RoomActivity::RoomActivity(EventLoop& loop) : loop(loop) {}

void RoomActivity::Hear(const HeardVoice& packet) {
    const std::uint32_t speaker = packet.Speaker;
    if (!talks.contains(speaker) && (packet.IsLast || talks.size() >= MostTalks)) return;

    const auto [place, isNew] = talks.try_emplace(speaker);
    Talk& talk = place->second;
    if (talk.HasEnded && static_cast<std::int64_t>(packet.Sequence - talk.Last) <= 0) return;

    talking += isNew || talk.HasEnded ? 1 : 0;
    talk.HasEnded = false;
    talk.Patience = loop.After(SilenceEndsTalk, [this, speaker] { Forget(speaker); });
    if (packet.IsLast) {
        End(talk);
        talk.Last = packet.Sequence;
    }
    TellOfChange();
}

void RoomActivity::Forget(std::uint32_t speaker) {
    const auto place = talks.find(speaker);
    if (place == talks.end()) return;
    End(place->second);
    const Talk gone = std::move(place->second);  // its ticket may be of the call that runs
    talks.erase(place);
    TellOfChange();
}

void RoomActivity::Forget() {
    talks.clear();
    talking = 0;
    TellOfChange();
}

void RoomActivity::End(Talk& talk) {
    talking -= talk.HasEnded ? 0 : 1;
    talk.HasEnded = true;
}

// Last in each call, as a handler may call again.
void RoomActivity::TellOfChange() {
    if (told == IsActive()) return;
    told = IsActive();
    if (told)
        Started();
    else
        Stopped();
}

}  // namespace orvelle::speech
