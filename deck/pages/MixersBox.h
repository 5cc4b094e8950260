// The two mixers, as somebody at the sound card handles them: lines that are there or not, their levels, and devices
// that are plugged or not.
#pragma once

#include <array>

#include "adapters/embedded/Mixer.h"
#include "deck/fields/Section.h"
#include "platform/Ticket.h"

class QCheckBox;
class QSpinBox;

namespace orvelle::deck {

class SignalLight;

class MixersBox : public Section {
public:
    MixersBox(EmbeddedMixer& headset, EmbeddedMixer& speakers);

private:
    struct Line {
        QCheckBox* IsThere;
        QSpinBox* Level;
    };
    struct Column {
        EmbeddedMixer* Mixer;
        SignalLight* State;
        std::array<QCheckBox*, 2> Plugged;  // by MixerSide
        std::array<Line, 3> Lines;          // by MixerLine
        Ticket Watch;
    };

    Column NewColumn(EmbeddedMixer& mixer, const QString& name);
    Line NewLine(EmbeddedMixer& mixer, MixerLine line, const QString& name);
    QCheckBox* NewPlug(EmbeddedMixer& mixer, MixerSide side, const QString& name);
    static void ShowState(const Column& column);

    std::array<Column, 2> columns;
};

}  // namespace orvelle::deck
