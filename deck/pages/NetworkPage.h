// The network's side: the framework link, the user's session with its radios, and the interface records.
#pragma once

#include <QWidget>

#include "deck/pages/ChannelLookUp.h"

namespace orvelle {
struct FarSides;
}  // namespace orvelle

namespace orvelle::deck {

class Remark;

class NetworkPage : public QWidget {
public:
    // The network is there.
    explicit NetworkPage(const FarSides& sides, ChannelLookUp lookUp = {});

    // Session and radios are set by a simulator, and by nobody else meanwhile: a sentence on it, "" for none.
    void ShowRuler(const QString& sentence);

private:
    Remark* ruler;
    QString ruled;  // the sentence
    QWidget* session;
    QWidget* radios;
};

}  // namespace orvelle::deck
