#include "adapters/qt/services/QtTimers.h"

#include "platform/controls/Timer.h"

namespace orvelle::qt {

void QtTimers::ControlChanged(Control& control, ControlProperty property) {
    if (property != ControlProperty::Enabled) return;
    auto* timer = dynamic_cast<Timer*>(&control);
    if (timer == nullptr) return;

    const auto [found, isNew] = running.try_emplace(timer);
    QTimer& ticker = found->second;
    if (isNew) {
        // Handlers compare the clock with their interval, so a tick must not come early.
        ticker.setTimerType(Qt::PreciseTimer);
        ticker.setInterval(timer->Interval);
        ticker.callOnTimeout([timer] { timer->Tick(); });
    }
    if (timer->Enabled)
        ticker.start();
    else
        ticker.stop();
}

}  // namespace orvelle::qt
