#include "adapters/qt/mirrors/Mnemonic.h"

#include <QVariant>
#include <QWidget>

namespace orvelle::qt {

namespace {

constexpr const char* Property = "mnemonic";

}  // namespace

void SetMnemonic(QWidget& widget, QChar letter) { widget.setProperty(Property, letter); }

QString ShownCaption(const QString& caption, const QWidget& widget) {
    const QChar letter = widget.property(Property).toChar();
    qsizetype place = letter.isNull() ? -1 : caption.indexOf(letter, 0, Qt::CaseInsensitive);
    // The first letter of a word stands out more than the same one within a word before it.
    for (qsizetype other = place; other > 0; other = caption.indexOf(letter, other + 1, Qt::CaseInsensitive))
        if (!caption[other - 1].isLetterOrNumber()) {
            place = other;
            break;
        }
    QString shown;
    for (qsizetype at = 0; at < caption.size(); ++at) {
        if (at == place || caption[at] == QLatin1Char('&')) shown += QLatin1Char('&');
        shown += caption[at];
    }
    return shown;
}

}  // namespace orvelle::qt
