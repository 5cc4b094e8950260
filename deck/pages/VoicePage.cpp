#include "deck/pages/VoicePage.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "deck/fields/PageHead.h"
#include "deck/fields/Remark.h"
#include "deck/pages/CalibrationDialog.h"
#include "deck/pages/DevicesBox.h"
#include "deck/pages/EngineBox.h"
#include "deck/pages/ParametersBox.h"
#include "deck/pages/RoomsBox.h"
#include "platform/sides/FarSides.h"
#include "platform/sides/VoiceEngineSide.h"

namespace orvelle::deck {

namespace {

constexpr const char* HeardEngineServes =
    "The voice engine that is heard serves: what happens in it is real, and can't be played here.";

}  // namespace

VoicePage::VoicePage(const FarSides& sides) {
    setObjectName("VoicePage");
    VoiceEngineSide& engine = *sides.VoiceEngine;
    VoiceEngineView& serving = *sides.ServingEngine;
    const AudioDevices& devices = *sides.Devices;
    // In front of the window in which the user asked for it.
    calibration = engine.AnswerCalibration([&engine, &devices](Long inputDevice, Long outputDevice) {
        return AskCalibration(QApplication::activeWindow(), engine, devices, inputDevice, outputDevice);
    });

    auto* realServes = new Remark("RealEngineServes");
    const auto showWhoServes = [&engine, realServes] { realServes->Show(engine.IsServing() ? "" : HeardEngineServes); };
    watch = serving.Observe(showWhoServes);

    auto* column = new QVBoxLayout;
    column->setSpacing(SectionGap);
    column->addWidget(realServes);
    column->addWidget(new EngineBox(engine, serving));
    column->addWidget(new RoomsBox(engine, serving));
    column->addWidget(new DevicesBox(engine, serving, devices));
    column->addStretch();
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(3 * Unit);
    row->addLayout(column, 1);
    if (sides.Network) row->addWidget(new ParametersBox(*sides.Network), 1);
    AddPageHead(
        *this,
        "What the panel has the voice engine do, and how its starts and joins go. A flight needs no change here.");
    showWhoServes();
}

}  // namespace orvelle::deck
