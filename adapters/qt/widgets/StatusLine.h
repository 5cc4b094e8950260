// A status line shows by its sign what its text tells: bad texts a cross, and good ones according to the line's letter
// in the status picture a check, a triangle, or the empty ring of a thing that is simply not in use.
#pragma once

#include "adapters/looks/SignLabel.h"
#include "platform/Types.h"

namespace orvelle::qt {

class StatusLine : public SignLabel {
    Q_OBJECT
    // The line's place in the key of the status picture, from 0.
    Q_PROPERTY(int place READ Place WRITE SetPlace)

public:
    explicit StatusLine(QWidget* parent = nullptr) : SignLabel(parent) {}

    int Place() const { return place; }
    void SetPlace(int number) { place = number; }
    void SetForeColor(Long color);
    Sign ShownSign() const override;

public slots:
    void SetKey(const QString& pictureKey);

private:
    int place = 0;
    bool isBad = false;
    QString key;
};

}  // namespace orvelle::qt
