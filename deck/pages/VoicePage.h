// The voice engine's page: the engine, its three rooms and its devices beside the parameters in which the panel and
// other parties meet. It is also where the engine's calibration dialogue is shown.
#pragma once

#include <QWidget>

namespace orvelle {
class EmbeddedTessaly;
class EmbeddedVoiceEngine;
}  // namespace orvelle

namespace orvelle::deck {

class VoicePage : public QWidget {
public:
    VoicePage(EmbeddedVoiceEngine& voiceEngine, EmbeddedTessaly& tessaly);
    VoicePage(const VoicePage&) = delete;
    VoicePage& operator=(const VoicePage&) = delete;
    ~VoicePage() override;

private:
    EmbeddedVoiceEngine& engine;
};

}  // namespace orvelle::deck
