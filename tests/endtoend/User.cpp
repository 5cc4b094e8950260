#include "tests/endtoend/User.h"

#include <QCheckBox>
#include <QProcess>
#include <algorithm>
#include <stdexcept>

#include "tests/qt/shell/WidgetInput.h"

namespace orvelle {

bool ComesTrue(const std::function<bool()>& isTrue) { return WaitFor(isTrue); }

void User::Do(const QStringList& words) {
    QProcess xdotool;
    xdotool.start("xdotool", words);
    if (!ComesTrue([&] { return xdotool.state() == QProcess::NotRunning; }))
        throw std::runtime_error("xdotool does not end: " + words.join(' ').toStdString());
}

// A check box listens on its box and its text alone, which stand at its left end.
void User::Click(const QWidget& widget) {
    QPoint place = Input.MiddleOf(widget);
    if (qobject_cast<const QCheckBox*>(&widget) != nullptr) place.rx() -= widget.width() / 2 - 8;
    ClickAt(place);
}

void User::RightClick(const QWidget& widget) { ClickAt(Input.MiddleOf(widget), "3"); }

void User::ClickAt(QPoint place, const QString& button) {
    Do({"mousemove", QString::number(place.x()), QString::number(place.y()), "click", button});
}

void User::Enter(const QWidget& field, const QString& text) {
    Click(field);
    Do({"key", "ctrl+a"});
    Do({"type", text});
    Do({"key", "Return"});
}

bool User::SeesDown(int linuxKey) const {
    const std::vector<int> down = keys.KeysDown();
    return std::find(down.begin(), down.end(), linuxKey) != down.end();
}

}  // namespace orvelle
