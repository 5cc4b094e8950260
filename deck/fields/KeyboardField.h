// The simulator's keyboard: what is typed into this field goes down and up on the simulator's computer, key by key,
// with the repeats that the system makes; the program sees to it that a repeat comes as one more press, without a
// release before it. Every key but Tab is taken, also those of shortcuts. What is held when the focus goes, or the
// window, is let go. While the link is down keys go nowhere.
#pragma once

#include <QFrame>
#include <string>
#include <vector>

#include "platform/Ticket.h"

class QLabel;

namespace orvelle {
class SimulatorSide;
}  // namespace orvelle

namespace orvelle::deck {

class KeyboardField : public QFrame {
public:
    explicit KeyboardField(SimulatorSide& simulatorSide);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    struct Held {
        int Place;  // of the key, or its number below 0 where it has none
        std::string Name;
    };

    void FollowFont();
    void ReleaseAll();
    void ShowState();

    SimulatorSide& simulator;
    std::vector<Held> held;  // in the order in which they went down
    QLabel* sequence;
    QLabel* hint;
    Ticket watch;
};

}  // namespace orvelle::deck
