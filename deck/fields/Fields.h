// The deck's fields, made with their names and tool tips and joined to what the user does with them: `apply` runs on
// the user's doing only, never when the program shows a value. Showing leaves alone what the user is typing, and Escape
// takes it back. The wheel turns a field that has the focus, and scrolls the page over any other one.
#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <string>

class QCheckBox;
class QComboBox;
class QPushButton;
class QSpinBox;

namespace orvelle::deck {

class TextField;

TextField* NewEdit(const QString& name, const QString& toolTip, std::function<void(const std::string&)> apply);
QCheckBox* NewCheck(const QString& name, const QString& text, const QString& toolTip, std::function<void(bool)> apply);
// Applies the index of the user's pick, at once.
QComboBox* NewChoice(const QString& name, const QString& toolTip, const QStringList& entries,
                     std::function<void(int)> apply);
// Applies by the arrows, by the wheel, by Enter or by leaving the field.
QSpinBox* NewNumber(const QString& name, const QString& toolTip, int least, int most, std::function<void(int)> apply);
// A time that something takes, milliseconds up to a minute.
QSpinBox* NewDelay(const QString& name, const QString& toolTip, int value, std::function<void(int)> apply);
QPushButton* NewButton(const QString& name, const QString& text, const QString& toolTip, std::function<void()> apply);

void ShowNumber(QSpinBox& box, int number);

}  // namespace orvelle::deck
