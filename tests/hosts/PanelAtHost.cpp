// A panel without windows, by which many cases run fast: the real lines and ends of a panel that has joined a set-up,
// and of its logic the one rule by which a role is taken. Told are the links, keys and buttons as they go down and up,
// the session, and the records of its own and of others.
//
//   panel-at-host SETUP.JSON
//
//   want ROLE | leave ROLE     takes the role whenever nobody holds it, or does no more
//   set ROLE INDEX VALUE       in the record of that role, own or foreign
//   sound NAME                 asks for a sound
#include <map>

#include "adapters/ends/FrameworkEnd.h"
#include "adapters/ends/SimulatorEnd.h"
#include "adapters/mqtt/BrokerFrameworkLine.h"
#include "adapters/mqtt/BrokerSimulatorLine.h"
#include "platform/VoiceRoles.h"
#include "tests/hosts/TellsAndAsks.h"
#include "tests/shared/MemoryValues.h"

namespace orvelle::hosts {
namespace {

constexpr Long ToldParameters = 10;

struct Duty {
    bool Wanted = false;
    Long Own = 0;
    Long Foreign = 0;
};

class PanelAtHost {
public:
    PanelAtHost(EventLoop& loop, const mqtt::SetUpSetting& setUp)
        : brokers(loop, [] { return mqtt::PresenceSetting{.Name = "PANEL", .Address = "", .Desktop = "none"}; }),
          simulatorLine(loop, brokers),
          frameworkLine(loop, brokers),
          velmarc(loop, values, simulatorLines, {}),
          tessaly(loop, values, frameworkLines) {
        TellOfInput();
        TellOfSession();
        tessaly.InterfaceAppeared = [this](Long id) { Appeared(id); };
        tessaly.InterfaceRemoved = [this](Long id) { Removed(id); };
        tessaly.InterfaceParamChanged = [this](Long id, Long index) {
            if (tessaly.OpenInterface(id)) TellParameter(id, index);
        };
        brokers.Join(setUp);
        velmarc.ChooseLine();
        tessaly.LinkStart();
    }
    PanelAtHost(const PanelAtHost&) = delete;
    PanelAtHost& operator=(const PanelAtHost&) = delete;
    ~PanelAtHost() { brokers.SayGoodbye(); }

    void Take(std::istringstream& line) {
        std::string command, name;
        line >> command >> name;
        if (command == "want" || command == "leave") {
            duties[name].Wanted = command == "want";
            Update();
        } else if (command == "set") {
            Long index = 0, value = 0;
            line >> index >> value;
            const Duty& duty = duties[name];
            if (tessaly.OpenInterface(duty.Own != 0 ? duty.Own : duty.Foreign)) tessaly.SetParam(index, value);
        } else if (command == "sound") {
            velmarc.PlaySound(name);
        }
    }

private:
    void TellOfInput() {
        velmarc.Connected = [] { Tell("simulator up"); };
        velmarc.Disconnected = [] { Tell("simulator lost"); };
        velmarc.FSKeyDown = [](bool repeats, bool, const std::string& key, const std::string&) {
            if (!repeats) Tell("down " + key);
        };
        velmarc.FSKeyUp = [](Long, Long, const std::string& key, const std::string&) { Tell("up " + key); };
        velmarc.FSJoyDown = [](Long, Long, const std::string& button, const std::string&) { Tell("down " + button); };
        velmarc.FSJoyUp = [](Long, Long, const std::string& button, const std::string&) { Tell("up " + button); };
    }

    void TellOfSession() {
        const auto tell = [this] {
            const bool isOpen = tessaly.OpenSession(0);
            Tell("session " + tessaly.SessionCallsign() + " " + tessaly.FreqCOM1());
            if (isOpen) tessaly.CloseSession();
        };
        tessaly.Connected = [] { Tell("framework up"); };
        tessaly.Disconnected = [] { Tell("framework lost"); };
        tessaly.SessionOpened = tell;
        tessaly.SessionClosed = tell;
        tessaly.CallsignChanged = tell;
        tessaly.RadioChanged = tell;
    }

    void Appeared(Long id) {
        if (!tessaly.OpenInterface(id) || tessaly.InterfaceType() != VoiceRecordType) return;
        const std::string role = tessaly.InterfaceRole();
        const bool isOwn = tessaly.InterfaceIsLocal();
        (isOwn ? duties[role].Own : duties[role].Foreign) = id;
        Tell((isOwn ? "own " : "foreign ") + std::to_string(id) + " " + role);
        for (Long index = 0; index < ToldParameters; ++index)
            if (tessaly.GetParam(index) != 0) TellParameter(id, index);
        tessaly.CloseInterface();
        Update();
    }

    void Removed(Long id) {
        for (auto& [role, duty] : duties) {
            if (duty.Own == id) duty.Own = 0;
            if (duty.Foreign == id) duty.Foreign = 0;
        }
        Tell("removed " + std::to_string(id));
        Update();
    }

    void TellParameter(Long id, Long index) {
        Tell("value " + std::to_string(id) + " " + std::to_string(index) + " " +
             std::to_string(tessaly.GetParam(index)));
    }

    void Update() {
        for (auto& [role, duty] : duties) {
            if (duty.Wanted && duty.Own == 0 && duty.Foreign == 0) {
                duty.Own = tessaly.CreateInterface(VoiceRecordType, role);
                tessaly.CloseInterface();
            } else if (!duty.Wanted && duty.Own != 0) {
                tessaly.DeleteInterface(std::exchange(duty.Own, 0));
            }
        }
    }

    MemoryValues values;
    mqtt::Brokers brokers;
    mqtt::BrokerSimulatorLine simulatorLine;
    mqtt::BrokerFrameworkLine frameworkLine;
    ends::LineTable<SimulatorLine> simulatorLines{simulatorLine};
    ends::LineTable<FrameworkLine> frameworkLines{frameworkLine};
    ends::SimulatorEnd velmarc;
    ends::FrameworkEnd tessaly;
    std::map<std::string, Duty> duties;  // by role
};

}  // namespace
}  // namespace orvelle::hosts

int main(int count, char** words) {
    return orvelle::hosts::Serve<orvelle::hosts::PanelAtHost>("panel-at-host", count, words);
}
