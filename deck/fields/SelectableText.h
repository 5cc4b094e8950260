// A text that the deck reads out in the width that it is given, wrapped and as high as it needs, of which the mouse can
// select and copy. For sentences and file names that one takes elsewhere; a Readout serves the rest.
#pragma once

#include <QTextEdit>
#include <string>

namespace orvelle::deck {

class SelectableText : public QTextEdit {
public:
    explicit SelectableText(const QString& name);

    void Show(const std::string& text);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void resizeEvent(QResizeEvent* event) override;
};

}  // namespace orvelle::deck
