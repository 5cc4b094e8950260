// A line of text that the deck reads out, of any length: where the room is too narrow its middle is left out, and
// the whole text is the tool tip.
#pragma once

#include <QLabel>
#include <string>

namespace orvelle::deck {

class Readout : public QLabel {
public:
    explicit Readout(const QString& name);

    void Show(const QString& text);
    void Show(const std::string& text) { Show(QString::fromStdString(text)); }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace orvelle::deck
