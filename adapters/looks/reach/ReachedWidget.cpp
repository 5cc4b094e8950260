#include "adapters/looks/reach/ReachedWidget.h"

#include <QTextDocumentFragment>

namespace orvelle {

QString ReachedWidget::text(QAccessible::Text kind) const {
    const QString said = QAccessibleWidget::text(kind);
    const bool isMarkedUp = kind == QAccessible::Description && Qt::mightBeRichText(said);
    return isMarkedUp ? QTextDocumentFragment::fromHtml(said).toPlainText() : said;
}

}  // namespace orvelle
