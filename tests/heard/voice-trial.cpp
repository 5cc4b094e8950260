// Runs the voice engine that is heard without a panel: loaded as the panel loads it, told what to do by lines of its
// input, telling its events by lines of its output. For the tests and trials that listen to it.
//
//   voice-trial MODULE FOLDER MICROPHONE HEADSET SPEAKERS     the sound server's names; - is its default device
//
//   start | stop | quit | join ROOM NAME ADDRESS | leave ROOM | mute ROOM 0|1 | route ROOM OUTPUT 0|1
//   volume OUTPUT PERCENT | signal OUTPUT PERCENT | filter OUTPUT 0|1 | squelch INPUT OUTPUT | works
//   count OUTPUT           answers: counted PLAYED RESTORED CONCEALED LATE LEFT-OUT
//   sleep MILLISECONDS     of the panel's thread alone
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <functional>
#include <iostream>
#include <map>
#include <memory>
#include <sstream>
#include <thread>
#include <vector>

#include "adapters/linux/PollEventLoop.h"
#include "apps/OwnModules.h"
#include "apps/voice/VoiceModule.h"

using namespace orvelle;

namespace {

class NamedDevices : public VoiceDevices {
public:
    NamedDevices(std::string microphoneName, std::vector<std::string> outputNames)
        : microphone(std::move(microphoneName)), outputs(std::move(outputNames)) {}

    std::string InputNames() const override { return microphone + "\n"; }
    std::string OutputNames() const override { return outputs[0] + "\n" + outputs[1] + "\n"; }
    std::string Microphone(Long) const override { return Named(microphone); }
    std::string Output(Long device) const override {
        return device < 0 ? "" : Named(outputs.at(static_cast<std::size_t>(device)));
    }

private:
    static std::string Named(const std::string& name) { return name == "-" ? "" : name; }

