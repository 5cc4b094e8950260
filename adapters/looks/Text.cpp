#include "adapters/looks/Text.h"

#include <QStringDecoder>
#include <QTextDocument>

namespace orvelle {

QString ToQt(const std::string& text) {
    const QByteArrayView bytes(text.data(), static_cast<qsizetype>(text.size()));
    QStringDecoder decoder(QStringDecoder::Utf8, QStringConverter::Flag::Stateless);
    const QString decoded = decoder(bytes);
    return decoder.hasError() ? QString::fromLatin1(bytes) : decoded;
}

std::string FromQt(const QString& text) { return text.toStdString(); }

QString PlainTip(const QString& text) {
    return text.isEmpty() ? QString() : Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal);
}

}  // namespace orvelle
