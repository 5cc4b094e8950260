#include "deck/fields/TimedLog.h"

#include <QScrollBar>
#include <QTime>

namespace orvelle::deck {

namespace {

constexpr int LinesKept = 200;
constexpr int LinesWanted = 5;
constexpr int LinesLeast = 3;

}  // namespace

TimedLog::TimedLog(const QString& name, const QString& toolTip) {
    setObjectName(name);
    setToolTip(toolTip);
    setAccessibleName(toolTip);
    setWordWrap(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
}

void TimedLog::Add(const QString& line) {
    if (count() == LinesKept) delete takeItem(0);
    addItem(QTime::currentTime().toString("hh:mm:ss") + "  " + line);
    scrollToBottom();
}

void TimedLog::resizeEvent(QResizeEvent* event) {
    const bool wasAtEnd = verticalScrollBar()->value() == verticalScrollBar()->maximum();
    QListWidget::resizeEvent(event);
    if (wasAtEnd) scrollToBottom();
}

QSize TimedLog::sizeHint() const {
    return {QListWidget::sizeHint().width(), LinesWanted * fontMetrics().lineSpacing() + 2 * frameWidth()};
}

QSize TimedLog::minimumSizeHint() const {
    return {QListWidget::minimumSizeHint().width(), LinesLeast * fontMetrics().lineSpacing() + 2 * frameWidth()};
}

}  // namespace orvelle::deck
