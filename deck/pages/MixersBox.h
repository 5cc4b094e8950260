// The two mixers, as somebody at the sound card handles them: lines that are there or not, their levels, and devices
// that are plugged or not. Where a sound server's mixers serve in their place, a line says so instead.
#pragma once

#include <array>

#include "deck/fields/Section.h"
#include "platform/Ticket.h"
#include "platform/sides/MixerSide.h"

class QCheckBox;
class QLabel;
class QSpinBox;

namespace orvelle::deck {

class SignalLight;

class MixersBox : public Section {
public:
    MixersBox(MixerSide& headset, MixerSide& speakers);

private:
    struct Line {
        QCheckBox* IsThere;
        QSpinBox* Level;
    };
    struct Column {
        MixerSide* Mixer;
        SignalLight* State;
        std::array<QCheckBox*, 2> Plugged;  // by SoundDirection
        std::array<Line, 3> Lines;          // by MixerLine
        Ticket Watch;
    };

    Column NewColumn(MixerSide& mixer, const QString& name);
    Line NewLine(MixerSide& mixer, MixerLine line, const QString& name);
    QCheckBox* NewPlug(MixerSide& mixer, SoundDirection side, const QString& name);
    void KeepRoomOfFields();
    void ShowState(const Column& column);

    QLabel* realServe;
    std::array<Column, 2> columns;
};

}  // namespace orvelle::deck
