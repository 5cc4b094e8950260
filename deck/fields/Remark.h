// A sentence below the fields that it speaks of, with the triangle before it; without a sentence it isn't there.
#pragma once

#include <QLabel>

namespace orvelle::deck {

class Remark : public QLabel {
public:
    explicit Remark(const QString& name);

    // "" for none.
    void Show(const QString& sentence);

protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace orvelle::deck
