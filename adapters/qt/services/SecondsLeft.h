// Shows at the end of a field how many seconds are left in which it takes keys, from its making to its end.
#pragma once

#include <QAction>
#include <QLineEdit>
#include <QPointer>
#include <QTimer>

namespace orvelle::qt {

class SecondsLeft {
public:
    SecondsLeft(QLineEdit& field, int seconds);
    SecondsLeft(const SecondsLeft&) = delete;
    SecondsLeft& operator=(const SecondsLeft&) = delete;
    ~SecondsLeft() { delete action; }

private:
    void Show();

    QPointer<QAction> action;  // goes with the field
    int left;
    QTimer next;
};

}  // namespace orvelle::qt
