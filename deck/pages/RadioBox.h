// The radio set of the session: both radios with their voice records side by side, and which of them are received and
// transmitted on. Each change raises its event at the panel; a frequency that is none is refused with a remark
// and a mark in its field. One that a directory of channels lists brings its voice record along, which may be changed
// until the next one; where it wasn't, it goes with its frequency.
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>

#include "deck/fields/Section.h"
#include "deck/pages/ChannelLookUp.h"
#include "platform/Ticket.h"

class QComboBox;

namespace orvelle {
class NetworkSide;
}  // namespace orvelle

namespace orvelle::deck {

class Remark;
class SignalLight;
class TextField;

class RadioBox : public Section {
public:
    RadioBox(NetworkSide& framework, ChannelLookUp channelLookUp);

private:
    using VoiceText = std::string RadioVoiceSetting::*;
    struct Radio {
        TextField* Frequency;
        QComboBox* Software;
        std::array<TextField*, 4> Texts;  // in the order of the rows
    };

    Radio NewRadio(int radio);
    TextField* NewVoiceEdit(int radio, const QString& name, const QString& toolTip, VoiceText text);
    TextField* NewPasswordEdit(int radio);
    QComboBox* NewSelection(const QString& name, const QString& toolTip, std::function<void(const std::string&)> apply);
    void Tune(int radio, const std::string& typed);
    void LookUp(int radio, const std::string& frequency);
    void SetVoice(int radio, const RadioVoiceSetting& voice);
    void ShowState();
    void ShowRemark();

    NetworkSide& network;
    const ChannelLookUp lookUp;
    std::array<Radio, 2> radios;
    QComboBox* receive;
    QComboBox* transmit;
    Remark* remark;
    SignalLight* lookedUp;
    std::array<std::optional<RadioVoiceSetting>, 2> brought;  // by a directory, as it was brought
    std::size_t lookedUpRadio = 0;
    std::string lookedUpFrequency;  // what is said of it stands as long as the radio is tuned to it
    QString refused;                // the sentence on a frequency, "" for none
    int refusing = 0;               // the radio that it is about
    Ticket watch;
};

}  // namespace orvelle::deck
