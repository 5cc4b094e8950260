// What the directories chose for a radio, and what came of it, in words: for the window of the simulator's program.
#pragma once

#include <QString>
#include <string>

#include "platform/SessionSetting.h"
#include "simulators/directory/StationIndex.h"

namespace orvelle {

// A part of a sentence: "BIKF_TWR, 12.3 nm of 50"; "" where there is no directory.
QString ChoiceWords(const directory::Choice& choice, int kilohertz);

// "TeamSpeak at voice.example.org, Keflavik Tower, as pilot"; "None" for no voice software. Never the password.
QString RecordWords(const RadioVoiceSetting& record);

// "12.3 nm", "140 nm"
QString NauticalMiles(double miles);

}  // namespace orvelle
