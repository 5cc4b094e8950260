#include "deck/pages/TeamSpeakBox.h"

#include <QCheckBox>
#include <QComboBox>
#include <QSpinBox>
#include <limits>

#include "deck/fields/Fields.h"
#include "deck/fields/Readout.h"
#include "deck/fields/TextField.h"
#include "platform/sides/TeamSpeakSide.h"

namespace orvelle::deck {

namespace {

// "Lobby, Tower": the first channel has the number 1.
std::map<std::string, Long> ChannelsOf(const std::string& text) {
    std::map<std::string, Long> channels;
    Long id = 0;
    for (const QString& name : ToQt(text).split(',', Qt::SkipEmptyParts)) channels[FromQt(name.trimmed())] = ++id;
    return channels;
}

QSpinBox* NewResult(const QString& name, Integer& result) {
    auto* box =
        NewNumber(name, "What TeamSpeak answers to this call of the panel: 0 is success, any other number a failure",
                  std::numeric_limits<Integer>::min(), std::numeric_limits<Integer>::max(),
                  [&result](int number) { result = static_cast<Integer>(number); });
    const auto tellMeaning = [box] { box->setSuffix(box->value() == 0 ? "  succeeds" : "  fails"); };
    QObject::connect(box, &QSpinBox::valueChanged, box, tellMeaning);
    ShowNumber(*box, result);
    tellMeaning();
    return box;
}

}  // namespace

TeamSpeakBox::TeamSpeakBox(TeamSpeakSide& program)
    : Section("TeamSpeak", "TeamSpeak program", 2),
      teamSpeak(program),
      running(
          NewCheck("TeamSpeakRuns", "Runs", "While it does not run every call of the panel fails",
                   [this](bool on) { teamSpeak.SetProgram(on ? ProgramState::Running : ProgramState::NotRunning); })),
      place(new Readout("TeamSpeakPlace")),
      url(new Readout("TeamSpeakUrl")),
      watch(teamSpeak.Observe([this] { ShowState(); })) {
    auto* channels = NewEdit("TeamSpeakChannels", "The channels of every server, with commas between; Enter applies",
                             [this](const std::string& text) { teamSpeak.SetChannels(ChannelsOf(text)); });
    channels->setPlaceholderText("Lobby, Tower");
    auto* padding = NewChoice("TeamSpeakPadding", "What fills the field of the server's address behind it",
                              {"Ends in blanks", "Ends in zeros"}, [this](int index) {
                                  teamSpeak.SetPadding(index == 0 ? AddressPadding::Blanks : AddressPadding::Zeros);
                              });
    TeamSpeakResults& results = teamSpeak.Fail();

    AddRow("Program", {running});
    AddRow("Server", {place});
    AddRow("Last URL", {url});
    AddRow("Channels", {channels});
    AddRow("Address field", {padding, new QWidget});
    AddRow("Connect", {NewResult("ConnectResult", results.Connect), new QWidget});
    AddRow("Disconnect", {NewResult("DisconnectResult", results.Disconnect), new QWidget});
    AddRow("Server info", {NewResult("ServerInfoResult", results.ServerInfo), new QWidget});
    AddRow("Channel info", {NewResult("ChannelInfoResult", results.ChannelInfo), new QWidget});
    AddRow("Switch channel", {NewResult("SwitchChannelResult", results.SwitchChannel), new QWidget});
    ShowState();
}

void TeamSpeakBox::ShowState() {
    running->setChecked(teamSpeak.Program() == ProgramState::Running);
    const QString address = ToQt(teamSpeak.Address());
    const QString channel = ToQt(teamSpeak.Channel());
    place->Show(address.isEmpty()   ? "Not connected"
                : channel.isEmpty() ? "On " + address
                                    : "On " + address + ", channel " + channel);
    url->Show(teamSpeak.LastUrl().empty() ? "None yet" : ToQt(teamSpeak.LastUrl()));
}

}  // namespace orvelle::deck
