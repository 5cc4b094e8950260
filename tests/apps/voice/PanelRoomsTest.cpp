#include "apps/voice/PanelRooms.h"

#include <gtest/gtest.h>

#include <vector>

#include "adapters/embedded/SoundDevices.h"
#include "adapters/embedded/VoiceEngine.h"
#include "tests/shared/EngineEvents.h"
#include "tests/shared/HandLoop.h"

namespace orvelle {
namespace {

using Texts = std::vector<std::string>;
using What = RoomHappening;

class PanelRoomsTest : public testing::Test {
protected:
    unsigned long Join(Long room) {
        rooms.Leave(room);
        return rooms.Join(room, "ABC123", "srv/ops");
    }
    unsigned long Enter(Long room) {
        const unsigned long attempt = Join(room);
        Take(room, attempt, What::Joined);
        Run();
        return attempt;
    }
    void Take(Long room, unsigned long attempt, What what, const std::string& status = "") {
        rooms.Take({room, attempt, what, status});
    }
    Texts Run() {
        loop.Run();
        return events.Take();
    }

    HandLoop loop;
    embedded::SoundDevices devices;
    embedded::VoiceEngine engine{loop, devices};  // whose events are raised
    EngineEvents events{engine};
    PanelRooms rooms{engine, [this](std::function<void()> event) { loop.Post(std::move(event)); }};
};

TEST_F(PanelRoomsTest, AJoinHasItsOutcomeFromTheLoop) {
    const unsigned long attempt = Join(1);
    EXPECT_EQ(rooms.At(1).Presence, RoomPresence::Joining);
    Take(1, attempt, What::StatusChanged, "Joining ops");
    Take(1, attempt, What::Joined);
    EXPECT_TRUE(events.Seen().empty());
    EXPECT_EQ(rooms.At(1).Presence, RoomPresence::In);
    EXPECT_EQ(Run(), (Texts{"Status 1", "AudioStarted", "JoinSucceed 1"}));
    EXPECT_EQ(rooms.At(1).Status, "Joining ops");
    Take(1, attempt, What::Joined);
    EXPECT_TRUE(Run().empty()) << "it is in";
}

TEST_F(PanelRoomsTest, NothingOfAJoinThatWasGivenUpIsHeardOfAnyMore) {
    const unsigned long first = Join(0);
    const unsigned long second = Join(0);
    EXPECT_NE(first, second);
    for (const What late :
         {What::StatusChanged, What::Joined, What::AudioStarted, What::Left, What::Failed, What::Kicked})
        Take(0, first, late, "late");
    EXPECT_TRUE(Run().empty());
    EXPECT_EQ(rooms.At(0).Presence, RoomPresence::Joining);
    rooms.Leave(0);
    Take(0, second, What::Joined);
    EXPECT_TRUE(Run().empty());
    EXPECT_EQ(rooms.At(0).Presence, RoomPresence::Out);
}

TEST_F(PanelRoomsTest, AnOutcomeThatIsOnItsWayWhenTheRoomIsLeftIsNotBrought) {
    Take(0, Join(0), What::Joined);
    rooms.Leave(0);
    EXPECT_EQ(Run(), (Texts{"AudioStarted", "AudioStopped", "Left 0"}));
    Take(0, Join(0), What::Failed);
    rooms.Leave(0);
    EXPECT_TRUE(Run().empty());
}

TEST_F(PanelRoomsTest, WhoComesBackAtOnceHasNotLeft) {
    Enter(2);
    Take(2, Join(2), What::Joined);
    EXPECT_EQ(Run(), (Texts{"AudioStopped", "AudioStarted", "JoinSucceed 2"}));
}

TEST_F(PanelRoomsTest, ARoomThatIsLostIsLeftAndJoinedAgainByItself) {
    const unsigned long attempt = Enter(0);
    Take(0, attempt, What::AudioStarted);
    Take(0, attempt, What::StatusChanged, "Reconnecting");
    EXPECT_EQ(Run(), (Texts{"RoomAudioStarted 0", "Status 0"}));
    Take(0, attempt, What::Left);
    EXPECT_EQ(Run(), (Texts{"RoomAudioStopped 0", "AudioStopped", "Left 0"}));
    EXPECT_EQ(rooms.At(0).Status, "Reconnecting");
    Take(0, attempt, What::Joined);
    EXPECT_EQ(Run(), (Texts{"AudioStarted", "JoinSucceed 0"}));
    Take(0, attempt, What::Left);
    Take(0, attempt, What::Failed);
    EXPECT_EQ(Run(), (Texts{"AudioStopped", "Left 0", "JoinFailed 0"}));
}

TEST_F(PanelRoomsTest, AKickAndAFailureAreTold) {
    Take(1, Enter(1), What::Kicked);
    EXPECT_EQ(Run(), (Texts{"AudioStopped", "Kicked 1"}));
    EXPECT_EQ(rooms.At(1).Presence, RoomPresence::Out);
    Take(1, Join(1), What::Failed);
    EXPECT_EQ(Run(), Texts{"JoinFailed 1"});
}

TEST_F(PanelRoomsTest, TheRoomBeforeThatIsLeftOnTheWayToTheNextIsNoEvent) {
    Enter(0);
    const unsigned long next = Join(0);
    Run();
    Take(0, next, What::Left);
    EXPECT_TRUE(Run().empty());
    EXPECT_EQ(rooms.At(0).Presence, RoomPresence::Joining);
}

TEST_F(PanelRoomsTest, TheAudioOfTheEngineRunsFromTheFirstRoomToTheLast) {
    Enter(0);
    Take(1, Join(1), What::Joined);
    EXPECT_EQ(Run(), Texts{"JoinSucceed 1"});
    rooms.Leave(0);
    EXPECT_EQ(Run(), Texts{"Left 0"});
    EXPECT_TRUE(rooms.AudioRuns());
    rooms.Leave(1);
    EXPECT_EQ(Run(), (Texts{"AudioStopped", "Left 1"}));
}

TEST_F(PanelRoomsTest, AudioStopsAlsoWhereTheRoomIsLeftForAnotherOne) {
    Take(0, Enter(0), What::AudioStarted);
    Run();
    Join(0);
    EXPECT_EQ(Run(), (Texts{"RoomAudioStopped 0", "AudioStopped"}));
}

TEST_F(PanelRoomsTest, ARefusalIsASentenceThatGoesWithTheRoom) {
    rooms.Refuse(2, "ABC123", "srv", "There is no channel.");
    EXPECT_EQ(rooms.At(2).Address, "srv");
    EXPECT_EQ(Run(), Texts{"Status 2"});
    EXPECT_EQ(rooms.At(2).Status, "There is no channel.");
    rooms.Leave(2);
    EXPECT_EQ(Run(), Texts{"Status 2"});
    EXPECT_EQ(rooms.At(2).Status, "");
    EXPECT_EQ(rooms.Find(3), nullptr);
    EXPECT_EQ(rooms.Find(-1), nullptr);
    Take(3, 0, What::Joined);
    EXPECT_TRUE(Run().empty());
}

TEST_F(PanelRoomsTest, AStoppedEngineKnowsWhatWasSetAndNothingElse) {
    const unsigned long attempt = Enter(0);
    rooms.Find(0)->Muted = false;
    rooms.Find(0)->Output[1] = true;
    rooms.Clear();
    Take(0, attempt, What::AudioStarted);
    EXPECT_TRUE(Run().empty());
    EXPECT_EQ(rooms.At(0).Presence, RoomPresence::Out);
    EXPECT_FALSE(rooms.AudioRuns());
    EXPECT_FALSE(rooms.At(0).Muted);
    EXPECT_TRUE(rooms.At(0).Output[1]);
}

TEST_F(PanelRoomsTest, WhyARoomCantBeHadIsToldOnceUntilItIsJoinedOrThereIsAnotherReason) {
    Texts told;
    rooms.Told = [&told](const std::string& sentence) { told.push_back(sentence); };
    const auto fail = [this](Long room, What what, const std::string& why) {
        const unsigned long attempt = Join(room);
        Take(room, attempt, What::StatusChanged, why);
        Take(room, attempt, what);
        Run();
    };
    fail(0, What::Failed, "The server is full.");
    fail(0, What::Failed, "The server is full.");
    fail(1, What::Failed, "The server is full.");
    fail(0, What::Failed, "The password is wrong.");
    Enter(0);
    fail(0, What::Kicked, "The password is wrong.");
    rooms.Refuse(2, "ABC123", "srv", "There is no channel.");
    rooms.Refuse(2, "ABC123", "srv", "There is no channel.");
    Run();
    EXPECT_EQ(told, (Texts{"COM1: The server is full.", "COM2: The server is full.", "COM1: The password is wrong.",
                           "COM1: The password is wrong.", "The private room: There is no channel."}));
}

}  // namespace
}  // namespace orvelle
