// What a directory of voice channels names for a frequency that was typed on a radio by hand. Answered by the program
// that has directories; a deck without any has an empty function.
#pragma once

#include <QString>
#include <functional>
#include <optional>
#include <string>

#include "platform/SessionSetting.h"

namespace orvelle::deck {

struct FoundChannel {
    std::optional<RadioVoiceSetting> Voice;  // none where no directory has one
    QString Words;                           // why, a part of a sentence; "" where there is no directory
};

// `frequency` as TunedFrequency gives it.
using ChannelLookUp = std::function<FoundChannel(const std::string& frequency)>;

}  // namespace orvelle::deck
