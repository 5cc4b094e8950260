#include "apps/Outside.h"

namespace orvelle {

Outside::Outside(EventLoop& loop, ControlValues& controlValues, const ComputerNames& thisComputer,
                 TeamSpeakRemote* realTeamSpeak)
    : Practice(loop),
      brokers(loop,
              [thisComputer] {
                  return mqtt::PresenceSetting{
                      .Name = thisComputer.Name, .Address = "", .Desktop = thisComputer.Desktop};
              }),
      simulatorLine(loop, brokers),
      frameworkLine(loop, brokers),
      Velmarc(loop, controlValues, simulatorLines, {thisComputer.Name}),
      Tessaly(loop, controlValues, frameworkLines),
      VVL(Practice.VVL, Velmarc),
      TSRemote(realTeamSpeak ? *realTeamSpeak : Practice.TSRemote) {}

void Outside::Join(const mqtt::SetUpSetting& setUp) {
    brokers.Join(setUp);
    simulatorLines.EnterOthers(simulatorLine);
    frameworkLines.EnterOthers(frameworkLine);
    ChooseLines();
}

void Outside::Practise() {
    brokers.Leave();
    simulatorLines.EnterOthers(Practice.SimulatorLink);
    frameworkLines.EnterOthers(Practice.NetworkLink);
    ChooseLines();
}

void Outside::ChooseLines() {
    Velmarc.ChooseLine();
    Tessaly.ChooseLine();
}

}  // namespace orvelle
