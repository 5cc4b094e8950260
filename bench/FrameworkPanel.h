// The framework link of one panel of a set-up, as the panel's program joins it: the near end over the broker's line.
// The loop outlives it.
#pragma once

#include "adapters/ends/FrameworkEnd.h"
#include "adapters/mqtt/BrokerFrameworkLine.h"
#include "tests/shared/MemoryValues.h"

namespace orvelle {

class FrameworkPanel {
    mqtt::Brokers brokers;
    mqtt::BrokerFrameworkLine line;
    ends::LineTable<FrameworkLine> lines{line};
    MemoryValues values;

public:
    FrameworkPanel(EventLoop& loop, const mqtt::SetUpSetting& setUp)
        : brokers(loop,
                  [] { return mqtt::PresenceSetting{.Name = "PANEL", .Address = "127.0.0.1", .Desktop = "none"}; }),
          line(loop, brokers),
          End(loop, values, lines) {
        brokers.Join(setUp);
    }

    void SayGoodbye() { brokers.SayGoodbye(); }

    ends::FrameworkEnd End;
};

}  // namespace orvelle
