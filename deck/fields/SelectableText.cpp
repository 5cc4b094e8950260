#include "deck/fields/SelectableText.h"

#include <QtMath>
#include <algorithm>

#include "adapters/looks/Text.h"

namespace orvelle::deck {

SelectableText::SelectableText(const QString& name) {
    setObjectName(name);
    setReadOnly(true);
    setFrameStyle(QFrame::NoFrame);
    setTabChangesFocus(true);
    setFocusPolicy(Qt::ClickFocus);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    document()->setDocumentMargin(0);
    viewport()->setAutoFillBackground(false);
}

// What is selected stays while the text does.
void SelectableText::Show(const std::string& text) {
    const QString shown = ToQt(text);
    if (toPlainText() == shown) return;
    setPlainText(shown);
    updateGeometry();
}

QSize SelectableText::sizeHint() const {
    const int height = std::max(qCeil(document()->size().height()), fontMetrics().lineSpacing());
    return {fontMetrics().averageCharWidth(), height};
}

// The height follows from the width, which the layout gives first.
void SelectableText::resizeEvent(QResizeEvent* event) {
    QTextEdit::resizeEvent(event);
    updateGeometry();
}

}  // namespace orvelle::deck
