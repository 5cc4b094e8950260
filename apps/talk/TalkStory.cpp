#include "apps/talk/TalkStory.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <span>

#include "adapters/looks/Text.h"
#include "apps/FreePort.h"
#include "apps/talk/HeardSpeech.h"
#include "apps/three/SideBySide.h"

namespace orvelle {

namespace {

const std::string Sentence = "Tower, this is Alpha Bravo Charlie one two three, ready for departure.";
const std::string Channel = "122.8";
constexpr short LeastSound = 300;  // of 32768
constexpr std::size_t QuietSamples = 48000 / 5;
constexpr const char* PanelsPicture = "panels.png";
constexpr double LeastCorrelation = 0.8;

bool IsSound(std::span<const short> samples) {
    return std::ranges::any_of(samples, [](short sample) { return std::abs(sample) > LeastSound; });
}

bool IsQuietAtLast(const std::vector<short>& samples) {
    return samples.size() > QuietSamples && !IsSound(std::span(samples).last(QuietSamples));
}

}  // namespace

TalkStory::TalkStory(EventLoop& loop, const QDir& workFolder, const QDir& resultFolder, const QString& displayScript)
    : work(workFolder), results(resultFolder), server(FreePort()) {
    results.mkpath(".");
    std::vector<QString> runFolders;
    for (std::size_t number = 0; number < 2; ++number) {
        const QDir home(workFolder.filePath("pilot" + QString::number(number + 1)));
        pilots.push_back(std::make_unique<Pilot>(loop, number, home, displayScript));
        runFolders.push_back(pilots.back()->RunFolder());
    }
    sound = std::make_unique<OwnSound>(runFolders);
}

std::string TalkStory::Play() {
    if (const std::string problem = MakeSpeech(); !problem.empty()) return problem;
    telling.Happens("A voice server and a sound server are started, with a microphone and a headset for each pilot.");
    if (const std::string problem = server.Start(); !problem.empty()) return "It can't be played: " + problem + ".";
    sound->Start();
    if (!SwitchOn() || !Join() || !StartPanels() || !Tune() || !Talk()) return "The story did not come to its end.";
    return Judge();
}

std::string TalkStory::MakeSpeech() {
    QProcess speech;
    speech.start("espeak-ng", {"-s", "150", "-w", work.filePath("sentence.wav"), ToQt(Sentence)});
    if (speech.waitForFinished() && speech.exitCode() == 0) return "";
    return "It can't be played: espeak-ng, which speaks, is missing or failed.";
}

bool TalkStory::SwitchOn() {
    for (const auto& each : pilots) each->SwitchOn();
    return telling.Comes("The voice server serves at " + server.Address() + ".", [this] { return server.Serves(); }) &&
           telling.Comes("The sound server serves.", [this] { return sound->Serves(); }) &&
           telling.Comes("Both pilots' displays are there.",
                         [this] { return std::ranges::all_of(pilots, [](const auto& each) { return each->IsOn(); }); });
}

bool TalkStory::Join() {
    telling.Happens("orvelle-sim is started for each pilot, and the panel's computer joins its set-up.");
    for (const auto& each : pilots) each->StartSimulator();
    const auto serve = [this] {
        return std::ranges::all_of(pilots, [](const auto& each) { return each->SimulatorServes(); });
    };
    if (!telling.Comes("Both offer keys, session and radios.", serve)) return false;
    for (const auto& each : pilots) each->Join();
    return telling.Comes("Both panels' computers have joined.", [this] {
        // Each is to be asked, as asking takes the next step.
        return std::ranges::count_if(pilots, [](const auto& each) { return each->HasJoined(); }) == 2;
    });
}

bool TalkStory::StartPanels() {
    telling.Happens("Both panels are started. VATSIM Voice is ticked, with F8 as push-to-talk.");
    for (const auto& each : pilots) each->StartPanel();
    return telling.Comes("Both are there and hold their voice engines.", [this] {
        return std::ranges::all_of(pilots, [](const auto& each) { return each->HasEngine(); });
    });
}

bool TalkStory::Tune() {
    telling.Happens("COM1 of both is tuned to " + Channel + ", VATSIM voice at " + server.Address() + ".");
    for (const auto& each : pilots) each->Tune(server.Address(), Channel);
    return telling.Comes("Both are in the channel, says the voice server.", [this] {
        return std::ranges::all_of(pilots, [this](const auto& each) { return server.HasInChannel(each->Callsign()); });
    });
}

bool TalkStory::Talk() {
    sound->ListenToMicrophone(microphone, 0);
    sound->ListenToHeadset(headset, 1);
    if (!telling.Comes("The first pilot's microphone and the second one's headset are listened to.",
                       [this] { return !microphone.Samples().empty() && !headset.Samples().empty(); }))
        return false;
    telling.Happens("F8 goes down on the first pilot's keyboard.");
    pilots.front()->PressTalkKey();
    telling.Happens("The first pilot says: \"" + Sentence + "\"");
    sound->Speak(work.filePath("sentence.wav"), 0);
    if (!telling.Comes("It has begun.", [this] {
            spokenFrom = microphone.Samples().size();
            heardFrom = headset.Samples().size();
            return IsSound(microphone.Samples());
        }))
        return false;
    telling.Happens("The first sound is in the microphone.");
    if (!telling.Comes("The first sound is in the second pilot's headset.",
                       [this] { return IsSound(headset.Samples()); }) ||
        !telling.Comes("The sentence is spoken.", [this] { return !sound->Speaks(); }))
        return false;
    const QString screens = results.filePath(PanelsPicture);
    SideBySide(
        {{"One", "has talked, with F8 still down", pilots[0]->Screen()}, {"Two", "has listened", pilots[1]->Screen()}})
        .save(screens);
    telling.Happens("F8 comes up.");
    pilots.front()->ReleaseTalkKey();
    return telling.Comes("Silence in the headset for a fifth of a second.",
                         [this] { return IsQuietAtLast(headset.Samples()); });
}

// Both recordings go on to their ends, and begin a little before the first sound.
std::string TalkStory::Judge() {
    constexpr std::size_t Before = 48000 / 4;
    const std::span spoken = std::span(microphone.Samples()).subspan(spokenFrom - std::min(spokenFrom, Before));
    const std::span heard = std::span(headset.Samples()).subspan(heardFrom - std::min(heardFrom, Before));
    const auto spokenLevels = LevelsOf(spoken);
    const auto heardLevels = LevelsOf(heard);
    const QString file = results.filePath("heard.wav");
    const QString picture = results.filePath("heard.png");
    if (!WriteWaveFile(file, heard) || !DrawLevels(picture, spokenLevels, heardLevels))
        return "What was heard can't be written to " + FromQt(results.path()) + ".";
    const Likeness likeness = Compare(spokenLevels, heardLevels);
    char said[160];
    std::snprintf(
        said, sizeof said,
        "What was heard rises and falls as what was said, %d ms later; the two are alike by %.3f, where 1 is the same.",
        static_cast<int>(likeness.Later), likeness.Correlation);
    telling.Happens(said);
    telling.Happens("Heard: " + FromQt(file) + ", its level over time: " + FromQt(picture));
    telling.Happens("Both panels while the first pilot talked: " + FromQt(results.filePath(PanelsPicture)));
    if (likeness.Correlation > LeastCorrelation) return "";
    return "What the second pilot heard is not what the first one said.";
}

}  // namespace orvelle
