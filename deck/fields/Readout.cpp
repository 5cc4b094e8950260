#include "deck/fields/Readout.h"

namespace orvelle::deck {

Readout::Readout(const QString& name) {
    setObjectName(name);
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

}  // namespace orvelle::deck
