// A label before another one in its row, with the gap between them; without a text it takes no room, and what follows
// stands in its place.
#pragma once

#include <QLabel>

namespace orvelle::qt {

class LeadingLabel : public QLabel {
    Q_OBJECT

public:
    explicit LeadingLabel(QWidget* parent = nullptr) : QLabel(parent) {}

    QSize sizeHint() const override { return WithGap(QLabel::sizeHint()); }
    QSize minimumSizeHint() const override { return WithGap(QLabel::minimumSizeHint()); }

private:
    QSize WithGap(QSize size) const;
};

}  // namespace orvelle::qt
