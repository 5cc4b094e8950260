// Labels with a sign before their text, which wraps. A status line shows by its sign what its text tells: bad texts a
// cross, and good ones according to the line's letter in the status picture a check, a triangle, or the empty ring of a
// thing that is simply not in use. A notice is a hint that always bears the triangle.
#pragma once

#include <QLabel>

#include "adapters/looks/Signs.h"
#include "platform/Types.h"

namespace orvelle::qt {

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

class Notice : public SignLabel {
    Q_OBJECT

public:
    explicit Notice(QWidget* parent = nullptr) : SignLabel(parent) {}

    Sign ShownSign() const override { return Sign::Waiting; }
};

// The triangle alone, for a window that warns.
class WarningSign : public QWidget {
    Q_OBJECT

public:
    explicit WarningSign(QWidget* parent = nullptr) : QWidget(parent) {}

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace orvelle::qt
