// The rig proves itself: two stock clients hear each other over a real voice server and a real sound server.
#include "tests/heard/StockClient.h"

#include <iostream>

#include "tests/heard/EngineRig.h"

namespace orvelle::heard {

namespace {

class StockClientTest : public EngineRig {
protected:
    StockUser UserOf(int computer) const {
        return {.Name = "stock" + std::to_string(computer),
                .Host = server.Host(),
                .Port = server.Port(),
                .Channel = "",
                .Microphone = Microphone(computer),
                .Output = SoundOfComputers::Output(computer)};
    }
};

}  // namespace

TEST_F(StockClientTest, TwoHearEachOther) {
    // One after the other: of two that start at once, one may open no output.
    StockClient first(UserOf(0));
    ASSERT_TRUE(server.HasLogged("Authenticated", 1)) << first.Said();
    StockClient second(UserOf(1));
    ASSERT_TRUE(server.HasLogged("Authenticated", 2)) << second.Said();
    for (const int speaker : {0, 1}) {
        const HeardBursts heard = Hear(speaker, 1 - speaker, 5);
        std::cout << "stock client to stock client: " << heard.Text() << '\n';
        EXPECT_EQ(heard.Lost, 0) << first.Said() << second.Said();
    }
}

}  // namespace orvelle::heard
