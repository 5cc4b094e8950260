// What a page of the main window lies in: it fits the page's grid to the room that there is, and scrolls what finds
// none. A page is never wider than is of use to it.
#pragma once

#include "adapters/looks/ScrolledArea.h"
#include "adapters/qt/windows/PageGrid.h"

namespace orvelle::qt {

class PageArea : public ScrolledArea {
    Q_OBJECT

public:
    PageArea(QWidget* formPage, QWidget* parent);

    // What the whole area needs for a page in its usual size.
    static QSize UsualSize(const QWidget& window);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void FollowFont();
    void Fit();

    QWidget& page;
    PageGrid grid;
};

}  // namespace orvelle::qt
