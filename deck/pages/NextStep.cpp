#include "deck/pages/NextStep.h"

#include <algorithm>
#include <array>

#include "platform/Tessaly.h"
#include "platform/VoiceEngine.h"
#include "platform/VoiceRoles.h"
#include "platform/sides/LinkSide.h"
#include "platform/sides/NetworkSide.h"
#include "platform/sides/VoiceEngineSide.h"

namespace orvelle::deck {

namespace {

constexpr int MostLines = 2;

constexpr const char* TakeUpLinks = "tick Simulator link and Network link, which the panel waits for.";
constexpr const char* OpenSession =
    "tick Session open and Connected to multiplayer: voice is for who is on the network.";
constexpr const char* EnableSoftware =
    "in the panel's list on the left click VATSIM, and tick \"Enable VATSIM Voice on this computer\".";
constexpr const char* TuneEngine =
    "tune COM1 under Radios: as Software VATSIM, then any Server and any Channel, such as voice.example and tower.";
constexpr const char* TuneHeardEngine =
    "tune COM1 under Radios: Software VATSIM, as Server a voice server, localhost where one runs here, and Channel "
    "echo "
    "to hear yourself.";
constexpr const char* TuneProgram =
    "tune COM1 under Radios: its Software, then any Server and any Channel, such as voice.example and tower.";
constexpr const char* MapKey =
    "in the panel's list click Key mappings, below VATSIM, and Set beside FS PTT Key Mapping; click into Keyboard "
    "here, and press F9. From then on F9 held here talks.";
constexpr const char* HoldKey =
    "on the panel's page of that software set both FS Key Mapping and PTT Key Mapping; click into Keyboard here, and "
    "hold the first of the two.";
constexpr const char* LetGo = "let go of the key, and the microphone is silent again.";

using Roles = std::array<const char*, 2>;
constexpr Roles RogerWilcoRoles{RogerWilcoCom1Role, RogerWilcoCom2Role};
constexpr Roles TeamSpeakRoles{TeamSpeakCom1Role, TeamSpeakCom2Role};

bool IsDown(const LinkSide* link) { return link && link->Link() == LinkState::Down; }

bool Holds(const NetworkSide& network, const std::string& role) {
    return std::ranges::any_of(network.Records(), [&role](const auto& record) {
        return record.second.IsLocal && record.second.Type == VoiceRecordType && record.second.Role == role;
    });
}

// Whether the panel holds the duty that what the radio is tuned to needs.
bool IsServed(const NetworkSide& network, std::size_t radio) {
    const RadioVoiceSetting& voice = network.Session().Voice.at(radio);
    if (voice.Server.empty()) return false;
    switch (voice.Software) {
        case RogerWilco:
            return Holds(network, RogerWilcoRoles.at(radio));
        case TeamSpeakHost:
        case TeamSpeakUrl:
            return Holds(network, TeamSpeakRoles.at(radio));
        default:
            return false;
    }
}

bool AnyRoom(const VoiceEngineView* engine, bool (*test)(const VoiceRoom&)) {
    for (Long room = 0; engine && room < Rooms; ++room)
        if (test(engine->Room(room))) return true;
    return false;
}

// Any server will do then.
bool IsPlayed(const VoiceEngineSide* engine) { return engine && engine->IsServing(); }

const char* StepFor(const FarSides& sides) {
    const NetworkSide& network = *sides.Network;
    if (IsDown(sides.SimulatorLink) || IsDown(sides.NetworkLink)) return TakeUpLinks;
    if (network.Session().Handle == 0 || network.Session().Status != ConnectedToMultiplayer) return OpenSession;
    if (AnyRoom(sides.ServingEngine,
                [](const VoiceRoom& room) { return room.Presence == RoomPresence::In && !room.Muted; }))
        return LetGo;
    if (AnyRoom(sides.ServingEngine, [](const VoiceRoom& room) { return room.Presence == RoomPresence::In; }))
        return MapKey;
    if (IsServed(network, 0) || IsServed(network, 1)) return HoldKey;
    if (Holds(network, EngineRole)) return IsPlayed(sides.VoiceEngine) ? TuneEngine : TuneHeardEngine;
    const bool holdsAny =
        std::ranges::any_of(AllVoiceRoles, [&network](const char* role) { return Holds(network, role); });
    return holdsAny ? TuneProgram : EnableSoftware;
}

}  // namespace

NextStep::NextStep(const FarSides& farSides) : sides(farSides) {
    setObjectName("NextStep");
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setAlignment(Qt::AlignTop);
    // The page below doesn't move when the words change.
    setMinimumHeight(MostLines * fontMetrics().lineSpacing());
    const auto show = [this] { ShowState(); };
    watches.push_back(sides.Network->Observe(show));
    for (LinkSide* link : {sides.SimulatorLink, sides.NetworkLink})
        if (link) watches.push_back(link->Observe(show));
    if (sides.ServingEngine) watches.push_back(sides.ServingEngine->Observe(show));
    ShowState();
}

void NextStep::ShowState() { setText(QString("Try this: ") + StepFor(sides)); }

}  // namespace orvelle::deck
