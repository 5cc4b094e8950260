// The flight deck: the window in which one person plays the simulator, the network session and the other side of an
// embedded set-up. The program makes it beside the panel and opens it where it wants. It knows nothing of the panel:
// it works on the set-up's objects and listens to their changes. Closing it minimises it, so that the taskbar brings
// it back; what is held down there is let go, and the panel lives on.
#pragma once

#include <QWidget>
#include <string>

namespace orvelle {

class EmbeddedSetUp;

namespace deck {
class SimulatorPage;
}

class DeckWindow : public QWidget {
public:
    // `embedded` outlives the window.
    explicit DeckWindow(EmbeddedSetUp& embedded);

    // Shows the window with its frame's corner at `position`, logical pixels, or as near to it as the screen allows.
    // It doesn't take the focus.
    void OpenAt(const QPoint& position);

    // A sentence about a program that the panel started, or failed to start, on this computer.
    void TellOfProgram(const std::string& sentence);

protected:
    void closeEvent(QCloseEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    EmbeddedSetUp& setUp;
    deck::SimulatorPage* simulator;
};

}  // namespace orvelle
