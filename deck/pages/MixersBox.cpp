#include "deck/pages/MixersBox.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QSpinBox>

#include "adapters/looks/Text.h"
#include "deck/fields/Fields.h"
#include "deck/fields/SignalLight.h"

namespace orvelle::deck {

namespace {

constexpr MixerLine Lines[] = {MixerLine::Microphone, MixerLine::Master, MixerLine::Wave};
constexpr int FirstBelowTitle = 1;  // of the grid's parts
constexpr SoundDirection Sides[] = {SoundDirection::Input, SoundDirection::Output};

QWidget* Beside(QWidget* first, QWidget* second) {
    auto* widget = new QWidget;
    auto* row = new QHBoxLayout(widget);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Unit);
    row->addWidget(first);
    row->addWidget(second, 1);
    return widget;
}

}  // namespace

MixersBox::MixersBox(MixerSide& headset, MixerSide& speakers)
    : Section("Mixers", "Mixers", 2),
      realServe(new QLabel("The sound server's mixers serve; any mixer program moves them.")),
      columns{NewColumn(headset, "Headset"), NewColumn(speakers, "Speakers")} {
    realServe->setObjectName("RealMixersServe");
    realServe->setWordWrap(true);
    AddWide(realServe);
    AddCaptions({"Microphone and headset", "Speakers"});
    AddRow("Mixer", {columns[0].State, columns[1].State});
    AddRow("Input", {columns[0].Plugged[0], columns[1].Plugged[0]});
    AddRow("Output", {columns[0].Plugged[1], columns[1].Plugged[1]});
    std::size_t row = 0;
    for (const char* label : {"Microphone line", "Master line", "Wave line"}) {
        const Line& left = columns[0].Lines.at(row);
        const Line& right = columns[1].Lines.at(row);
        AddRow(label, {Beside(left.IsThere, left.Level), Beside(right.IsThere, right.Level)});
        ++row;
    }
    KeepRoomOfFields();
    for (Column& column : columns) {
        column.Watch = column.Mixer->Observe([this, &column] { ShowState(column); });
        ShowState(column);
    }
}

MixersBox::Column MixersBox::NewColumn(MixerSide& mixer, const QString& name) {
    return {&mixer,
            new SignalLight(name + "Mixer"),
            {NewPlug(mixer, SoundDirection::Input, name + "Input"),
             NewPlug(mixer, SoundDirection::Output, name + "Output")},
            {NewLine(mixer, MixerLine::Microphone, name + "Microphone"),
             NewLine(mixer, MixerLine::Master, name + "Master"), NewLine(mixer, MixerLine::Wave, name + "Wave")},
            {}};
}

MixersBox::Line MixersBox::NewLine(MixerSide& mixer, MixerLine line, const QString& name) {
    const MixerLevel& level = mixer.Level(line);
    return {NewCheck(name + "Line", "Present", "The mixer has this line",
                     [&mixer, line](bool on) {
                         MixerLevel changed = mixer.Level(line);
                         changed.Unavailable = !on;
                         mixer.SetLevel(line, changed);
                     }),
            NewNumber(name + "Level", "Somebody else moves the line's level", level.Min, level.Max,
                      [&mixer, line](int value) { mixer.Move(line, value); })};
}

QCheckBox* MixersBox::NewPlug(MixerSide& mixer, SoundDirection side, const QString& name) {
    return NewCheck(name + "Plugged", "Plugged in", "The device is plugged into this computer",
                    [&mixer, side](bool on) { mixer.SetPlugged(side, on); });
}

// The page, and with it the window, is as wide with a sound server as without one.
void MixersBox::KeepRoomOfFields() {
    for (int place = FirstBelowTitle; place < Grid().count(); ++place) {
        QWidget* const field = Grid().itemAt(place)->widget();
        QSizePolicy policy = field->sizePolicy();
        policy.setRetainSizeWhenHidden(field != realServe);
        field->setSizePolicy(policy);
    }
}

void MixersBox::ShowState(const Column& column) {
    const MixerSide& mixer = *column.Mixer;
    for (int place = FirstBelowTitle; place < Grid().count(); ++place) {
        QWidget* const field = Grid().itemAt(place)->widget();
        field->setVisible((field == realServe) != mixer.IsServing());
    }
    const QString device = ToQt(mixer.DeviceName(SoundDirection::Output));
    column.State->Show(mixer.IsOpen() ? Sign::Good : Sign::Off, (mixer.IsOpen() ? "Open on " : "Closed, ") + device);
    for (const SoundDirection side : Sides)
        column.Plugged.at(static_cast<std::size_t>(side))->setChecked(mixer.Plugged(side));
    for (const MixerLine line : Lines) {
        const auto& [isThere, level] = column.Lines.at(static_cast<std::size_t>(line));
        isThere->setChecked(!mixer.Level(line).Unavailable);
        level->setEnabled(!mixer.Level(line).Unavailable);
        ShowNumber(*level, mixer.Level(line).Volume);
    }
}

}  // namespace orvelle::deck
