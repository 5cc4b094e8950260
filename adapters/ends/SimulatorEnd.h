// The panel's end of the simulator link, whatever medium it goes over: the one VelmarcControl. It keeps the server
// between runs and chooses the line that leads there; it keeps what is held down on the far side, tells each change of
// it as an event, and when the line is lost it reports each key and button as released, then the loss. Events come from
// the loop. Main thread only; nothing fails towards the caller. The lines outlive it.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "adapters/ends/LineTable.h"
#include "adapters/shared/Delivery.h"
#include "adapters/shared/HeldInputs.h"
#include "platform/SimulatorLine.h"
#include "platform/Velmarc.h"

namespace orvelle {
class ControlValues;
}  // namespace orvelle

namespace orvelle::ends {

class SimulatorEnd : public VelmarcControl {
public:
    // `controlValues` keeps the server. `thisComputer` lists the names and addresses of this computer beside the
    // loopback ones. The line of the kept server is opened at once.
    SimulatorEnd(EventLoop& loop, ControlValues& controlValues, const LineTable<SimulatorLine>& lineTable,
                 std::vector<std::string> thisComputer);
    SimulatorEnd(const SimulatorEnd&) = delete;
    SimulatorEnd& operator=(const SimulatorEnd&) = delete;
    ~SimulatorEnd() override;

    void SetServer(const std::string& name) override;
    std::string GetServer() override;  // AutomaticServer until one was set
    bool LinkUp() override { return isUp; }
    void ClientReady() override { line->SayReady(); }
    std::string IPAddress() override { return FarComputer().IPAddress; }
    std::string ComputerName() override { return FarComputer().ComputerName; }
    std::string DesktopName() override { return FarComputer().DesktopName; }
    bool IsLocalAddress(const std::string& name) override;
    void PlaySound(const std::string& path) override;

    // The table may have changed: goes over to the line that the server leads to now.
    void ChooseLine();

    // For whoever watches over what the panel does by keys and buttons of the far side. What is held there as far as
    // the panel knows: an input counts from before the panel is told of its press until before it is told of its
    // release.
    const HeldInputs& HeldAsTold() const { return heldAsTold; }
    // The press or release that the panel is being told of at this moment.
    const std::optional<InputChange>& Telling() const { return telling; }
    Event<> InputHandled;  // the panel has had its turn at a press or release

private:
    SimulatorComputer FarComputer();  // all empty while the link is down
    void OpenLine();
    void CloseLine();
    void Lose();
    void Hear(const SimulatorInput& said);
    void Tell(const InputChange& change, bool active);

    Delivery delivery;
    ControlValues& values;
    const LineTable<SimulatorLine>& lines;
    std::vector<std::string> localNames;
    SimulatorLine* line = nullptr;
    bool isUp = false;
    SimulatorInput held;  // as the line said it last
    HeldInputs heldAsTold;
    std::optional<InputChange> telling;
    std::deque<std::function<void()>> untold;  // events of the inputs
};

}  // namespace orvelle::ends
