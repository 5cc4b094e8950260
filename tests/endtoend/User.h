// The user: real clicks and key presses by xdotool on the widgets of this process's windows, each served by the loop
// before the next. Also other programs' eyes on the X server.
#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>
#include <functional>

#include "apps/KeyWatch.h"
#include "tests/qt/shell/RealInput.h"

namespace orvelle {

// Serves the loop until `isTrue`; false when a generous time is up.
bool ComesTrue(const std::function<bool()>& isTrue);

class User {
public:
    // Runs xdotool; the loop is served meanwhile.
    void Do(const QStringList& words);
    void Click(const QWidget& widget);
    void RightClick(const QWidget& widget);
    void ClickAt(QPoint place, const QString& button = "1");
    // Replaces a field's text and presses Enter.
    void Enter(const QWidget& field, const QString& text);
    void KeyDown(const QString& key) { Do({"keydown", key}); }
    void KeyUp(const QString& key) { Do({"keyup", key}); }
    // Another X client sees that a key, by its Linux number, is down.
    bool SeesDown(int linuxKey) const;

    qt::RealInput Input;

private:
    KeyWatch keys;
};

}  // namespace orvelle
