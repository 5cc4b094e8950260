#include "adapters/looks/Text.h"

#include <QTextDocument>

#include "adapters/shared/Utf8.h"

namespace orvelle {

namespace {

constexpr int LongestTipRun = 60;  // letters without a blank
constexpr QChar ZeroWidthSpace(0x200B);

}  // namespace

QString ToQt(const std::string& text) { return QString::fromStdString(ToUtf8(text)); }

std::string FromQt(const QString& text) { return text.toStdString(); }

// A tip of that kind wraps between words alone, so long ones are given places to do so, which don't show.
QString PlainTip(const QString& text) {
    if (text.isEmpty()) return {};
    QString wrapping;
    int run = 0;
    for (qsizetype at = 0; at < text.size(); ++at) {
        run = text[at].isSpace() ? 0 : run + 1;
        if (run > LongestTipRun && !text[at].isLowSurrogate()) {
            wrapping += ZeroWidthSpace;
            run = 1;
        }
        wrapping += text[at];
    }
    return Qt::convertFromPlainText(wrapping, Qt::WhiteSpaceNormal);
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
