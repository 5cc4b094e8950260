// The title of a page: larger than its texts, with a fine line under it.
#pragma once

#include <QLabel>

namespace orvelle::qt {

class Heading : public QLabel {
    Q_OBJECT

public:
    explicit Heading(QWidget* parent = nullptr);

    // Takes its size from the program's font, as it is now.
    void FollowFont();

protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace orvelle::qt
