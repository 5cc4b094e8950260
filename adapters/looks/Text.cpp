#include "adapters/looks/Text.h"

#include <QStringDecoder>

namespace orvelle {

QString ToQt(const std::string& text) {
    const QByteArrayView bytes(text.data(), static_cast<qsizetype>(text.size()));
    QStringDecoder decoder(QStringDecoder::Utf8, QStringConverter::Flag::Stateless);
    const QString decoded = decoder(bytes);
    return decoder.hasError() ? QString::fromLatin1(bytes) : decoded;
}

std::string FromQt(const QString& text) { return text.toStdString(); }

}  // namespace orvelle
