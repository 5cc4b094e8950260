// Takes the pictures that README.md shows, of a whole panel at work: what its user set up on another day is in its
// settings, links and session are up, both radios are tuned, one of them talks; and one of the simulator's program,
// SimulatorPicture.h. Each picture is a PNG, named by what it shows and the palette: overview-light.png. For a display
// of its own with a tray, where nothing else happens.
#pragma once

#include <QDir>

#include "apps/PanelProgram.h"

namespace orvelle {

class ReadmePictures {
public:
    // `palette` is the end of the pictures' names, "light" or "dark". The folder is made where missing.
    ReadmePictures(PanelProgram& panelProgram, const QDir& pictureFolder, QString palette);

    // Before the panel opens: what its user set up on another day.
    void Prepare();
    // False, with a line on standard error, if the panel didn't come to what is to be seen.
    bool Take();

private:
    bool PlayFlight();
    bool TakePage(const char* node, const char* name);
    void Keep(const QPixmap& picture, const QString& name) const;

    PanelProgram& house;
    const QDir folder;
    const QString ending;
};

}  // namespace orvelle
