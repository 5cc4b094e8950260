#include "deck/fields/ScrolledPage.h"

#include <QTabWidget>
#include <QVBoxLayout>

#include "adapters/looks/ScrolledArea.h"
#include "adapters/looks/Theme.h"

namespace orvelle::deck {

namespace {

// What can do with less height, as logs and tables, does so before the page is scrolled.
class Margins : public QWidget {
public:
    int heightForWidth(int width) const override { return layout()->totalMinimumHeightForWidth(width); }
};

}  // namespace

void AddScrolledPage(QTabWidget& tabs, QWidget* page, const QString& title) {
    auto* frame = new Margins;
    auto* margins = new QVBoxLayout(frame);
    margins->setContentsMargins(2 * Unit, 2 * Unit, 2 * Unit, 2 * Unit);
    margins->addWidget(page);
    tabs.addTab(new ScrolledArea(frame), title);
}

}  // namespace orvelle::deck
