// Labels with a sign before their text, which wraps. A notice is a hint that always bears the triangle.
#pragma once

#include <QLabel>

#include "adapters/looks/Signs.h"

namespace orvelle {

class SignLabel : public QLabel {
    Q_OBJECT

public:
    explicit SignLabel(QWidget* parent = nullptr);

    virtual Sign ShownSign() const = 0;

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void MakeRoom();
};

class Notice : public SignLabel {
    Q_OBJECT

public:
    explicit Notice(QWidget* parent = nullptr) : SignLabel(parent) {}

    Sign ShownSign() const override { return Sign::Waiting; }
};

}  // namespace orvelle
