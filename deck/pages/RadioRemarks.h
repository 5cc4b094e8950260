// What the user is told about what is set on the radios: a frequency that was refused, and what a radio with a voice
// software still lacks.
#pragma once

#include <QString>
#include <string>

namespace orvelle {
struct SessionSetting;
}  // namespace orvelle

namespace orvelle::deck {

QString RadioName(int radio);  // 0 is COM1

// `typed` was refused, and the radio stays on `held`.
QString RefusedFrequency(int radio, const std::string& typed, const std::string& held);
// A sentence for each radio that lacks its server or channel, "" for none.
QString MissingOnRadios(const SessionSetting& session);

}  // namespace orvelle::deck
