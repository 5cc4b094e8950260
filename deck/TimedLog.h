// A list of what happened, each line with its time of day, the latest at the end and in sight. It keeps the last 200.
#pragma once

#include <QListWidget>

namespace orvelle::deck {

class TimedLog : public QListWidget {
public:
    TimedLog(const QString& name, const QString& toolTip);

    void Add(const QString& line);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
};

}  // namespace orvelle::deck