    const std::string microphone;
    const std::vector<std::string> outputs;
};

class NoDialogs : public VoiceDialogs {
public:
    std::optional<Squelch> Calibrate(VoiceTrial&, const Squelch&) override { return {}; }
    Ticket AskPassword(const std::string& server, PasswordQuestion,
                       std::function<void(const std::optional<std::string>&)>) override {
        std::cout << "password " << server << std::endl;
        return {};
    }
};

void Tell(const std::string& what) { std::cout << what << std::endl; }

void TellEvents(HeardVoiceEngine& engine) {
    engine.VVL_Started = [] { Tell("started"); };
    engine.VVL_Stopped = [] { Tell("stopped"); };
    engine.VVL_RoomJoinSucceed = [](Long room) { Tell("joined " + std::to_string(room)); };
    engine.VVL_RoomJoinFailed = [&](Long room) {
        Tell("failed " + std::to_string(room) + " " + engine.RoomStatus(room));
    };
    engine.VVL_RoomKicked = [](Long room) { Tell("kicked " + std::to_string(room)); };
    engine.VVL_RoomLeft = [](Long room) { Tell("left " + std::to_string(room)); };
    engine.VVL_RoomAudioStarted = [](Long room) { Tell("audio " + std::to_string(room)); };
    engine.VVL_RoomAudioStopped = [](Long room) { Tell("quiet " + std::to_string(room)); };
    engine.VVL_RoomStatusChanged = [&](Long room) {
        Tell("status " + std::to_string(room) + " " + engine.RoomStatus(room));
    };
    engine.Told = [](const std::string& sentence) { Tell("told " + sentence); };
}

using Command = std::function<void(std::istream&)>;

template <typename Value>
Value Next(std::istream& words) {
    Value value{};
    words >> value;
    return value;
}

std::map<std::string, Command> CommandsFor(HeardVoiceEngine& engine, linux::PollEventLoop& loop) {
    return {
        {"start", [&](std::istream&) { Tell(engine.Start(EngineMode) ? "accepted" : "refused"); }},
        {"stop", [&](std::istream&) { engine.Stop(); }},
        {"quit", [&](std::istream&) { loop.Stop(); }},
        {"join",
         [&](std::istream& words) {
             const Long room = Next<Long>(words);
             const auto name = Next<std::string>(words);
             if (!engine.RoomJoin(room, name, Next<std::string>(words)))
                 Tell("refused " + std::to_string(room) + " " + engine.RoomStatus(room));
         }},
        {"leave", [&](std::istream& words) { engine.RoomLeave(Next<Long>(words)); }},
        {"mute",
         [&](std::istream& words) {
             const Long room = Next<Long>(words);
             engine.RoomMute(room, Next<int>(words) != 0);
         }},
        {"route",
         [&](std::istream& words) {
             const Long room = Next<Long>(words);
             const Long output = Next<Long>(words);
             engine.ChannelOutput(room, output, Next<int>(words) != 0);
         }},
        {"volume",
         [&](std::istream& words) {
             const Long output = Next<Long>(words);
             engine.OutputVolume(output, Next<Long>(words));
         }},
        {"signal",
         [&](std::istream& words) {
             const Long output = Next<Long>(words);
             engine.SignalVolume(output, Next<Long>(words));
         }},
        {"filter",
         [&](std::istream& words) {
             const Long output = Next<Long>(words);
             engine.OutputFilter(output, Next<int>(words) != 0);
         }},
        {"squelch",
         [&](std::istream& words) {
             engine.InputSquelch(Next<double>(words));
             engine.OutputSquelch(Next<double>(words));
         }},
        {"works",
         [&](std::istream&) {
             Tell("works " + std::to_string(engine.InputStatus()) + " " + std::to_string(engine.OutputStatus(Headset)) +
                  " " + std::to_string(engine.OutputStatus(Speakers)));
         }},
        {"count",
         [&](std::istream& words) {
             engine.Count(Next<Long>(words), [](const speech::BlockCounts& counts) {
                 std::cout << "counted " << counts.Played << ' ' << counts.Restored << ' ' << counts.Concealed << ' '
                           << counts.Late << ' ' << counts.LeftOut << std::endl;
             });
         }},
        {"sleep",
         [&](std::istream& words) {
             std::this_thread::sleep_for(std::chrono::milliseconds(Next<int>(words)));
             Tell("slept");
         }},
    };
}

// Whole lines of what can be read now; the end of the input ends the program.
class Lines {
public:
    // False at the end.
    bool Read(const std::function<void(const std::string&)>& take) {
        char piece[4096];
        const ssize_t got = read(STDIN_FILENO, piece, sizeof piece);
        if (got <= 0) return false;
        text.append(piece, static_cast<std::size_t>(got));
        for (std::size_t end = text.find('\n'); end != std::string::npos; end = text.find('\n')) {
            const std::string line = text.substr(0, end);
            text.erase(0, end + 1);
            take(line);
        }
        return true;
    }

private:
    std::string text;
};

}  // namespace

int main(int count, char** words) {
    if (count != 6) {
        std::cerr << "usage: voice-trial MODULE FOLDER MICROPHONE HEADSET SPEAKERS\n";
        return EXIT_FAILURE;
    }
    linux::PollEventLoop loop;
    NamedDevices devices(words[3], {words[4], words[5]});
    NoDialogs dialogs;
    std::string why;
    auto* const make = FunctionOf<NewOrvelleVoiceEngineFunction>(words[1], "NewOrvelleVoiceEngine", why);
    if (!make) {
        std::cerr << "voice-trial: " << why << '\n';
        return EXIT_FAILURE;
    }
    const std::unique_ptr<HeardVoiceEngine> engine(make(loop, devices, dialogs, words[2]));
    TellEvents(*engine);
    engine->InputDevice(0);
    engine->OutputDevice(Headset, 0);
    engine->OutputDevice(Speakers, 1);
    const auto commands = CommandsFor(*engine, loop);
    Lines lines;
    const Ticket input = loop.WhenReadable(STDIN_FILENO, [&] {
        if (!lines.Read([&](const std::string& line) {
                std::istringstream said(line);
                const auto command = commands.find(Next<std::string>(said));
                command == commands.end() ? Tell("no command: " + line) : command->second(said);
            }))
            loop.Stop();
    });
    loop.Run();
    return EXIT_SUCCESS;
}
