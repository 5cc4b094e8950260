// A lamp, lit or not. With `letters` it is a radio's lamp, a key with the letters and an arrow (incoming or outgoing):
// filled while lit, an outline while not. Without letters it is a sign by its fill colour, a check or a cross, and
// keeps its place, empty, while it is not lit. The forms hold it for shapes.
#pragma once

#include <QWidget>

#include "adapters/looks/Reading.h"
#include "adapters/looks/Signs.h"
#include "platform/Types.h"

namespace orvelle::qt {

class Lamp : public QWidget, public Reading {
    Q_OBJECT
    Q_PROPERTY(QString letters READ Letters WRITE SetLetters)
    Q_PROPERTY(bool outgoing READ IsOutgoing WRITE SetOutgoing)

public:
    explicit Lamp(QWidget* parent = nullptr) : QWidget(parent) {}

    QString Letters() const { return letters; }
    void SetLetters(const QString& text);
    bool IsOutgoing() const { return isOutgoing; }
    void SetOutgoing(bool outgoing);
    bool IsLit() const { return isLit; }
    void SetLit(bool lit);
    Sign ShownSign() const { return sign; }
    void SetFill(Long fillColor);
    QString Words() const override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    // A sign's tip tells in words what it shows.
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void DrawKey(QPainter& painter) const;

    QString letters;
    bool isOutgoing = false;
    bool isLit = false;
    Sign sign = Sign::Good;
};

}  // namespace orvelle::qt
