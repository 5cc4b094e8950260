// A member of the set-up whose programs go wild: so many messages a second, of which every other one breaks a rule. It
// is there as panel and as simulator's program, so that what it says counts. Tells "flooding" when it begins, and
// "flooded COUNT" when the broker has taken all of it. Ends with its input.
//
//   floods-broker SETUP.JSON MESSAGES-A-SECOND SECONDS
#include <algorithm>
#include <cstdlib>

#include "adapters/linux/PollEventLoop.h"
#include "adapters/mqtt/Member.h"
#include "tests/hosts/TellsAndAsks.h"

namespace orvelle::hosts {
namespace {

using mqtt::Member;
using mqtt::Retain;
using mqtt::TopicKind;

constexpr Long TurnMilliseconds = 10;
constexpr Long Records = 50;

class Flood {
public:
    Flood(EventLoop& eventLoop, const mqtt::SetUpSetting& setUp, long long messagesEachSecond, long long seconds)
        : loop(eventLoop),
          pace(messagesEachSecond),
          whole(messagesEachSecond * seconds),
          panel(eventLoop, mqtt::Program::Panel, {}, [] { return Presence(); }),
          simulator(eventLoop, mqtt::Program::Simulator, {{OwnWrites(setUp), 1}}, [] { return Presence(); }) {
        panel.Came = simulator.Came = [this] {
            if (panel.IsThere() && simulator.IsThere() && said == 0) Begin();
        };
        simulator.Heard = [this](const mqtt::Topic&, const std::string&) { Tell("flooded " + std::to_string(said)); };
        panel.Open(setUp, setUp.Host);
        simulator.Open(setUp, setUp.Host);
    }

private:
    // It offers both links, but a lower identity serves them.
    static mqtt::PresenceSetting Presence() {
        return {.Name = "FLOOD", .Address = "", .Desktop = "none", .OffersSimulator = true, .OffersFramework = true};
    }
    static std::string OwnWrites(const mqtt::SetUpSetting& setUp) {
        return mqtt::WriteTopic(
            {.Identity = setUp.Identity, .From = mqtt::Program::Simulator, .Kind = TopicKind::Write, .Record = 0});
    }

    void Begin() {
        Tell("flooding");
        begun = Microseconds();
        Turn();
    }

    void Turn() {
        const long long due = std::min(whole, (Microseconds() - begun) * pace / 1'000'000);
        while (said < due) SayOne(said++);
        // What it asks of the broker last comes back when all before it was taken.
        if (said == whole)
            simulator.Say(TopicKind::Write, R"({"to":"c01","record":1,"numbers":{},"texts":{}})", 1, Retain::No);
        else
            next = loop.After(TurnMilliseconds, [this] { Turn(); });
    }

    void SayOne(long long number) {
        const std::string value = std::to_string(number % 1000);
        const Long record = static_cast<Long>(number / 10 % Records) + 1;
        const std::string ofType = R"({"type":"VOICE","role":"flood",)";
        switch (number % 10) {
            case 0:
                return simulator.Say(TopicKind::Input,
                                     R"({"number":)" + value + R"(1,"active":true,"keys":["F8"],"buttons":[]})", 0,
                                     Retain::No);
            case 2:
                return panel.Say(TopicKind::Record, ofType + R"("numbers":{"1":)" + value + "}}", 0, Retain::Yes,
                                 record);
            case 4:
                return panel.Say(TopicKind::Play, R"({"to":"c01","sound":"Tessaly\\RADIO_ONCHANNEL.wav"})", 0,
                                 Retain::No);
            case 6:
                return panel.Say(TopicKind::Write,
                                 R"({"to":"c02","record":1,"numbers":{"9":)" + value + R"(},"texts":{}})", 0,
                                 Retain::No);
            // A record that comes and goes.
            case 8:
                return panel.Say(TopicKind::Record, number % 20 == 8 ? ofType + R"("numbers":{}})" : "", 0, Retain::Yes,
                                 Records + record);
            case 1:
            case 5:
                return simulator.Say(TopicKind::Input, R"({"number":1,"active":true,"keys":["F8","F8"]})", 0,
                                     Retain::No);
            case 3:
                return panel.Say(TopicKind::Record, "{", 0, Retain::No, record);
            case 7:
                return panel.Say(TopicKind::Write, R"({"to":"c02","record":70000,"numbers":{}})", 0, Retain::No);
            default:
                return panel.Say(TopicKind::Play, std::string(1000, '['), 0, Retain::No);
        }
    }

    EventLoop& loop;
    const long long pace;
    const long long whole;
    long long begun = 0;
    long long said = 0;
    Member panel;
    Member simulator;
    Ticket next;
};

}  // namespace
}  // namespace orvelle::hosts

int main(int count, char** words) {
    using namespace orvelle;
    const auto [setUp, sentence] = mqtt::ReadSetUpFile(count == 4 ? words[1] : "");
    if (!setUp) {
        std::cerr << "floods-broker: no set-up: " << sentence << std::endl;
        return EXIT_FAILURE;
    }
    linux::PollEventLoop loop;
    const hosts::Flood flood(loop, *setUp, std::atoll(words[2]), std::atoll(words[3]));
    const hosts::Commands commands(
        loop, [](std::istringstream&) {}, [&] { loop.Stop(); });
    loop.Run();
    return EXIT_SUCCESS;
}
