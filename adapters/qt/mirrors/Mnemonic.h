// The letter that leads to a widget with Alt. The captions come from the logic and stay as they are; only the widget
// shows an ampersand before its letter, where its caption has that letter now (a button's caption may change).
#pragma once

#include <QChar>
#include <QString>

class QWidget;

namespace orvelle::qt {

void SetMnemonic(QWidget& widget, QChar letter);
// The caption as the widget is to be given it: ampersands of its own stand.
QString ShownCaption(const QString& caption, const QWidget& widget);

}  // namespace orvelle::qt
