// What keeps keys from being pressed or let go is told in one sentence, once until it is over.
#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>

#include "adapters/linux/X11Keyboard.h"
#include "tests/linux/KeysDownTest.h"
#include "tests/linux/WaitUntil.h"
#include "tests/shared/HandLoop.h"

namespace orvelle::linux {
namespace {

using Sentences = std::vector<std::string>;

constexpr const char* NoServer = "There is no X server to reach, so no key can be pressed on this computer.";

class KeyProblems : public testing::Test {
protected:
    // A keyboard whose sentences are gathered.
    X11Keyboard& Keyboard(const std::string& display, const std::string& guard = KEY_GUARD) {
        keyboard = std::make_unique<X11Keyboard>(loop, display, guard);
        keyboard->Keys.Told = [this](const std::string& sentence) { told.push_back(sentence); };
        return *keyboard;
    }
    void Press(Long code) { keyboard->keybd_event(0, code, 0, 0); }
    void Release(Long code) { keyboard->keybd_event(0, code, KeyEventUp, 0); }

    HandLoop loop;
    Sentences told;
    std::unique_ptr<X11Keyboard> keyboard;
};

TEST_F(KeyProblems, WithoutAServerIsOneSentence) {
    Keyboard(":65000").Keys.Begin();
    EXPECT_EQ(told, Sentences{NoServer});
    Press(29);
    Release(29);
    keyboard->Keys.ReleaseAll();
    EXPECT_EQ(told.size(), 1U);
    EXPECT_TRUE(loop.Idle());
}

TEST_F(KeyProblems, WithoutTheTestExtensionIsOneSentence) {
    XServer server({"-extension", "XTEST"});
    Keyboard(server.Display()).Keys.Begin();
    Press(29);
    EXPECT_EQ(told, Sentences{"The X server lacks the XTEST extension, so no key can be pressed on this computer."});
    EXPECT_EQ(keyboard->GetKeyNameTextA(30 << 16, 255), "A");
}

TEST_F(KeyProblems, OfALostServerIsOneSentence) {
    XServer server;
    Keyboard(server.Display());
    Press(29);
    EXPECT_EQ(told, Sentences{});
    server.End();
    Release(29);
    Press(30);
    EXPECT_EQ(keyboard->GetKeyNameTextA(30 << 16, 255), "A");
    keyboard->Keys.ReleaseAll();
    EXPECT_EQ(told, Sentences{NoServer});
}

TEST_F(KeyProblems, OfAMissingGuardIsToldBeforeTheFirstKeyAndKeysWorkAllTheSame) {
    XServer server;
    XClient client(server.Display());
    Keyboard(server.Display(), "/nowhere/orvelle-key-guard").Keys.Begin();
    const Sentences expected{
        "The program /nowhere/orvelle-key-guard can't be started, so a key that is held down stays down if the panel "
        "is killed."};
    EXPECT_EQ(told, expected);
    Press(30);
    EXPECT_EQ(client.NextStrokes(1), (std::vector<SeenStroke>{{38, true}}));
    EXPECT_EQ(told, expected);
}

// Beats are a second apart, and there is none while no key is held.
TEST_F(KeyProblems, KeepTheLoopBusyOnlyWhileAKeyIsHeld) {
    XServer server;
    Keyboard(server.Display()).Keys.Begin();
    EXPECT_TRUE(loop.Idle());
    Press(29);
    loop.Run(10000);
    EXPECT_FALSE(loop.Idle());
    Release(29);
    loop.Run(1000);  // until the next beat
    EXPECT_TRUE(loop.Idle());
}

class GuardThatComesAndGoes : public KeysDownTest {
protected:
    GuardThatComesAndGoes() { EXPECT_NE(mkdtemp(folder.data()), nullptr); }
    ~GuardThatComesAndGoes() override { std::filesystem::remove_all(folder); }

    // The file is taken away and the process killed.
    void Lose(const ChildProcess& panel) {
        const pid_t guard = GuardOf(panel);
        std::filesystem::remove(File());
        kill(guard, SIGKILL);
    }
    void Bring() { std::filesystem::copy(KEY_GUARD, File()); }
    std::string File() const { return folder + "/guard"; }

    std::string folder = testing::TempDir() + "guard-XXXXXX";
};

TEST_F(GuardThatComesAndGoes, IsToldAgainWhenItIsMissingAnew) {
    Bring();
    const std::unique_ptr<ChildProcess> panel = NewPanel(File());
    panel->Ask("begin");
    const std::string sentence =
        "The program " + File() + " can't be started, so a key that is held down stays down if the panel is killed.\n";
    Lose(*panel);
    EXPECT_TRUE(WaitUntil([&] { return panel->Errors() == sentence; }));
    panel->Ask("down 1");
    EXPECT_EQ(panel->Errors(), sentence);

    // While a key is held it is looked for.
    Bring();
    EXPECT_TRUE(WaitUntil([&] { return GuardsOf(*panel).size() == 1; }));
    Lose(*panel);
    EXPECT_TRUE(WaitUntil([&] { return panel->Errors() == sentence + sentence; }));
}

}  // namespace
}  // namespace orvelle::linux
