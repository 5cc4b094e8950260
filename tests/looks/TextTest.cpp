#include "adapters/looks/Text.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QTextDocument>
#include <QTextDocumentFragment>

namespace orvelle {
namespace {

TEST(TextTest, Utf8IsShownAsUtf8AndComesBackAsItWas) {
    const std::string text = "Gr\xc3\xbc\xc3\x9f Gott \xe2\x82\xac \xf0\x9f\x9b\xa9";
    EXPECT_EQ(ToQt(text), QString::fromUtf8("Grüß Gott € 🛩"));
    EXPECT_EQ(FromQt(ToQt(text)), text);
}

TEST(TextTest, BytesThatAreNoUtf8AreShownAsLatin1) {
    EXPECT_EQ(ToQt("M\xfcnchen"), QString::fromUtf8("München"));
    EXPECT_EQ(ToQt("cut \xe2\x82"), QString::fromLatin1("cut \xe2\x82"));
}

TEST(TextTest, AnEmptyTextIsEmpty) {
    EXPECT_TRUE(ToQt("").isEmpty());
    EXPECT_EQ(FromQt(QString()), "");
}

TEST(TextTest, ATipShowsItsTextToTheLetter) {
    const QString text = "<b>a & b</b> \"c\"";
    EXPECT_TRUE(Qt::mightBeRichText(PlainTip(text)));
    EXPECT_EQ(QTextDocumentFragment::fromHtml(PlainTip(text)).toPlainText(), text);
    EXPECT_TRUE(PlainTip("").isEmpty());
}

TEST(TextTest, ATipOfOneLongWordWraps) {
    const auto lines = [](const QString& text) {
        QLabel tip(PlainTip(text));
        tip.setWordWrap(true);
        return tip.sizeHint().height() / tip.fontMetrics().lineSpacing();
    };
    EXPECT_EQ(lines("tower"), 1);
    EXPECT_GE(lines(QString(1000, 'M')), 10);
    EXPECT_GE(lines("In " + QString(300, 'M')), 3);
}

}  // namespace
}  // namespace orvelle
