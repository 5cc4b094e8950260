// What it takes for a widget to be shown whole.
#pragma once

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>

#include "adapters/looks/ElidedLabel.h"
#include "adapters/looks/Theme.h"

namespace orvelle::qt {

// What the widget needs to show its whole text, or its least size.
inline QSize Needed(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        if (qobject_cast<const ElidedLabel*>(label) != nullptr) return label->minimumSizeHint();
        if (label->wordWrap()) return {label->minimumSizeHint().width(), label->heightForWidth(label->width())};
        return label->sizeHint();
    }
    if (const auto* field = qobject_cast<const QLineEdit*>(&widget)) {
        const int text = field->fontMetrics().horizontalAdvance(field->text());
        return {field->isReadOnly() ? text + 2 * Unit : 0, field->sizeHint().height()};
    }
    if (qobject_cast<const QAbstractButton*>(&widget) != nullptr) return widget.sizeHint();
    return widget.minimumSizeHint();
}

}  // namespace orvelle::qt
