// Our voice engine as it is heard: microphone to ear, over a real voice server and a real sound server.
#include "tests/heard/EngineRig.h"

#include <iostream>

#include "tests/heard/StockClient.h"

namespace orvelle::heard {

namespace {

class EngineTest : public EngineRig {};

}  // namespace

TEST_F(EngineTest, EveryBurstIsHeard) {
    Trial speaker(0);
    Trial listener(1);
    ASSERT_TRUE(speaker.Join(0, server.Room("122.8"))) << speaker.Told();
    ASSERT_TRUE(listener.Join(0, server.Room("122.8"))) << listener.Told();
    speaker.Say("mute 0 0");
    const HeardBursts heard = Hear(0, 1, 12);
    std::cout << "ours to ours: " << heard.Text() << '\n';
    EXPECT_EQ(heard.Lost, 0);
    EXPECT_LE(heard.OursInTheMedian(), MostOfOurs);
}

TEST_F(EngineTest, StockClientHearsUsAndWeHearIt) {
    Trial ours(0);
    ASSERT_TRUE(ours.Join(0, server.Room("unicom"))) << ours.Told();
    StockClient stock({.Name = "stock",
                       .Host = server.Host(),
                       .Port = server.Port(),
                       .Channel = "unicom",
                       .Microphone = Microphone(1),
                       .Output = SoundOfComputers::Output(1)});
    ASSERT_TRUE(server.HasLogged("Moved stock")) << stock.Said();
    const HeardBursts byUs = Hear(1, 0, 5);
    std::cout << "stock client to ours: " << byUs.Text() << '\n';
    ours.Say("mute 0 0");
    const HeardBursts byStock = Hear(0, 1, 5);
    std::cout << "ours to stock client: " << byStock.Text() << '\n';
    EXPECT_EQ(byUs.Lost, 0);
    EXPECT_EQ(byStock.Lost, 0);
}

}  // namespace orvelle::heard
