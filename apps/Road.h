// Plays the road of one radio change on a real panel: links and session come up, the user ticks RogerWilco and maps a
// key, tunes COM1, and presses the key; then the pictures. Each step waits for what it is to bring about and prints
// one line; a step that brings nothing about ends the road.
#pragma once

#include <QDir>
#include <functional>
#include <string>

#include "apps/KeyWatch.h"
#include "apps/PanelProgram.h"
#include "apps/VoiceStandIn.h"

namespace orvelle {

class Road {
public:
    // Makes a program in `workFolder` and has it run, so nobody else may write there. Pictures are left in
    // `pictureFolder`, which is made where missing.
    Road(PanelProgram& panelProgram, const QString& workFolder, const QString& pictureFolder);

    // Before the panel opens: what its user set up on another day.
    void Prepare();
    // False if a step failed.
    bool Play();

private:
    bool Step(const std::string& told, const std::function<void()>& act, const std::function<bool()>& isDone);
    void TakePictures();

    PanelProgram& house;
    QDir pictures;
    VoiceStandIn voiceProgram;
    KeyWatch keys;
};

}  // namespace orvelle
