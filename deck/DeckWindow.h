// The flight deck: the window in which one person plays the simulator, the network session and the other side of the
// panel. The program makes it beside the panel and opens it where it wants. It knows nothing of the panel: it works on
// the far sides that this computer plays, with a part for each that is there, and listens to their changes. Closing it
// hides it, and what is held down there is let go; the panel lives on.
#pragma once

#include <QPointer>
#include <QWidget>
#include <string>

#include "platform/Event.h"
#include "platform/sides/FarSides.h"

namespace orvelle {

namespace deck {
class JoinDialog;
class SimulatorPage;
}  // namespace deck

class DeckWindow : public QWidget {
public:
    // The far sides outlive the window.
    explicit DeckWindow(const FarSides& farSides);

    // Without its frame: in the usual one, and from the least width on, no page is scrolled sideways.
    QSize UsualSize() const;
    int LeastWidth() const;

    // Shows the window there, logical pixels, its frame included. It doesn't take the focus.
    void OpenIn(const QRect& frame);
    // By the user.
    Event<> Closed;

    // A sentence about a program that the panel started, or failed to start, on this computer.
    void TellOfProgram(const std::string& sentence);

protected:
    void closeEvent(QCloseEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    QWidget* Corner();  // of the pages' tabs
    void OpenJoinDialog();

    const FarSides sides;
    deck::SimulatorPage* simulator = nullptr;  // null where no simulator is played here
    QPointer<deck::JoinDialog> joinDialog;     // null while it is closed
};

}  // namespace orvelle
