// Whole panels on two computers: one in this process, on c03, and before it another one, a program on c02 with a
// display of its own, which holds the role until it is lost. Who takes a role over is the panel's own logic.
#include <QEventLoop>
#include <QTimer>
#include <csignal>
#include <filesystem>

#include "tests/endtoend/PanelTest.h"
#include "tests/hosts/HostsRig.h"
#include "tests/linux/XClient.h"
#include "tests/shared/HandLoop.h"

namespace orvelle::hosts {
namespace {

namespace fs = std::filesystem;

constexpr const char* PanelRole = "RWCom1";
constexpr int TalkKeyThere = orvelle::TalkKey + 8;  // as an X server numbers it

void Prepare(store::SqliteStore& store, const std::string& voiceProgram) {
    store.SaveSettingLong("OrvelleCP", "RWEnable", 1);
    store.SaveSettingString("OrvelleCP", "RWFSKey", HostsRig::TalkKey);
    store.SaveSettingString("OrvelleCP", "RWPTTKey", std::to_string(TalkKeyCode));
    store.SaveSettingString("OrvelleCP", "RWPath", '"' + voiceProgram + '"');
    store.HandlerEnded();
}

// The programs that have a host's network.
std::vector<pid_t> ProgramsOn(const Host& host) {
    std::vector<pid_t> programs;
    std::error_code failed;
    for (const auto& each : fs::directory_iterator("/proc")) {
        const std::string name = each.path().filename();
        if (name.find_first_not_of("0123456789") == std::string::npos &&
            fs::equivalent(each.path() / "ns/net", "/run/netns/" + host.Name(), failed) && !failed)
            programs.push_back(std::stoi(name));
    }
    return programs;
}

class RealPanelTest : public PanelTest, public HostsRig {
protected:
    RealPanelTest() { Prepare(house.Settings.Store, VoiceProgram()); }

    // A session that is tuned to a channel.
    void BringSession() {
        BringPlayedSimulator();
        played->Say("fly ABC123 118.300");
        ASSERT_TRUE(Comes([this] { return watcher.HasLinks(); }));
    }

    // The panel in this process.
    void OpenHere() {
        const std::string own = folder.filePath("setup.json").toStdString();
        ASSERT_EQ(mqtt::WriteSetUpFile(own, *mqtt::ReadSetUpFile(SetUpFileOf(3)).Setting), "");
        house.Open();
        ASSERT_TRUE(Comes([this] { return panel.Variables().SessionHandle != 0; }));
    }

    // The panel on c02, which joins by its code as a script would.
    void StartHolder() {
        const std::string data = folder.filePath("holder").toStdString();
        {
            HandLoop loop;
            store::SqliteStore store(loop, data + "/OrvelleCP/settings.sqlite",
                                     [](const std::string& sentence) { ADD_FAILURE() << sentence; });
            Prepare(store, VoiceProgram());
        }
        const mqtt::SetUpSetting setUp = *mqtt::ReadSetUpFile(SetUpFileOf(2)).Setting;
        const std::string code = mqtt::WriteJoinCode({setUp.Identity, setUp.Key});
        // Where a display's number is free is known by the network that its server is on, so both are on one.
        display = std::make_unique<linux::XServer>(std::vector<std::string>{"-screen", "0", "1280x1024x24"});
        eyes = std::make_unique<linux::XClient>(display->Display());
        const std::vector<std::string> environment{"env", "XDG_DATA_HOME=" + data, "XDG_RUNTIME_DIR=" + data,
                                                   "DISPLAY=" + display->Display()};
        const auto in = [&](std::vector<std::string> words) {
            words.insert(words.begin(), environment.begin(), environment.end());
            return two.Start(words);
        };
        ASSERT_TRUE(hosts::Run(in({SETUP_PROGRAM, "--join", code, "--host", one.Address()})));
        holder = std::make_unique<linux::ChildProcess>(in({PANEL_PROGRAM}));
        ASSERT_TRUE(Comes([this] { return HolderHasRole() && !VoiceCommands().empty(); }));
    }

