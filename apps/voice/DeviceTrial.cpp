#include "apps/voice/DeviceTrial.h"

namespace orvelle {

DeviceTrial::DeviceTrial(const std::string& source, const std::string& sink)
    : work([readings = readings, source, sink](EventLoop& loop) {
          return std::make_unique<TrialWork>(loop, readings, source, sink);
      }) {}

void DeviceTrial::HearMyself(bool on) {
    work.Do([on](TrialWork& trial) { trial.HearMyself(on); });
}

}  // namespace orvelle
