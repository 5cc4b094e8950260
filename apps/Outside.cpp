#include "apps/Outside.h"

#include <utility>

namespace orvelle {

Outside::Outside(EventLoop& loop, ControlValues& controlValues, std::vector<std::string> thisComputer,
                 TeamSpeakRemote* realTeamSpeak)
    : Practice(loop),
      Velmarc(loop, controlValues, simulatorLines, std::move(thisComputer)),
      Tessaly(loop, controlValues, frameworkLines),
      VVL(Practice.VVL, Velmarc),
      TSRemote(realTeamSpeak ? *realTeamSpeak : Practice.TSRemote) {}

}  // namespace orvelle
