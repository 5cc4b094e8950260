#include "adapters/looks/Text.h"

#include <QTextDocument>

#include "adapters/shared/Utf8.h"

namespace orvelle {

QString ToQt(const std::string& text) { return QString::fromStdString(ToUtf8(text)); }

std::string FromQt(const QString& text) { return text.toStdString(); }

QString PlainTip(const QString& text) {
    return text.isEmpty() ? QString() : Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal);
}

QString WithoutMnemonic(const QString& text) {
    QString shown;
    for (qsizetype place = 0; place < text.size(); ++place) {
        if (text[place] == QLatin1Char('&') && ++place == text.size()) break;
        shown += text[place];
    }
    return shown;
}

}  // namespace orvelle
