#include "adapters/speech/RoomMix.h"

#include <algorithm>
#include <iterator>

namespace orvelle::speech {

namespace {

constexpr Long BlocksKept = 1000 / BlockMilliseconds;  // of a speaker's silence

}  // namespace

void RoomMix::Put(const HeardVoice& packet) {
    if (!speakers.contains(packet.Speaker) && !MakePlace()) return;
    speakers[packet.Speaker].Voice.Put(packet);
}

void RoomMix::Forget(std::uint32_t speaker) {
    if (const auto known = speakers.find(speaker); known != speakers.end()) PutAway(known);
}

void RoomMix::Forget() {
    while (!speakers.empty()) PutAway(speakers.begin());
}

void RoomMix::PutAway(std::map<std::uint32_t, Speaker>::iterator speaker) {
    countedOfGone += speaker->second.Voice.Counted();
    speakers.erase(speaker);
}

BlockCounts RoomMix::Counted() const {
    BlockCounts all = countedOfGone;
    for (const auto& [number, speaker] : speakers) all += speaker.Voice.Counted();
    return all;
}

bool RoomMix::MakePlace() {
    if (speakers.size() < MostSpeakers) return true;
    const auto silence = [](const auto& each) { return each.second.Voice.HasEnded() ? each.second.BlocksSilent : -1; };
    const auto longest = std::max_element(speakers.begin(), speakers.end(), [&](const auto& one, const auto& other) {
        return silence(one) < silence(other);
    });
    if (silence(*longest) < 0) return false;
    PutAway(longest);
    return true;
}

void RoomMix::AddTo(Block& voices, Block& tones, double quietest) {
    Block room = Silence;
    const bool somebodyTalks = Mix(room, quietest);
    if (somebodyTalks != isTalking) signal.Sound(somebodyTalks ? TalkSignal::Beginning : TalkSignal::End);
    isTalking = somebodyTalks;

    Block signals = Silence;
    if (signal.IsSounding()) signal.Take(signals);
    for (std::size_t index = 0; index < BlockSamples; ++index) {
        const float factor = share.Next();
        voices[index] += room[index] * factor;
        tones[index] += signals[index] * factor;
    }
}

// Whether somebody talks.
bool RoomMix::Mix(Block& room, double quietest) {
    bool somebodyTalks = false;
    Block block;
    for (auto next = speakers.begin(); next != speakers.end();) {
        const auto each = next++;
        Speaker& speaker = each->second;
        if (!speaker.Voice.Take(block)) {
            if (++speaker.BlocksSilent >= BlocksKept)
                PutAway(each);
            else
                speaker.Squelch.Close();
            continue;
        }
        const bool passes = speaker.Squelch.Passes(DecibelsOf(block) >= quietest);
        const float wanted = passes ? 1.0F : 0.0F;
        if (speaker.BlocksSilent > 0) speaker.Share.Jump(wanted);
        speaker.Share.To(wanted);
        speaker.BlocksSilent = 0;
        somebodyTalks = true;
        for (std::size_t index = 0; index < BlockSamples; ++index) room[index] += block[index] * speaker.Share.Next();
    }
    return somebodyTalks;
}

}  // namespace orvelle::speech
