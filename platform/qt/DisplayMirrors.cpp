#include "platform/qt/DisplayMirrors.h"

#include "platform/qt/SignLabel.h"
#include "platform/qt/Text.h"
#include "platform/qt/Theme.h"

namespace orvelle {

LabelMirror::LabelMirror(Label& mirroredLabel, QLabel& label)
    : Mirror(mirroredLabel, label), control(mirroredLabel), widget(label) {
    // The texts speak of "<Enter>", which is no mark-up.
    widget.setTextFormat(Qt::PlainText);
}

void LabelMirror::ShowOwn(ControlProperty property) {
    if (property == ControlProperty::Caption) widget.setText(ToQt(control.Caption));
    if (property != ControlProperty::ForeColor) return;
    QPalette palette;
    if (control.ForeColor != ButtonTextColour) {
        const QColor color = TextColour(control.ForeColor, widget.palette());
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

}  // namespace orvelle
