#include "deck/fields/Fields.h"

#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QWheelEvent>
#include <utility>

#include "deck/fields/TextField.h"

namespace orvelle::deck {

namespace {

constexpr int LongestDelay = 60'000;  // milliseconds
constexpr int DelayStep = 100;

// A page that is scrolled passes below the mouse: a field that happens to come there keeps its value.
template <typename Field>
class FocusedField : public Field {
public:
    FocusedField() { Field::setFocusPolicy(Qt::StrongFocus); }

protected:
    void wheelEvent(QWheelEvent* event) override {
        if (Field::hasFocus())
            Field::wheelEvent(event);
        else
            event->ignore();
    }
};

class NumberField : public FocusedField<QSpinBox> {
protected:
    void keyPressEvent(QKeyEvent* event) override {
        // The value is what was applied last: shown once more, it takes back what was typed.
        if (event->key() == Qt::Key_Escape)
            setValue(value());
        else
            FocusedField::keyPressEvent(event);
    }
};

template <typename Widget>
Widget* Named(Widget* widget, const QString& name, const QString& toolTip) {
    widget->setObjectName(name);
    widget->setToolTip(toolTip);
    return widget;
}

}  // namespace

TextField* NewEdit(const QString& name, const QString& toolTip, std::function<void(const std::string&)> apply) {
    return Named(new TextField(std::move(apply)), name, toolTip);
}

QCheckBox* NewCheck(const QString& name, const QString& text, const QString& toolTip, std::function<void(bool)> apply) {
    auto* check = Named(new QCheckBox(text), name, toolTip);
    QObject::connect(check, &QCheckBox::clicked, check, std::move(apply));
    return check;
}

QComboBox* NewChoice(const QString& name, const QString& toolTip, const QStringList& entries,
                     std::function<void(int)> apply) {
    auto* box = Named(new FocusedField<QComboBox>, name, toolTip);
    box->addItems(entries);
    QObject::connect(box, &QComboBox::activated, box, std::move(apply));
    return box;
}

QSpinBox* NewNumber(const QString& name, const QString& toolTip, int least, int most, std::function<void(int)> apply) {
    auto* box = Named(new NumberField, name, toolTip);
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

void ShowNumber(QSpinBox& box, int number) {
    if (box.hasFocus() || box.value() == number) return;
    const QSignalBlocker quiet(box);
    box.setValue(number);
}

}  // namespace orvelle::deck