    // Serves the loop as the panel's program does, without a pause.
    bool Comes(const std::function<bool()>& isSo) {
        QEventLoop loop;
        QTimer look;
        const long long end = Now() + 60 * Second;
        bool holds = false;
        look.callOnTimeout(&loop, [&] {
            TakeAll();
            holds = isSo();
            if (holds || Now() > end) loop.quit();
        });
        look.start(2);
        loop.exec();
        return holds;
    }
    bool HolderHasRole() const { return IdentitiesHolding() == std::set{2}; }
    bool RoleIsHere() { return panel.Variables().RWCom1 != 0 && IdentitiesHolding() == std::set{3}; }
    std::set<int> IdentitiesHolding() const {
        std::set<int> identities;
        for (const Long id : watcher.Holders(PanelRole)) identities.insert(mqtt::IdentityOf(id));
        return identities;
    }
    bool IsDownThere() {
        const std::vector<int> down = eyes->KeysDown();
        return std::ranges::find(down, TalkKeyThere) != down.end();
    }
    bool IsDownHere() { return user.SeesDown(orvelle::TalkKey); }

    // The talk key of the simulator's computer is the talk key of the one that holds the role, and of no other.
    void TryTalkKey(const std::function<bool()>& isDown, const std::function<bool()>& isDownElsewhere) {
        played->Say(std::string("press ") + HostsRig::TalkKey);
        EXPECT_TRUE(Comes(isDown));
        EXPECT_FALSE(isDownElsewhere());
        played->Say(std::string("release ") + HostsRig::TalkKey);
        EXPECT_TRUE(Comes([&] { return !isDown(); }));
    }

    // With push-to-talk held at the holder: what `lose` does to it lets go of the key there, and brings the role here.
    void LoseHolder(const std::function<void()>& lose, long long keyBound) {
        ASSERT_NO_FATAL_FAILURE(BringSession());
        ASSERT_NO_FATAL_FAILURE(StartHolder());
        ASSERT_NO_FATAL_FAILURE(OpenHere());
        ASSERT_TRUE(Comes([this] { return panel.Variables().ForeignRWCom1 != 0; }));
        EXPECT_EQ(panel.Variables().RWCom1, 0);
        played->Say(std::string("press ") + HostsRig::TalkKey);
        ASSERT_TRUE(Comes([this] { return IsDownThere(); }));
        EXPECT_FALSE(IsDownHere());
        const long long begin = Now();
        lose();
        long long letGo = 0;
        if (keyBound > 0) {
            ASSERT_TRUE(Comes([this] { return !IsDownThere(); }));
            letGo = Now() - begin;
            Print("the talk key is up on the holder's display", letGo);
            EXPECT_LT(letGo, keyBound);
        }
        ASSERT_TRUE(Comes([this] { return RoleIsHere(); }));
        Print("the role is taken over by the panel's logic", Now() - begin);
        EXPECT_LT(Now() - begin, std::max(letGo, 5 * Second) + Second);
        played->Say(std::string("release ") + HostsRig::TalkKey);
        TryTalkKey([this] { return IsDownHere(); }, [] { return false; });
    }

    // The holder is back, its key is up, and one of the two has the role.
    void FindOneHolder() {
        const long long begin = Now();
        const auto isSettled = [this] {
            return (RoleIsHere() || (HolderHasRole() && panel.Variables().RWCom1 == 0)) && !IsDownThere() &&
                   !IsDownHere();
        };
        ASSERT_TRUE(Comes(isSettled));
        // What would still come in the first seconds of a connection.
        ASSERT_TRUE(Comes([&] { return Now() > begin + 6 * Second; }));
        EXPECT_TRUE(Comes(isSettled));
        if (RoleIsHere())
            TryTalkKey([this] { return IsDownHere(); }, [this] { return IsDownThere(); });
        else
            TryTalkKey([this] { return IsDownThere(); }, [this] { return IsDownHere(); });
    }

