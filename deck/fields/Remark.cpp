#include "deck/fields/Remark.h"

namespace orvelle::deck {

Remark::Remark(const QString& name) {
    setObjectName(name);
    setTextFormat(Qt::PlainText);
    hide();
}

void Remark::Show(const QString& sentence) {
    setText(sentence);
    setVisible(!sentence.isEmpty());
}

}  // namespace orvelle::deck
