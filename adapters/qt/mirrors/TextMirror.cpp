#include "adapters/qt/mirrors/TextMirror.h"

#include <QApplication>
#include <QEvent>
#include <limits>

#include "adapters/looks/Text.h"
#include "adapters/looks/Theme.h"

namespace orvelle::qt {

TextMirror::TextMirror(TextBox& textBox, QLineEdit& lineEdit)
    : Mirror(textBox, lineEdit), control(textBox), widget(lineEdit) {
    widget.setTextMargins(Unit / 2, 0, Unit / 2, 0);
    widget.setMaxLength(std::numeric_limits<int>::max());
    if (control.Locked()) {
        widget.setReadOnly(true);
        widget.installEventFilter(this);
        ShowLocked();
    }
    // Whoever wrote it: an assistive program doesn't type. What the control has already was written by its program.
    connect(&widget, &QLineEdit::textChanged, this, [this](const QString& written) {
        if (written == ToQt(control.Text)) return;
        control.UserType(FromQt(written));
        ShowOwn(ControlProperty::Text);
    });
}

// A field that only shows stands in the colour of the page.
void TextMirror::ShowLocked() {
    QPalette display;
    display.setColor(QPalette::Base, QApplication::palette().color(QPalette::Window));
    widget.setPalette(display);
}

bool TextMirror::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::PaletteChange) ShowLocked();
    return Mirror::eventFilter(watched, event);
}

void TextMirror::ShowOwn(ControlProperty property) {
    if (property != ControlProperty::Text) return;
    const QString text = ToQt(control.Text);
    if (widget.text() == text) return;
    widget.setText(text);
    if (control.Locked()) widget.setCursorPosition(0);
}

}  // namespace orvelle::qt
