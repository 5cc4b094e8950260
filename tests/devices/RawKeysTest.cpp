#include "adapters/x11/RawKeys.h"

#include <optional>

#include "adapters/x11/XTestConnection.h"
#include "apps/UserStrokes.h"
#include "tests/devices/DeviceRig.h"
#include "tests/linux/XClient.h"
#include "tests/linux/XServer.h"

namespace orvelle {
namespace {

constexpr int ControlKey = 37;
constexpr int RightControlKey = 105;
constexpr int F8Key = 74;
constexpr int AKey = 38;
constexpr int YKey = 29;
constexpr int BracketKey = 34;
constexpr int KeypadEnterKey = 104;

class RawKeysTest : public DeviceRig {
protected:
    linux::XServer server;
    UserStrokes user{server.Display()};
    RawKeys keys{loop, side, server.Display()};
};

TEST_F(RawKeysTest, ReachTheLinkByTheNamesThatThePanelShowsInTheirOrder) {
    for (const int key : {ControlKey, F8Key}) user.Press(key);
    for (const int key : {F8Key, ControlKey}) user.Release(key);
    for (const int key : {RightControlKey, KeypadEnterKey, AKey}) user.Press(key);
    ASSERT_TRUE(Until([&] { return side.Said.size() == 7; }));
    EXPECT_EQ(side.Said,
              (Lines{"Ctrl", "Ctrl+F8", "Ctrl", "", "Right Ctrl", "Right Ctrl+Num Enter", "Right Ctrl+Num Enter+A"}));
    EXPECT_EQ(keys.Problem(), "");
}

TEST_F(RawKeysTest, OfProgramsAreNotTheUsers) {
    XTestConnection program(server.Display());
    for (const KeyStroke stroke : {KeyStroke::Down, KeyStroke::Up}) program.Send(AKey, stroke);
    program.Send(ControlKey, KeyStroke::Down);
    program.Finish();
    user.Press(F8Key);
    ASSERT_TRUE(Until([&] { return !side.Said.empty(); }));
    user.Release(F8Key);
    ASSERT_TRUE(Until([&] { return side.HeldSequence().empty(); }));
    EXPECT_EQ(side.Said, (Lines{"F8", ""}));
}

TEST_F(RawKeysTest, ComeWhileAnotherWindowHasThem) {
    linux::XClient other(server.Display());
    user.Press(AKey);
    EXPECT_EQ(other.NextStrokes(1), (std::vector<linux::SeenStroke>{{AKey, true}}));
    EXPECT_TRUE(Until([&] { return side.HeldSequence() == "A"; }));
}

TEST_F(RawKeysTest, AreNamedByTheLayoutWhereTheyAreLettersAndKeepTheirNamesWhileHeld) {
    user.Press(YKey);
    user.Press(BracketKey);
    ASSERT_TRUE(Until([&] { return side.HeldSequence() == "Y+["; }));
    server.SetLayout("de");  // where Y is Z, and the bracket a letter
    ASSERT_TRUE(Until([&] {
        user.Release(BracketKey);
        user.Press(BracketKey);
        return side.HeldSequence() == "Y+Ü";
    }));
    user.Release(BracketKey);
    user.Release(YKey);
    EXPECT_TRUE(Until([&] { return side.HeldSequence().empty(); }));
}

TEST_F(RawKeysTest, AreAllLetGoWithTheServer) {
    std::string told;
    keys.Told = [&](const std::string& sentence) { told = sentence; };
    user.Press(AKey);
    ASSERT_TRUE(Until([&] { return side.HeldSequence() == "A"; }));
    server.End();
    ASSERT_TRUE(Until([&] { return side.HeldSequence().empty(); }));
    EXPECT_EQ(told, "The connection to the X server is lost, so no key of this computer is read any more.");
    EXPECT_EQ(keys.Problem(), told);
}

using RawKeysAlone = DeviceRig;

TEST_F(RawKeysAlone, ThatAreHeldAtTheStartAreHeld) {
    linux::XServer server;
    UserStrokes user(server.Display());
    XTestConnection program(server.Display());
    user.Press(ControlKey);
    program.Send(AKey, KeyStroke::Down);
    program.Finish();
    const RawKeys keys(loop, side, server.Display());
    EXPECT_EQ(side.HeldSequence(), "Ctrl");
    user.Release(ControlKey);
    EXPECT_TRUE(Until([&] { return side.HeldSequence().empty(); }));
}

TEST_F(RawKeysAlone, WithoutAServerAreOneSentence) {
    const RawKeys keys(loop, side, ":65000");
    EXPECT_EQ(keys.Problem(), "There is no X server to reach, so no key of this computer is read.");
}

TEST_F(RawKeysAlone, LetGoOfAllAtTheirEnd) {
    linux::XServer server;
    UserStrokes user(server.Display());
    std::optional<RawKeys> keys(std::in_place, loop, side, server.Display());
    user.Press(AKey);
    ASSERT_TRUE(Until([&] { return side.HeldSequence() == "A"; }));
    keys.reset();
    EXPECT_EQ(side.HeldSequence(), "");
}

}  // namespace
}  // namespace orvelle
