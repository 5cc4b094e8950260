#include "apps/SimulatorLinks.h"

#include "adapters/looks/Text.h"
#include "adapters/mqtt/Topics.h"
#include "apps/OneLine.h"
#include "apps/SimulatorProgram.h"

namespace orvelle {

namespace {

constexpr int LongestShown = 40;  // characters

}  // namespace

LinkTold TellOfLink(const SimulatorProgram& program, const mqtt::OfferedLink& link) {
    const bool isOffered = link.Link() == LinkState::Up;
    const int server = link.ServedBy();
    if (!isOffered && server == 0) return {Sign::Off, "Not offered"};
    if (!isOffered) return {Sign::Off, "Served by " + NameOf(program, server)};
    if (server == 0) return {Sign::Waiting, "Waits for the broker"};
    if (server == program.AtBroker.Identity()) return {Sign::Good, "Served here"};
    return {Sign::Waiting, "Stands by for " + NameOf(program, server)};
}

QString ShownName(const std::string& name) {
    const QString text = ToQt(OneLine(name));
    return text.size() <= LongestShown ? text : text.left(LongestShown - 1) + QChar(0x2026);
}

QString NameOf(const SimulatorProgram& program, int identity) {
    QString text = ToQt(mqtt::WriteIdentity(identity));
    for (const auto kind : {mqtt::Program::Simulator, mqtt::Program::Panel})
        if (const auto* said = program.AtBroker.Others().Find({identity, kind}))
            return text + " " + ShownName(said->Name);
    return text;
}

int ComputersThere(const SimulatorProgram& program) {
    int count = 0;
    for (int identity = 1; identity <= mqtt::LastIdentity; ++identity) {
        const bool isOwn = program.AtBroker.IsThere() && identity == program.AtBroker.Identity();
        const mqtt::Presences& others = program.AtBroker.Others();
        count += isOwn || others.IsThere({identity, mqtt::Program::Simulator}) ||
                 others.IsThere({identity, mqtt::Program::Panel});
    }
    return count;
}

}  // namespace orvelle
