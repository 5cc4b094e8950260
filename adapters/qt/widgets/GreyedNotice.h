// Tells on a page, in one sentence, why it is greyed, while it is; the same sentence is then the tool tip of what the
// page holds, and what assistive programs say of the page.
#pragma once

#include <QHash>

#include "adapters/looks/SignLabel.h"

namespace orvelle::qt {

class GreyedNotice : public Notice {
    Q_OBJECT

public:
    // Takes a place in the page's layout, under the heading.
    GreyedNotice(QWidget& page, const QString& sentence);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void ShowState();
    void FollowPalette();

    QWidget& page;
    QHash<QWidget*, QString> usualTips;  // while the page is greyed
};

}  // namespace orvelle::qt
