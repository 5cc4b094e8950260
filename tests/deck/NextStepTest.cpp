// The line that says what to try next follows what is there.
#include "deck/FirstFlight.h"
#include "platform/VoiceRoles.h"
#include "tests/deck/DeckRig.h"

namespace orvelle {
namespace {

class DeckNextStep : public DeckRig {
protected:
    // What the panel does when the user ticks a software.
    void Hold(const char* role) {
        tessaly.CreateInterface(VoiceRecordType, role);
        tessaly.CloseInterface();
        Settle();
    }
    void ExpectStep(const char* words) {
        Settle();
        const QString step = TextOf("NextStep");
        EXPECT_TRUE(step.startsWith("Try this: ") && step.contains(words)) << step.toStdString();
    }
};

TEST_F(DeckNextStep, LeadsFromTheLinksToTheMicrophone) {
    ExpectStep("tick Simulator link and Network link");
    ConnectAll();
    ExpectStep("Session open");
    PrepareFirstFlight(setUp.Sides());
    ExpectStep("\"Enable VATSIM Voice on this computer\"");
    Hold(EngineRole);
    ExpectStep("as Software VATSIM, then any Server");
    Pick("SoftwareCOM1", 3);
    Type("ServerCOM1", "voice.example");
    Type("ChannelCOM1", "tower");
    setUp.VVL.Start(3);
    Settle();
    setUp.VVL.RoomJoin(0, "ORV123", "voice.example/tower");
    ExpectStep("Set beside FS PTT Key Mapping");
    setUp.VVL.RoomMute(0, false);
    ExpectStep("let go of the key");
    setUp.VVL.RoomMute(0, true);
    ExpectStep("Set beside FS PTT Key Mapping");
}

TEST_F(DeckNextStep, LeadsWhoTickedAnotherSoftwareToItsKeys) {
    tessaly.LinkStart();
    PrepareFirstFlight(setUp.Sides());
    Settle();
    Hold(RogerWilcoCom1Role);
    ExpectStep("its Software, then any Server");
    Pick("SoftwareCOM1", 1);
    ExpectStep("its Software, then any Server");
    Type("ServerCOM1", "voice.example");
    ExpectStep("on the panel's page of that software set both");
    Pick("SoftwareCOM1", 2);
    ExpectStep("its Software, then any Server");
}

}  // namespace
}  // namespace orvelle
