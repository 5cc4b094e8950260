// Keeps what the panel itself strikes on this computer's keyboard out of a window: it comes back from the window system
// as every stroke does, and the flight deck would take it for the user's, pressed on the simulator's computer. Keys
// that the panel holds go down for that window only once they have been let go. Both outlive this object.
#pragma once

#include <QObject>

class QWidget;

namespace orvelle {

class ThisComputer;

class OwnStrokes : public QObject {
public:
    OwnStrokes(const ThisComputer& thisComputer, const QWidget& window);

    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    const ThisComputer& computer;
    const QWidget& shielded;
};

}  // namespace orvelle
