// A timer: ticks every Interval milliseconds while Enabled, first after one interval. Turning on a timer that is on
// changes nothing. The shell or the replay program raises Tick.
#pragma once

#include <string>
#include <utility>

#include "platform/Event.h"
#include "platform/controls/Control.h"

namespace orvelle {

class Timer : public Control {
public:
    Timer(Form& form, std::string name, Long interval) : Control(form, std::move(name)), Interval(interval) {
        Enabled = false;
    }

    const Long Interval;
    Event<> Tick;
};

}  // namespace orvelle