    PanelThere& watcher = AddPanel(1);
    std::unique_ptr<linux::XServer> display;
    std::unique_ptr<linux::XClient> eyes;
    std::unique_ptr<linux::ChildProcess> holder;
};

using RealCutTest = RealPanelTest;
using RealKillTest = RealPanelTest;
using RealSleepTest = RealPanelTest;
using RealFloodTest = RealPanelTest;

TEST_F(RealCutTest, AHolderThatIsCutOffLetsGoOfItsTalkKeyAndLosesItsRole) {
    ASSERT_NO_FATAL_FAILURE(LoseHolder([this] { two.CutLink(); }, Second));
    two.HealLink();
    FindOneHolder();
}

TEST_F(RealKillTest, AHolderThatIsKilledLetsGoOfItsTalkKeyAndLosesItsRole) {
    ASSERT_NO_FATAL_FAILURE(LoseHolder([this] { holder->Kill(SIGKILL); }, Second));
}

TEST_F(RealKillTest, AHolderThatIsStoppedLetsGoOfItsTalkKeyAndLosesItsRole) {
    // The key guard waits for four seconds, as a panel may be slow.
    ASSERT_NO_FATAL_FAILURE(LoseHolder([this] { holder->Kill(SIGSTOP); }, 8 * Second));
    holder->Kill(SIGCONT);
    FindOneHolder();
}

TEST_F(RealSleepTest, AComputerThatSleepsWakesWithItsTalkKeyUpAndItsRoleHeld) {
    std::vector<pid_t> asleep;
    const auto sleep = [&] {
        asleep = ProgramsOn(two);
        asleep.push_back(display->Id());
        for (const pid_t program : asleep) kill(program, SIGSTOP);
    };
    ASSERT_NO_FATAL_FAILURE(LoseHolder(sleep, 0));
    EXPECT_GE(asleep.size(), 3U) << "panel, guard and X server";
    const long long end = Now() + 14 * Second;
    ASSERT_TRUE(Comes([&] { return Now() > end; }));
    const long long awake = Now();
    for (const pid_t program : asleep) kill(program, SIGCONT);
    ASSERT_TRUE(Comes([this] { return !IsDownThere(); }));
    Print("the talk key is up after the computer woke", Now() - awake);
    FindOneHolder();
    EXPECT_TRUE(RoleIsHere()) << "it was held by then";
}

TEST_F(RealFloodTest, AClickIsAnsweredAndPushToTalkServedUnderAFlood) {
    ASSERT_NO_FATAL_FAILURE(BringSession());
    ASSERT_NO_FATAL_FAILURE(OpenHere());
    ASSERT_TRUE(Comes([this] { return RoleIsHere(); }));
    ShowPage("Options");
    QWidget& box = OfPanel("VoiceTuningSound");
    ASSERT_TRUE(ComesTrue([&] { return box.isVisible(); }));
    const long before = MemoryOf(getpid());
    ProgramThere flood(two, {FLOODS_BROKER, SetUpFileOf(4), "10000", "10"});
    const auto tells = [&](const std::string& text) {
        flood.Take();
        return flood.Told(text).has_value();
    };
    ASSERT_TRUE(Comes([&] { return tells("flooding"); }));
    std::vector<long long> clicks, talks;
    while (!tells("flooded 100000")) {
        const Long ticked = panel.VoiceTuningSound.Value;
        long long begin = Now();
        user.Click(box);
        ASSERT_TRUE(Comes([&] { return panel.VoiceTuningSound.Value != ticked; }));
        clicks.push_back(Now() - begin);
        for (const bool isDown : {true, false}) {
            begin = Now();
            played->Say((isDown ? "press " : "release ") + std::string(HostsRig::TalkKey));
            ASSERT_TRUE(Comes([&] { return IsDownHere() == isDown; }));
            talks.push_back(Now() - begin);
        }
    }
    std::ranges::sort(clicks);
    std::ranges::sort(talks);
    Print("a click is answered, median of " + std::to_string(clicks.size()), clicks[clicks.size() / 2]);
    Print("a click is answered, at worst", clicks.back());
    Print("push-to-talk to the key here, median of " + std::to_string(talks.size()), talks[talks.size() / 2]);
    Print("push-to-talk to the key here, at worst", talks.back());
    ExpectNoMoreMemory("the panel", before, MemoryOf(getpid()));
    EXPECT_LT(clicks.back(), Second);
    EXPECT_LT(talks.back(), Second);
    EXPECT_TRUE(RoleIsHere());
}

}  // namespace
}  // namespace orvelle::hosts
