// What the user is told about what is set on the radios: a frequency that was refused or looked up, and what a radio
// with a voice software still lacks.
#pragma once

#include <QString>
#include <string>

#include "platform/Types.h"

namespace orvelle {
struct SessionSetting;
}  // namespace orvelle

namespace orvelle::deck {

QString RadioName(int radio);  // 0 is COM1
// Of a code of VoiceSoftware.h, "None" for NoVoice.
QString SoftwareName(Long software);

// `typed` was refused, and the radio stays on `held`.
QString RefusedFrequency(int radio, const std::string& typed, const std::string& held);
// A directory said `words` of it, and the radio's voice record came from there or stays as it was.
enum class RecordFrom { Directory, Nowhere, Before };
QString LookedUpFrequency(int radio, const std::string& frequency, const QString& words, RecordFrom from);
// A sentence for each radio that lacks its server or channel, "" for none.
QString MissingOnRadios(const SessionSetting& session);

}  // namespace orvelle::deck
