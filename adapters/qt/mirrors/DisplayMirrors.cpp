#include "adapters/qt/mirrors/DisplayMirrors.h"

#include <QApplication>
#include <QEvent>

#include "adapters/looks/Reading.h"
#include "adapters/looks/Signs.h"
#include "adapters/looks/Text.h"
#include "adapters/qt/mirrors/Mnemonic.h"
#include "adapters/qt/widgets/StatusLine.h"

namespace orvelle::qt {

LabelMirror::LabelMirror(Label& mirroredLabel, QLabel& label)
    : Mirror(mirroredLabel, label), control(mirroredLabel), widget(label) {
    // The texts speak of "<Enter>", which is no mark-up.
    widget.setTextFormat(Qt::PlainText);
    widget.installEventFilter(this);
}

bool LabelMirror::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::PaletteChange) ShowOwn(ControlProperty::ForeColor);
    return Mirror::eventFilter(watched, event);
}

void LabelMirror::ShowOwn(ControlProperty property) {
    if (property == ControlProperty::Caption) {
        const QString before = widget.text();
        const QString caption = ToQt(control.Caption);
        widget.setText(widget.buddy() == nullptr ? caption : ShownCaption(caption, widget));
        TellWords(widget, before, widget.text());
    }
    if (property != ControlProperty::ForeColor) return;
    QPalette palette;
    if (control.ForeColor != ButtonTextColour) {
        const QColor color = TextColour(control.ForeColor, QApplication::palette());
        palette.setColor(QPalette::Active, QPalette::WindowText, color);
        palette.setColor(QPalette::Inactive, QPalette::WindowText, color);
    }
    widget.setPalette(palette);
    if (auto* line = qobject_cast<StatusLine*>(&widget)) line->SetForeColor(control.ForeColor);
}

void LabelMirror::ShowAllOwn() {
    ShowOwn(ControlProperty::Caption);
    ShowOwn(ControlProperty::ForeColor);
}

void LampMirror::ShowOwn(ControlProperty property) {
    if (property == ControlProperty::FillColor) widget.SetFill(control.FillColor);
}

void ImageMirror::ShowOwn(ControlProperty property) {
    if (property == ControlProperty::Picture) widget.SetKey(ToQt(control.Picture().Name));
}

void StatusBarMirror::ShowOwn(ControlProperty property) {
    if (property != ControlProperty::Panels) return;
    int field = 0;
    for (const StatusBar::Panel& panel : control.Panels()) {
        if (field == StatusFields::Fields) break;
        widget.SetField(field++, ToQt(panel.Text), ToQt(panel.ToolTipText));
    }
}

}  // namespace orvelle::qt
