// A list of what happened, each line with its time of day, the latest at the end and in sight unless the user looks at
// earlier ones. It keeps the last 200. Lines are selected by mouse or keys, and copied or cleared from the menu of the
// right mouse button or by the usual keys.
#pragma once

#include <QListWidget>

namespace orvelle::deck {

class TimedLog : public QListWidget {
public:
    TimedLog(const QString& name, const QString& toolTip);

    void Add(const QString& line);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void AddMenu();
    void Copy() const;
};

}  // namespace orvelle::deck
