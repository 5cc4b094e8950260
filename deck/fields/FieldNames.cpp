#include "deck/fields/FieldNames.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

#include "adapters/looks/Reading.h"
#include "adapters/looks/Text.h"

namespace orvelle::deck {

namespace {

bool IsNamed(const QWidget& field, const QString& label, bool hasCaption) {
    if (!field.accessibleName().isEmpty()) return true;
    const auto* button = qobject_cast<const QAbstractButton*>(&field);
    return !hasCaption && (label.isEmpty() || (button != nullptr && !button->text().isEmpty()));
}

// Of a kind that says or takes something; others only hold such.
bool IsField(const QWidget& widget) {
    const auto* label = qobject_cast<const QLabel*>(&widget);
    return (label && !label->buddy()) || qobject_cast<const QAbstractButton*>(&widget) ||
           qobject_cast<const QAbstractSpinBox*>(&widget) || qobject_cast<const QComboBox*>(&widget) ||
           qobject_cast<const QLineEdit*>(&widget) || dynamic_cast<const Reading*>(&widget);
}

void NameField(QWidget& field, const QString& label, const QString& caption) {
    if (!IsField(field)) {
        for (QWidget* part : field.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) NameField(*part, label, caption);
        return;
    }
    if (IsNamed(field, label, !caption.isEmpty())) return;
    const auto* button = qobject_cast<const QAbstractButton*>(&field);
    QStringList parts{label, button ? WithoutMnemonic(button->text()) : QString(), caption};
    parts.removeAll(QString());
    field.setAccessibleName(parts.join(", "));
}

}  // namespace

void NameFields(const QString& label, const QStringList& captions, std::initializer_list<QWidget*> fields) {
    const QString words = WithoutMnemonic(label);
    qsizetype column = 0;
    for (QWidget* field : fields) {
        if (field) NameField(*field, words, captions.value(column).simplified());
        ++column;
    }
}

}  // namespace orvelle::deck
