// The keys of the panel's window: mnemonics, Delete in the tables, turning pages, the end; and pages that say why they
// are greyed.
#include <QAbstractButton>
#include <QLabel>
#include <QTest>
#include <QTreeView>
#include <QTreeWidget>
#include <map>

#include "adapters/looks/Text.h"
#include "adapters/qt/mirrors/Mnemonic.h"
#include "adapters/qt/widgets/GreyedNotice.h"
#include "tests/qt/forms/ShownPanel.h"
#include "tests/qt/shell/WidgetInput.h"

namespace orvelle::qt {
namespace {

class KeysTest : public ShownPanel {};

// The texts that a page shows with room for a mnemonic.
QStringList MnemonicTexts(const QWidget& page) {
    QStringList texts;
    for (const auto* button : page.findChildren<QAbstractButton*>()) texts << button->text();
    for (const auto* label : page.findChildren<QLabel*>())
        if (label->buddy() != nullptr) texts << label->text();
    return texts;
}

QChar MnemonicOf(const QString& text) {
    const QKeySequence keys = QKeySequence::mnemonic(text);
    return keys.isEmpty() ? QChar() : QChar(keys[0].key()).toLower();
}

TEST_F(KeysTest, NoMnemonicOfAPageIsThereTwiceAndAsManyControlsHaveOneAsCan) {
    for (int number = 0; number < PageCount; ++number) {
        std::map<QChar, QString> taken;
        QStringList without;
        for (const QString& text : MnemonicTexts(window.Page(number))) {
            const QChar letter = MnemonicOf(text);
            if (letter.isNull()) {
                without << text;
                continue;
            }
            EXPECT_TRUE(taken.emplace(letter, text).second)
                << number << ": " << text.toStdString() << " and " << taken[letter].toStdString();
        }
        for (const QString& text : without)
            for (const QChar letter : text.toLower())
                EXPECT_TRUE(!QString("abcdefghijklmnopqrstuvwxyz").contains(letter) || taken.contains(letter))
                    << number << ": " << text.toStdString() << " could have " << letter.toLatin1();
        EXPECT_FALSE(taken.empty()) << number;
    }
}

TEST_F(KeysTest, CaptionsStayAsTheyAre) {
    EXPECT_EQ(panel.RWRescan.Caption(), "Rescan");
    for (const Control* control : panel.Controls()) {
        const auto* button = dynamic_cast<const CommandButton*>(control);
        if (button == nullptr) continue;
        EXPECT_EQ(WithoutMnemonic(Widget<QAbstractButton>(*button).text()), ToQt(button->Caption)) << button->Name;
    }
}

TEST_F(KeysTest, AMnemonicFollowsACaptionThatChanges) {
    auto& button = Widget<QAbstractButton>(panel.RWRescan);
    SetMnemonic(button, 'c');
    panel.RWRescan.Caption = "Rescan";
    panel.RWRescan.Caption = "Back & cancel";
    EXPECT_EQ(button.text(), "Back && &cancel");
    panel.RWRescan.Caption = "Stop";
    EXPECT_EQ(button.text(), "Stop");
}

TEST_F(KeysTest, AltAndTheLetterClick) {
    panel.RWEnable.Click = Note("RWEnable");
    GoTo(RogerWilcoPanel);
    ASSERT_TRUE(WaitForWindowActive(&window));
    const QChar letter = MnemonicOf(Widget<QAbstractButton>(panel.RWEnable).text());
    QTest::keyClick(&window, static_cast<Qt::Key>(letter.toUpper().unicode()), Qt::AltModifier);
    EXPECT_TRUE(WaitFor([this] { return !events.empty(); }));
    EXPECT_EQ(panel.RWEnable.Value, 1);
}

TEST_F(KeysTest, DeleteInATableIsTheButton) {
    panel.Panels(JoyToKeyPanel).Enabled = true;
    panel.J2KDelete.Click = Note("J2KDelete");
    panel.K2KDelete.Click = Note("K2KDelete");
    GoTo(JoyToKeyPanel);
    ASSERT_TRUE(WaitForWindowActive(&window));
    auto& table = Widget<QTreeView>(panel.ListJoyToKey);
    table.setFocus();
    QTest::keyClick(&table, Qt::Key_Delete);
    EXPECT_EQ(events, std::vector<std::string>{"J2KDelete"});
    EXPECT_TRUE(table.hasFocus());
    Widget<QLineEdit>(panel.J2KKeyDisplay).setFocus();
    QTest::keyClick(&Widget<QLineEdit>(panel.J2KKeyDisplay), Qt::Key_Delete);
    EXPECT_EQ(events.size(), 1U);
}

TEST_F(KeysTest, PagesAreTurnedByKeys) {
    TreeNode& top = panel.twCategory.AddNode(nullptr, "First", "0");
    panel.twCategory.AddNode(nullptr, "Last", "1");
    std::string clicked;
    panel.twCategory.NodeClick = [&clicked](TreeNode& node) { clicked += node.Text + " "; };
    ASSERT_TRUE(WaitForWindowActive(&window));
    Widget<QTreeWidget>(panel.twCategory).setCurrentItem(Widget<QTreeWidget>(panel.twCategory).topLevelItem(0));
    clicked.clear();
    QTest::keyClick(&window, Qt::Key_PageDown, Qt::ControlModifier);
    QTest::keyClick(&window, Qt::Key_Tab, Qt::ControlModifier);
    QTest::keyClick(&window, Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(clicked, "Last First Last ");
    EXPECT_EQ(top.Text, "First");
}

TEST_F(KeysTest, ControlAndQIsTheTraysQuit) {
    panel.mnuTrayQuit.Click = Note("Quit");
    ASSERT_TRUE(WaitForWindowActive(&window));
    QTest::keyClick(&window, Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(events, std::vector<std::string>{"Quit"});
}

TEST_F(KeysTest, AGreyedPageSaysWhy) {
    auto& table = Widget<QTreeView>(panel.ListJoyToKey);
    auto& page = window.Page(JoyToKeyPanel);
    const auto& notice = *page.findChild<GreyedNotice*>();
    panel.Panels(JoyToKeyPanel).Enabled = true;
    GoTo(JoyToKeyPanel);
    const QString usual = table.toolTip();
    EXPECT_FALSE(notice.isVisible());
    panel.Panels(JoyToKeyPanel).Enabled = false;
    EXPECT_TRUE(notice.isVisible());
    EXPECT_EQ(table.toolTip(), notice.text());
    EXPECT_EQ(page.accessibleDescription(), notice.text());
    panel.Panels(JoyToKeyPanel).Enabled = true;
    EXPECT_FALSE(notice.isVisible());
    EXPECT_EQ(table.toolTip(), usual);
    EXPECT_TRUE(page.accessibleDescription().isEmpty());
}

}  // namespace
}  // namespace orvelle::qt
