#include "deck/fields/PageHead.h"

#include <QLabel>
#include <QVBoxLayout>

#include "deck/fields/Section.h"

namespace orvelle::deck {

void AddPageHead(QWidget& page, const QString& words) {
    auto* head = new QLabel(words);
    head->setWordWrap(true);
    head->setForegroundRole(QPalette::PlaceholderText);
    auto* below = new QWidget;
    below->setLayout(page.layout());
    auto* column = new QVBoxLayout(&page);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(SectionGap);
    column->addWidget(head);
    column->addWidget(below, 1);
}

}  // namespace orvelle::deck
