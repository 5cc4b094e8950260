#include "adapters/qt/widgets/GreyedNotice.h"

#include <QApplication>
#include <QEvent>
#include <QVBoxLayout>
#include <utility>

namespace orvelle::qt {

GreyedNotice::GreyedNotice(QWidget& noticedPage, const QString& sentence) : Notice(&noticedPage), page(noticedPage) {
    setText(sentence);
    FollowPalette();
    static_cast<QVBoxLayout*>(page.layout())->insertWidget(1, this);
    page.installEventFilter(this);
    ShowState();
}

bool GreyedNotice::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &page && event->type() == QEvent::EnabledChange) ShowState();
    return Notice::eventFilter(watched, event);
}

void GreyedNotice::ShowState() {
    const bool isGreyed = !page.isEnabled();
    setVisible(isGreyed);
    page.setAccessibleDescription(isGreyed ? text() : QString());
    if (!isGreyed) {
        for (auto tip = usualTips.begin(); tip != usualTips.end(); ++tip) tip.key()->setToolTip(tip.value());
        usualTips.clear();
    } else if (usualTips.isEmpty()) {
        for (QWidget* widget : page.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
            if (widget->toolTip().isEmpty()) continue;
            usualTips.insert(widget, widget->toolTip());
            widget->setToolTip(text());
        }
    }
}

// The one thing of the page that is not greyed.
void GreyedNotice::FollowPalette() {
    QPalette colours;
    colours.setColor(QPalette::Disabled, QPalette::WindowText, QApplication::palette().color(QPalette::WindowText));
    setPalette(colours);
}

void GreyedNotice::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange) FollowPalette();
    Notice::changeEvent(event);
}

}  // namespace orvelle::qt
