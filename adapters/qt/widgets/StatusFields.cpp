#include "adapters/qt/widgets/StatusFields.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>

#include "adapters/looks/Theme.h"

namespace orvelle::qt {

namespace {

// The first field keeps its width over the texts that it gets by turns.
constexpr int FirstFieldCharacters = 22;

}  // namespace

StatusFields::StatusFields(QWidget* parent) : QFrame(parent) {
    setFrameShape(QFrame::StyledPanel);
    setAccessibleName(tr("Status"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(Unit, Unit / 2, Unit, Unit / 2);
    row->setSpacing(Unit);
    for (QLabel*& label : labels) {
        label = new QLabel(this);
        label->setTextFormat(Qt::PlainText);
    }
    FollowFont();
    labels[1]->setWordWrap(true);
    divider = new QFrame(this);
    divider->setFrameShape(QFrame::VLine);
    divider->setFrameShadow(QFrame::Sunken);
    row->addWidget(labels[0]);
    row->addWidget(divider);
    row->addWidget(labels[1], 1);
}

QString StatusFields::Words() const {
    const QString first = labels[0]->text();
    const QString second = labels[1]->text();
    return first.isEmpty() || second.isEmpty() ? first + second : first + QLatin1String(", ") + second;
}

void StatusFields::FollowFont() { labels[0]->setMinimumWidth(fontMetrics().averageCharWidth() * FirstFieldCharacters); }

void StatusFields::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange) FollowFont();
    QFrame::changeEvent(event);
}

QString StatusFields::Text(int field) const { return labels[field]->text(); }

void StatusFields::SetField(int field, const QString& text, const QString& toolTip) {
    const QString before = Words();
    labels[field]->setText(text);
    TellWords(*this, before, Words());
    labels[field]->setToolTip(toolTip);
    divider->setVisible(!labels[1]->text().isEmpty());
}

}  // namespace orvelle::qt
