#include "deck/pages/VoicePage.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "adapters/embedded/VoiceEngine.h"
#include "deck/pages/CalibrationDialog.h"
#include "deck/pages/DevicesBox.h"
#include "deck/pages/EngineBox.h"
#include "deck/pages/ParametersBox.h"
#include "deck/pages/RoomsBox.h"

namespace orvelle::deck {

VoicePage::VoicePage(EmbeddedVoiceEngine& voiceEngine, EmbeddedTessaly& tessaly) : engine(voiceEngine) {
    setObjectName("VoicePage");
    // In front of the window in which the user asked for it.
    engine.CalibrationDialogue = [this](Long inputDevice, Long outputDevice) {
        return AskCalibration(QApplication::activeWindow(), engine, inputDevice, outputDevice);
    };

    auto* column = new QVBoxLayout;
    column->setSpacing(SectionGap);
    column->addWidget(new EngineBox(engine));
    column->addWidget(new RoomsBox(engine));
    column->addWidget(new DevicesBox(engine));
    column->addStretch();
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(3 * Unit);
    row->addLayout(column, 1);
    row->addWidget(new ParametersBox(tessaly), 1);
}

VoicePage::~VoicePage() { engine.CalibrationDialogue = nullptr; }

}  // namespace orvelle::deck
