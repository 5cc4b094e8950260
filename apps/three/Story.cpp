#include "apps/three/Story.h"

#include <algorithm>
#include <map>

#include "adapters/looks/Text.h"
#include "adapters/shared/ScanCodes.h"
#include "apps/three/SideBySide.h"
#include "platform/VoiceRoles.h"

namespace orvelle {

namespace {

constexpr int FirstIdentity = 2;  // c01 is the simulator's computer
constexpr int LastIdentity = 4;
const std::string Role = RogerWilcoCom1Role;
const std::string Join = " /join1 voice.example/tower /priority high /netspeed 2 /callsign ABC123";
// By the second, what a panel does when it comes is done.
constexpr Long BeatsOfComing = 2;

bool HasTalkKeyDown(const Computer& computer) {
    return computer.KeysDown() == std::vector<int>{LinuxKeyOfScanCode(VoiceStandIn::TalkKey)};
}

bool HasVoiceJoined(const Computer& computer) { return computer.VoiceCalls().ends_with(Join); }

}  // namespace

Story::Story(EventLoop& loop, const QDir& workFolder, const QDir& pictureFolder, const QString& displayScript)
    : pictures(pictureFolder), simulator(loop, workFolder.filePath("c01")) {
    pictures.mkpath(".");
    for (int identity = FirstIdentity; identity <= LastIdentity; ++identity)
        computers.push_back(std::make_unique<Computer>(
            loop, identity, workFolder.filePath("c0" + QString::number(identity)), displayScript));
}

bool Story::Play() {
    const bool played = MakeSetUp() && JoinAll() && ClaimRole() && OpenSession() && Talk() &&
                        TakePicture("three-1-held.png") && LoseHolder() && Talk() &&
                        TakePicture("three-2-taken-over.png") && ComeBack() && Talk() &&
                        TakePicture("three-3-come-back.png");
    if (played) telling.Happens("That was the story; all computers are switched off.");
    return played;
}

bool Story::MakeSetUp() {
    telling.Happens("orvelle-sim is started on c01, the simulator's computer; the other computers are switched on.");
    simulator.Start();
    for (const auto& each : computers) each->Desktop.SwitchOn();
    return telling.Comes("The set-up is made. Its broker serves, encrypted, at port " +
                             std::to_string(simulator.Port()) + ", and c01 offers keys, session and radios.",
                         [this] { return simulator.Serves(); }) &&
           telling.Comes("The displays of c02, c03 and c04 are there.", [this] {
               return std::ranges::all_of(computers, [](const auto& each) { return each->IsOn(); });
           });
}

bool Story::JoinAll() {
    for (const auto& each : computers) {
        telling.Happens("On c01 a computer is added: orvelle-sim --add");
        simulator.AskForCode();
        std::string code;
        const auto isMade = [&] { return !(code = simulator.Code()).empty(); };
        if (!telling.Comes([&] { return "The code for it is " + code; }, isMade)) return false;
        telling.Happens("On " + each->Name() + " it is typed: orvelle-setup --join " + code);
        each->Desktop.Join(code, simulator.Port());
        if (!telling.Comes([&] { return "orvelle-setup says: " + each->Desktop.SaidOfJoining(); },
                           [&] { return each->Desktop.HasJoined(); }))
            return false;
    }
    return true;
}

bool Story::ClaimRole() {
    holder = computers.front().get();
    telling.Happens("The panel of " + holder->Name() + " is started. RogerWilco is ticked there for COM1.");
    holder->StartPanel();
    if (!telling.Comes(holder->Name() + " is there and claims the role " + Role + ", RogerWilco for COM1.", [this] {
            return simulator.Watch().Holders(Role) == std::vector{holder->Identity} && holder->ShowsPanel();
        }))
        return false;
    telling.Happens("The panels of the others are started; RogerWilco is ticked there, too.");
    for (const auto& each : computers)
        if (each.get() != holder) each->StartPanel();
    return telling.Comes("They are there, find the role held, and leave it to " + holder->Name() + ".",
                         [this] { return AllOthers([this](Computer& each) { return LetsGoOfRole(each); }); });
}

bool Story::OpenSession() {
    telling.Happens("On c01 the session is opened, and COM1 is tuned to a RogerWilco channel.");
    simulator.OpenSession();
    return telling.Comes(holder->Name() + " starts its voice program: voice-program" + Join,
                         [this] { return OneHolds(); });
}

bool Story::Talk() {
    telling.Happens("F8, push-to-talk, goes down on the keyboard of c01.");
    simulator.PressTalkKey();
    if (!telling.Comes(
            "On " + holder->Name() + " the voice program's talk key F12 goes down, on the others nothing.", [this] {
                return HasTalkKeyDown(*holder) && AllOthers([](Computer& each) { return each.KeysDown().empty(); });
            }))
        return false;
    telling.Happens("F8 comes up.");
    simulator.ReleaseTalkKey();
    return telling.Comes("The talk key is up.", [this] { return holder->KeysDown().empty(); });
}

bool Story::LoseHolder() {
    Computer& lost = *holder;
    SetUpWatch& watch = simulator.Watch();
    telling.Happens(lost.Name() + " is lost, as if its power were cut: its programs stand still and say no goodbye.");
    lost.StandStill();
    const auto takenOver = [this] {
        return holder->Name() + " has taken the role over, and starts its voice program.";
    };
    if (!telling.Comes(lost.Name() + " counts as gone, three seconds after its last beat, and its record with it.",
                       [&] { return watch.PanelBeats(lost.Identity) == 0; }) ||
        !telling.Comes(takenOver, [this] { return FindHolder() && OneHolds(); }))
        return false;
    // Two may have claimed it in the same instant; who does so has said it by its next beat.
    std::map<int, Long> beats;
    for (const auto& each : computers) beats[each->Identity] = watch.PanelBeats(each->Identity);
    const auto haveAllBeaten = [&] {
        return std::ranges::all_of(computers, [&](const auto& each) {
            return each.get() == &lost || watch.PanelBeats(each->Identity) > beats[each->Identity];
        });
    };
    const auto settled = [this] { return "Both others have beaten since, and " + holder->Name() + " alone holds it."; };
    if (!telling.Comes(settled, [&] { return haveAllBeaten() && FindHolder() && OneHolds(); })) return false;
    lost.BreakDown();
    return true;
}

bool Story::ComeBack() {
    Computer& back = *computers.front();
    telling.Happens(back.Name() + ", whose programs were killed meanwhile, is switched on again.");
    back.Desktop.SwitchOn();
    if (!telling.Comes("Its display is there.", [&] { return back.IsOn(); })) return false;
    telling.Happens("Its panel is started.");
    back.StartPanel();
    return telling.Comes(back.Name() +
                             " is there, has ended the record that it left behind, and finds the role held by " +
                             holder->Name() + ".",
                         [&] { return LetsGoOfRole(back); });
}

bool Story::AllOthers(const std::function<bool(Computer&)>& isSo) {
    return std::ranges::all_of(computers, [&](const auto& each) { return each.get() == holder || isSo(*each); });
}

bool Story::FindHolder() {
    const std::vector<int> holders = simulator.Watch().Holders(Role);
    if (holders.size() == 1) holder = computers[static_cast<std::size_t>(holders.front() - FirstIdentity)].get();
    return holders.size() == 1;
}

bool Story::OneHolds() {
    return simulator.Watch().Holders(Role) == std::vector{holder->Identity} && HasVoiceJoined(*holder) &&
           AllOthers([this](Computer& each) {
               return simulator.Watch().PanelBeats(each.Identity) == 0 || !HasVoiceJoined(each);
           });
}

bool Story::LetsGoOfRole(Computer& computer) {
    return simulator.Watch().PanelBeats(computer.Identity) >= BeatsOfComing &&
           !simulator.Watch().KeepsRecordOf(computer.Identity) && computer.ShowsPanel() &&
           simulator.Watch().Holders(Role) == std::vector{holder->Identity};
}

bool Story::TakePicture(const std::string& name) {
    std::vector<CaptionedScreen> screens;
    for (const auto& each : computers)
        screens.push_back({ToQt(each->Name()), ToQt(StateOf(*each)), each->Desktop.Screen()});
    const QString file = pictures.filePath(ToQt(name));
    const bool isKept = SideBySide(screens).save(file);
    telling.Happens((isKept ? "Picture: " : "This picture can't be written: ") + FromQt(file));
    return isKept;
}

std::string Story::StateOf(Computer& computer) {
    if (!computer.IsOn()) return "is without power";
    if (&computer == holder) return "holds the role " + Role + " and talks";
    return "finds the role held by " + holder->Name();
}

}  // namespace orvelle
