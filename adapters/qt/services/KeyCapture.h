// Takes the keys that the user presses in this program's windows away from the widgets and keeps them as key-down
// messages, or drops them. While it captures, the mouse acts on no other widget of the captured one's window.
// Combinations with Alt are system keys: they are not taken, and no shortcuts meanwhile. Costs nothing while it is off.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <deque>

#include "platform/Windows.h"

class QKeyEvent;

namespace orvelle::qt {

class KeyCapture : public QObject {
public:
    enum class Mode { Off, Dropping, Capturing };

    // Returns the mode before.
    Mode SetMode(Mode newMode);
    // Whom the messages are for, and the widget that the mouse may still act on; null is none.
    void SetTarget(Control& window, QWidget* widget);
    // The oldest message; false if none waits. `remove` 0 leaves it waiting.
    bool Take(WindowMessage& message, bool remove);
    void DropWaiting() { waiting.clear(); }

    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    void Keep(const QKeyEvent& key);
    bool MouseIsCaught(QObject* receiver) const;

    Mode mode = Mode::Off;
    Control* target = nullptr;
    QPointer<QWidget> targetWidget;
    std::deque<WindowMessage> waiting;
};

}  // namespace orvelle::qt
