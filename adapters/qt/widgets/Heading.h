// The title of a page: larger than its texts, with a fine line under it.
#pragma once

#include <QLabel>

namespace orvelle::qt {

class Heading : public QLabel {
    Q_OBJECT

public:
    explicit Heading(QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void FollowFont();
};

}  // namespace orvelle::qt
