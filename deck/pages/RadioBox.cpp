#include "deck/pages/RadioBox.h"

#include <QComboBox>
#include <utility>

#include "deck/fields/Fields.h"
#include "deck/fields/Frequencies.h"
#include "deck/fields/Remark.h"
#include "deck/fields/SignalLight.h"
#include "deck/fields/TextField.h"
#include "deck/pages/RadioRemarks.h"
#include "platform/RadioSelection.h"
#include "platform/sides/NetworkSide.h"

namespace orvelle::deck {

namespace {

constexpr std::string RadioVoiceSetting::*VoiceTexts[] = {&RadioVoiceSetting::Server, &RadioVoiceSetting::Channel,
                                                          &RadioVoiceSetting::Login, &RadioVoiceSetting::Password};
// In the order of the entries "COM1", "COM2", "Both", "None"
constexpr const char* Selections[] = {SelectsCom1, SelectsCom2, SelectsBoth, SelectsNone};
constexpr int NoSelection = 3;

struct SoftwareEntry {
    VoiceSoftware Code;
    const char* Name;
};
constexpr SoftwareEntry SoftwareEntries[] = {
    {NoVoice, "None"},       {RogerWilco, "RogerWilco"},         {TeamSpeakHost, "TeamSpeak"},
    {VatsimVoice, "VATSIM"}, {TeamSpeakUrl, "TeamSpeak by URL"}, {VoiceAtis, "Voice ATIS"}};

QStringList SoftwareNames() {
    QStringList names;
    for (const SoftwareEntry& entry : SoftwareEntries) names << entry.Name;
    return names;
}

// -1 for a code that is none of them.
int EntryOf(Long software) {
    for (std::size_t index = 0; index < std::size(SoftwareEntries); ++index)
        if (software == SoftwareEntries[index].Code) return static_cast<int>(index);
    return -1;
}

int SelectionOf(const std::string& text) {
    for (int index = 0; index < NoSelection; ++index)
        if (text == Selections[index]) return index;
    return NoSelection;
}

}  // namespace

RadioBox::RadioBox(NetworkSide& framework, ChannelLookUp channelLookUp)
    : Section("Radios", "Radios", 2),
      network(framework),
      lookUp(std::move(channelLookUp)),
      radios{NewRadio(0), NewRadio(1)},
      receive(NewSelection("Receive", "The radios that are received",
                           [this](const std::string& text) { network.SetReceive(text); })),
      transmit(NewSelection("Transmit", "The radio that transmits",
                            [this](const std::string& text) { network.SetTransmit(text); })),
      remark(new Remark("RadioRemark")),
      lookedUp(new SignalLight("RadioLookedUp")),
      watch(network.Observe([this] { ShowState(); })) {
    AddCaptions({RadioName(0), RadioName(1)});
    AddRow("&Frequency", {radios[0].Frequency, radios[1].Frequency});
    AddRow("Soft&ware", {radios[0].Software, radios[1].Software});
    std::size_t row = 0;
    for (const char* label : {"Ser&ver", "C&hannel", "Lo&gin", "&Password"}) {
        AddRow(label, {radios[0].Texts[row], radios[1].Texts[row]});
        ++row;
    }
    receive->setAccessibleName("Receive");
    transmit->setAccessibleName("Transmit");
    AddRow("&Receive", {receive, Labelled("&Transmit", transmit)});
    // Below all fields, none of which moves when it comes or goes.
    AddWide(lookedUp);
    AddWide(remark);
    lookedUp->setAccessibleName("Directories");
    lookedUp->hide();
    ShowState();
}

RadioBox::Radio RadioBox::NewRadio(int radio) {
    const QString name = RadioName(radio);
    auto* frequency = NewEdit("Frequency" + name, "The frequency of " + name + "; Enter applies it",
                              [this, radio](const std::string& text) { Tune(radio, text); });
    frequency->setPlaceholderText(radio == 0 ? "122.800" : "121.500");
    auto* software = NewChoice(
        "Software" + name, "The voice software that serves " + name, SoftwareNames(), [this, radio](int index) {
            RadioVoiceSetting voice = network.Session().Voice.at(static_cast<std::size_t>(radio));
            voice.Software = SoftwareEntries[index].Code;
            SetVoice(radio, voice);
        });
    return {frequency,
            software,
            {NewVoiceEdit(radio, "Server", "The voice server", &RadioVoiceSetting::Server),
             NewVoiceEdit(radio, "Channel", "The channel on that server", &RadioVoiceSetting::Channel),
             NewVoiceEdit(radio, "Login", "The login name for the server", &RadioVoiceSetting::Login),
             NewPasswordEdit(radio)}};
}

// A frequency that is none leaves the radio as it is, and so does the field.
void RadioBox::Tune(int radio, const std::string& typed) {
    const std::optional<std::string> frequency = TunedFrequency(typed);
    const std::string held = network.Session().Frequency.at(static_cast<std::size_t>(radio));
    refused = frequency ? QString() : RefusedFrequency(radio, typed, held);
    refusing = radio;
    radios.at(static_cast<std::size_t>(radio)).Frequency->Show(frequency.value_or(held));
    lookedUp->hide();
    if (frequency) {
        network.SetFrequency(radio, *frequency);
        LookUp(radio, *frequency);
    }
    ShowRemark();
}

// "" is nothing to look up.
void RadioBox::LookUp(int radio, const std::string& frequency) {
    const FoundChannel found = lookUp && !frequency.empty() ? lookUp(frequency) : FoundChannel();
    lookedUpRadio = static_cast<std::size_t>(radio);
    lookedUpFrequency = frequency;
    const auto before = std::exchange(brought[lookedUpRadio], found.Voice);
    const bool goes = before && *before == network.Session().Voice[lookedUpRadio];
    if (found.Voice || goes) network.SetVoice(radio, found.Voice.value_or(RadioVoiceSetting()));
    if (found.Words.isEmpty()) return;
    const RecordFrom from = found.Voice ? RecordFrom::Directory : goes ? RecordFrom::Nowhere : RecordFrom::Before;
    lookedUp->Show(found.Voice ? Sign::Good : Sign::Off, LookedUpFrequency(radio, frequency, found.Words, from));
    lookedUp->show();
}

// Who goes on to something else has read what was refused.
void RadioBox::SetVoice(int radio, const RadioVoiceSetting& voice) {
    refused.clear();
    network.SetVoice(radio, voice);
    ShowRemark();
}

TextField* RadioBox::NewVoiceEdit(int radio, const QString& name, const QString& toolTip, VoiceText text) {
    return NewEdit(name + RadioName(radio), toolTip + " of " + RadioName(radio) + "; Enter applies it",
                   [this, radio, text](const std::string& value) {
                       RadioVoiceSetting voice = network.Session().Voice.at(static_cast<std::size_t>(radio));
                       voice.*text = value;
                       SetVoice(radio, voice);
                   });
}

// It may be the user's own, which a directory's record holds for the panels.
TextField* RadioBox::NewPasswordEdit(int radio) {
    TextField* edit = NewVoiceEdit(radio, "Password", "The password for the server", &RadioVoiceSetting::Password);
    edit->setEchoMode(QLineEdit::PasswordEchoOnEdit);
    return edit;
}

QComboBox* RadioBox::NewSelection(const QString& name, const QString& toolTip,
                                  std::function<void(const std::string&)> apply) {
    return NewChoice(name, toolTip, {"COM1", "COM2", "Both", "None"},
                     [apply = std::move(apply)](int index) { apply(Selections[index]); });
}

void RadioBox::ShowState() {
    const SessionSetting& session = network.Session();
    for (std::size_t radio = 0; radio < radios.size(); ++radio) {
        const RadioVoiceSetting& voice = session.Voice.at(radio);
        radios.at(radio).Frequency->Show(session.Frequency.at(radio));
        radios.at(radio).Software->setCurrentIndex(EntryOf(voice.Software));
        for (std::size_t row = 0; row < std::size(VoiceTexts); ++row)
            radios.at(radio).Texts.at(row)->Show(voice.*VoiceTexts[row]);
    }
    receive->setCurrentIndex(SelectionOf(session.Receive));
    transmit->setCurrentIndex(SelectionOf(session.Transmit));
    if (session.Frequency.at(lookedUpRadio) != lookedUpFrequency) lookedUp->hide();
    ShowRemark();
}

void RadioBox::ShowRemark() {
    for (int radio : {0, 1})
        radios.at(static_cast<std::size_t>(radio)).Frequency->ShowRefusal(radio == refusing ? refused : QString());
    remark->Show(refused.isEmpty() ? MissingOnRadios(network.Session()) : refused);
}

}  // namespace orvelle::deck
