#include "simulators/xplane/XPlaneRref.h"

#include <netinet/in.h>

#include <utility>

#include "simulators/UdpSocket.h"
#include "simulators/xplane/Ipv4Interfaces.h"
#include "simulators/xplane/XPlaneBeacons.h"
#include "simulators/xplane/XPlaneSubscriptions.h"
#include "simulators/xplane/XPlaneTarget.h"
#include "simulators/xplane/XPlaneValues.h"

namespace orvelle::simulators {

namespace {

constexpr Long AwaitedMilliseconds = 5000;  // without any answer: it can't be asked
constexpr Long LostMilliseconds = 10000;    // without a beacon, and without any answer: it isn't there
constexpr Long SilentMilliseconds = 1000;   // without a value, but with a beacon: it has forgotten what was asked

}  // namespace

struct XPlaneRref::Parts {
    Parts(XPlaneRref& source, EventLoop& eventLoop, ProcessQuestions processQuestions, XPlaneSetting used);

    void Find(const Beacon& beacon, std::uint32_t sender);
    void Choose(const XPlaneTarget& next);
    void Drop();
    void AwaitBeacon();
    void AwaitValue();
    void Take(const std::vector<NumberedValue>& told);
    void Follow();
    XPlaneAnswer Answer() const;
    std::string Problem() const;

    XPlaneRref& Source;
    EventLoop& Loop;
    const ProcessQuestions Questions;
    const XPlaneSetting Setting;
    Ipv4Interfaces Interfaces{Loop};
    XPlaneBeacons Beacons{Loop, Interfaces, Setting.BeaconPort};
    XPlaneValues Values{Setting.Aircraft};
    XPlaneSubscriptions Subscriptions{Loop, Interfaces, Values.Datarefs()};
    SimulatorLife Life{Loop, Questions};

    std::optional<XPlaneTarget> Target;
    bool CanBeAsked = true;  // it answers, or hasn't been asked for long
    bool IsSilent = false;   // without a value for a second
    std::optional<SimulatorState> State;
    Ticket Awaited, Lost, Silent;
};

XPlaneRref::Parts::Parts(XPlaneRref& source, EventLoop& eventLoop, ProcessQuestions processQuestions,
                         XPlaneSetting used)
    : Source(source), Loop(eventLoop), Questions(std::move(processQuestions)), Setting(std::move(used)) {
    Beacons.Heard = [this](const Beacon& beacon, std::uint32_t sender) { Find(beacon, sender); };
    Beacons.Changed = [this] { Source.Changed(); };
    Subscriptions.Heard = [this](const std::vector<NumberedValue>& told) { Take(told); };
    Life.Changed = [this] { Follow(); };
}

void XPlaneRref::Parts::Find(const Beacon& beacon, std::uint32_t sender) {
    const bool isOwn = Interfaces.IsOwn(sender);
    const XPlaneTarget found{isOwn ? XPlaneOwner::ThisComputer : XPlaneOwner::Another, isOwn ? INADDR_LOOPBACK : sender,
                             beacon.Port, beacon.Version, beacon.Name};
    if (!Target || TakesOver(found, *Target, Answer())) return Choose(found);
    if (!IsSame(found, *Target)) return;
    AwaitBeacon();
    if (IsSilent) Subscriptions.Ask();
}

void XPlaneRref::Parts::Choose(const XPlaneTarget& next) {
    Life.Forget();
    Drop();
    Target = next;
    Awaited = Loop.After(AwaitedMilliseconds, [this] {
        CanBeAsked = false;
        Source.Changed();
    });
    AwaitBeacon();
    AwaitValue();
    Subscriptions.Begin(next);
    Source.Changed();
}

void XPlaneRref::Parts::Drop() {
    Awaited.End();
    Lost.End();
    Silent.End();
    Subscriptions.End();
    Target.reset();
    CanBeAsked = true;
    Values.Forget();
    State.reset();
}

void XPlaneRref::Parts::AwaitBeacon() {
    Lost = Loop.After(LostMilliseconds, [this] {
        if (Life.Stands() != Presence::Absent) return;
        Drop();
        Source.Changed();
    });
}

void XPlaneRref::Parts::AwaitValue() {
    IsSilent = false;
    Silent = Loop.After(SilentMilliseconds, [this] { IsSilent = true; });
}

void XPlaneRref::Parts::Take(const std::vector<NumberedValue>& told) {
    // One whose process isn't known; its next beacon brings it back.
    if (Life.Process() == 0 && Values.AreOfAnotherRun(told)) return Life.Forget();
    if (Values.Take(told) == 0) return;

    const bool isFirst = Life.Stands() == Presence::Absent && Target->Owner == XPlaneOwner::ThisComputer;
    const pid_t process = isFirst ? Questions.OwnerOfPort(Target->Port) : Life.Process();
    Awaited.End();
    CanBeAsked = true;
    AwaitValue();
    std::optional<SimulatorState> state = Values.State();
    const bool differs = State != state;
    State = std::move(state);
    if (Life.Hear(process) == SimulatorLife::Told::Nothing && differs) Source.Changed();
}

void XPlaneRref::Parts::Follow() {
    if (Life.Stands() == Presence::Absent) {
        Drop();
        // What its process has left would be taken for an X-Plane that is there.
        Beacons.LeaveOut();
    }
    Source.Changed();
}

XPlaneAnswer XPlaneRref::Parts::Answer() const {
    switch (Life.Stands()) {
        case Presence::Absent:
            return CanBeAsked ? XPlaneAnswer::Awaited : XPlaneAnswer::None;
        case Presence::Busy:
            return Life.Process() == 0 ? XPlaneAnswer::Paused : XPlaneAnswer::Given;
        case Presence::Live:
            break;
    }
    return XPlaneAnswer::Given;
}

std::string XPlaneRref::Parts::Problem() const {
    if (!Beacons.Problem().empty() || !Target || CanBeAsked) return Beacons.Problem();
    const std::string where =
        Target->Owner == XPlaneOwner::ThisComputer ? "on this computer" : "at " + Dotted(Target->Address);
    return NameOf(*Target) + " is there " + where + ", but doesn't answer on port " + std::to_string(Target->Port) +
           ": a firewall may be in the way, or its setting \"Disable Incoming Traffic\".";
}

XPlaneRref::XPlaneRref(EventLoop& eventLoop, ProcessQuestions questions, XPlaneSetting setting)
    : parts(std::make_unique<Parts>(*this, eventLoop, std::move(questions), std::move(setting))) {}

XPlaneRref::~XPlaneRref() = default;

std::string XPlaneRref::Name() const { return parts->Target ? NameWithHost(*parts->Target) : "X-Plane"; }

Presence XPlaneRref::Stands() const { return parts->Life.Stands(); }

int XPlaneRref::Run() const { return parts->Life.Run(); }

const std::optional<SimulatorState>& XPlaneRref::State() const { return parts->State; }

std::string XPlaneRref::Problem() const { return parts->Problem(); }

}  // namespace orvelle::simulators
