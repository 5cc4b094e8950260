#include "deck/Fields.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <utility>

namespace orvelle::deck {

namespace {

constexpr int LongestDelay = 60'000;  // milliseconds
constexpr int DelayStep = 100;

template <typename Widget>
Widget* Named(Widget* widget, const QString& name, const QString& toolTip) {
    widget->setObjectName(name);
    widget->setToolTip(toolTip);
    return widget;
}

}  // namespace

QLineEdit* NewEdit(const QString& name, const QString& toolTip, std::function<void(const std::string&)> apply) {
    auto* edit = Named(new QLineEdit, name, toolTip);
    edit->setMinimumWidth(edit->fontMetrics().averageCharWidth() * 12);
    QObject::connect(edit, &QLineEdit::editingFinished, edit, [edit, apply = std::move(apply)] {
        if (!edit->isModified()) return;
        edit->setModified(false);
        apply(edit->text().toStdString());
    });
    return edit;
}

QCheckBox* NewCheck(const QString& name, const QString& text, const QString& toolTip, std::function<void(bool)> apply) {
    auto* check = Named(new QCheckBox(text), name, toolTip);
    QObject::connect(check, &QCheckBox::clicked, check, std::move(apply));
    return check;
}

QComboBox* NewChoice(const QString& name, const QString& toolTip, const QStringList& entries,
                     std::function<void(int)> apply) {
    auto* box = Named(new QComboBox, name, toolTip);
    box->addItems(entries);
    QObject::connect(box, &QComboBox::activated, box, std::move(apply));
    return box;
}

QSpinBox* NewNumber(const QString& name, const QString& toolTip, int least, int most, std::function<void(int)> apply) {
    auto* box = Named(new QSpinBox, name, toolTip);
    box->setRange(least, most);
    box->setKeyboardTracking(false);
    QObject::connect(box, &QSpinBox::valueChanged, box, std::move(apply));
    return box;
}

QSpinBox* NewDelay(const QString& name, const QString& toolTip, int value, std::function<void(int)> apply) {
    auto* box = NewNumber(name, toolTip, 0, LongestDelay, std::move(apply));
    box->setSuffix(" ms");
    box->setSingleStep(DelayStep);
    ShowNumber(*box, value);
    return box;
}

QPushButton* NewButton(const QString& name, const QString& text, const QString& toolTip, std::function<void()> apply) {
    auto* button = Named(new QPushButton(text), name, toolTip);
    button->setAutoDefault(false);
    QObject::connect(button, &QPushButton::clicked, button, std::move(apply));
    return button;
}

void ShowText(QLineEdit& edit, const std::string& text) {
    const QString shown = QString::fromStdString(text);
    if (edit.isModified() || edit.text() == shown) return;
    edit.setText(shown);
    edit.setCursorPosition(0);
}

void ShowNumber(QSpinBox& box, int number) {
    if (box.hasFocus() || box.value() == number) return;
    const QSignalBlocker quiet(box);
    box.setValue(number);
}

}  // namespace orvelle::deck
