#include "apps/Waiting.h"

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>

namespace orvelle {

namespace {

constexpr std::chrono::milliseconds LookEvery{2};

}  // namespace

bool WaitUntil(const std::function<bool()>& isTrue) {
    const QDeadlineTimer deadline(LongestWait);
    bool holds = isTrue();
    QEventLoop turns;
    QTimer look;
    look.setTimerType(Qt::PreciseTimer);
    QObject::connect(&look, &QTimer::timeout, [&] {
        holds = isTrue();
        if (holds || deadline.hasExpired()) turns.quit();
    });
    look.start(LookEvery);
    if (!holds) turns.exec();
    return holds;
}

}  // namespace orvelle
