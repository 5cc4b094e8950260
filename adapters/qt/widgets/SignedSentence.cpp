#include "adapters/qt/widgets/SignedSentence.h"

#include "adapters/looks/Reading.h"

namespace orvelle::qt {

SignedSentence::SignedSentence(QWidget* parent) : SignLabel(parent) {
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignTop | Qt::AlignLeft);
}

void SignedSentence::Say(Sign newSign, const QString& sentence) {
    if (newSign == sign && sentence == text()) return;
    const QString before = text();
    sign = newSign;
    setText(sentence);
    TellWords(*this, before, sentence);
    update();
}

}  // namespace orvelle::qt
