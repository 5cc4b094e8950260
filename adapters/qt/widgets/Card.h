// The face of an instrument: a box with rounded corners that sets what is on it apart from the page.
#pragma once

#include <QFrame>

namespace orvelle::qt {

class Card : public QFrame {
    Q_OBJECT

public:
    explicit Card(QWidget* parent = nullptr) : QFrame(parent) {}

protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace orvelle::qt
