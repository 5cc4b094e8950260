// A text of any length stays in its place and can be read whole.
#include "adapters/looks/ElidedLabel.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QHelpEvent>
#include <QImage>
#include <QTextDocumentFragment>
#include <QToolTip>

#include "tests/qt/shell/WidgetInput.h"

namespace orvelle {
namespace {

class ElidedLabelTest : public testing::Test {
protected:
    ElidedLabelTest() {
        label.setText(Text);
        label.resize(label.sizeHint());
        label.show();
    }
    ~ElidedLabelTest() override { QToolTip::hideText(); }

    // As when the mouse rests on it.
    void AskForTip() {
        QHelpEvent event(QEvent::ToolTip, {1, 1}, label.mapToGlobal(QPoint(1, 1)));
        QCoreApplication::sendEvent(&label, &event);
    }
    static bool HasRightHalf(const QImage& picture) {
        const QRgb ground = picture.pixel(0, 0);
        for (int y = 0; y < picture.height(); ++y)
            for (int x = picture.width() / 2; x < picture.width(); ++x)
                if (picture.pixel(x, y) != ground) return true;
        return false;
    }
    void Narrow() { label.resize(label.minimumSizeHint()); }

    const QString Text = QStringLiteral("the beginning <b>of a long & winding text</b> and its end");
    ElidedLabel label;
};

TEST_F(ElidedLabelTest, NeedsNoMoreThanAFewLetters) {
    const QSize least = label.minimumSizeHint();
    EXPECT_LT(least.width(), label.sizeHint().width() / 3);
    label.setText(Text + Text);
    EXPECT_EQ(label.minimumSizeHint(), least);
}

TEST_F(ElidedLabelTest, WantsTheRoomOfItsTextOnOneLine) {
    const int height = label.sizeHint().height();
    EXPECT_EQ(label.sizeHint().width(), label.fontMetrics().horizontalAdvance(Text));
    label.setText(QStringLiteral("two\nlines"));
    EXPECT_EQ(label.sizeHint().height(), height);
}

TEST_F(ElidedLabelTest, LeavesOutTheMiddle) {
    Narrow();
    const QImage cut = label.grab().toImage();
    EXPECT_TRUE(HasRightHalf(cut));
    label.setText(label.fontMetrics().elidedText(Text, Qt::ElideMiddle, label.width()));
    EXPECT_EQ(label.grab().toImage(), cut);
    label.setText(label.fontMetrics().elidedText(Text, Qt::ElideRight, label.width()));
    EXPECT_NE(label.grab().toImage(), cut);
}

TEST_F(ElidedLabelTest, TellsItsWholeTextToTheLetterWhereItIsCut) {
    Narrow();
    AskForTip();
    EXPECT_EQ(QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText(), Text);
}

TEST_F(ElidedLabelTest, HasItsOwnTipWhereItIsNot) {
    AskForTip();
    EXPECT_EQ(QToolTip::text(), "");
    label.setToolTip(QStringLiteral("own"));
    AskForTip();
    EXPECT_TRUE(WaitFor([] { return QToolTip::text() == QStringLiteral("own"); }));
}

}  // namespace
}  // namespace orvelle
