// What the network refuses the panel, records that no panel makes, and the sentence by which the settings store tells
// the user of trouble.
#pragma once

#include "deck/fields/Section.h"

class QLineEdit;

namespace orvelle {
class EmbeddedSetUp;
}  // namespace orvelle

namespace orvelle::deck {

class RefusalsBox : public Section {
public:
    explicit RefusalsBox(EmbeddedSetUp& embedded);

private:
    EmbeddedSetUp& setUp;
    QLineEdit* type;
    QLineEdit* role;
    QLineEdit* notice;
};

}  // namespace orvelle::deck
