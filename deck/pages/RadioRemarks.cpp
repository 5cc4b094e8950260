#include "deck/pages/RadioRemarks.h"

#include <QStringList>

#include "adapters/looks/Text.h"
#include "platform/SessionSetting.h"

namespace orvelle::deck {

namespace {

constexpr qsizetype MostLetters = 24;

QString Shortened(const QString& text) { return text.size() > MostLetters ? text.left(MostLetters) + "…" : text; }

bool NeedsChannel(Long software) {
    return software == RogerWilco || software == TeamSpeakHost || software == VatsimVoice;
}

}  // namespace

QString RadioName(int radio) { return radio == 0 ? "COM1" : "COM2"; }

QString SoftwareName(Long software) {
    switch (software) {
        case NoVoice:
            return "None";
        case RogerWilco:
            return "RogerWilco";
        case VatsimVoice:
            return "VATSIM";
        case VoiceAtis:
            return "Voice ATIS";
        default:
            return "TeamSpeak";
    }
}

QString RefusedFrequency(int radio, const std::string& typed, const std::string& held) {
    return RadioName(radio) + (held.empty() ? " stays as it is" : " stays on " + ToQt(held)) + ": \"" +
           Shortened(ToQt(typed)) + "\" is none of its frequencies, 118.000 to 136.990 in steps of 25 or 8.33 kHz.";
}

QString LookedUpFrequency(int radio, const std::string& frequency, const QString& words, RecordFrom from) {
    const char* end = from == RecordFrom::Directory ? "."
                      : from == RecordFrom::Nowhere ? "; it has no voice record."
                                                    : "; its voice record stays as it is.";
    return RadioName(radio) + " on " + ToQt(frequency) + ": " + words + end;
}

QString MissingOnRadios(const SessionSetting& session) {
    QStringList sentences;
    for (std::size_t radio = 0; radio < session.Voice.size(); ++radio) {
        const RadioVoiceSetting& voice = session.Voice.at(radio);
        QStringList missing;
        if (voice.Software == NoVoice) continue;
        if (voice.Server.empty()) missing << "a server";
        if (voice.Channel.empty() && NeedsChannel(voice.Software)) missing << "a channel";
        if (!missing.isEmpty())
            sentences << RadioName(static_cast<int>(radio)) + " needs " + missing.join(" and ") + " for " +
                             SoftwareName(voice.Software) + ".";
    }
    return sentences.join(" ");
}

}  // namespace orvelle::deck
