// Runs the timers of a form: attached to it, it raises Tick of each Timer control that is on. While none is on, no
// timer of the system runs.
#pragma once

#include <QTimer>
#include <unordered_map>

#include "platform/controls/Control.h"

namespace orvelle::qt {

class QtTimers : public ControlObserver {
public:
    void ControlChanged(Control& control, ControlProperty property) override;

private:
    std::unordered_map<const Control*, QTimer> running;
};

}  // namespace orvelle::qt
