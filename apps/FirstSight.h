// Calls, once, when a window is on the screen: from then on its frame and its place there are known. A window that is
// there already is told of from the loop as well. The window outlives this object, which may go before it has called.
#pragma once

#include <QObject>
#include <functional>

class QWidget;

namespace orvelle {

class FirstSight : public QObject {
public:
    FirstSight(const QWidget& window, std::function<void()> seen);

    bool eventFilter(QObject* window, QEvent* event) override;

private:
    void Look();

    const QWidget& watched;
    std::function<void()> call;
};

}  // namespace orvelle
