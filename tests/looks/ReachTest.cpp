// What assistive programs find in our widgets, and that what they do to them is what a user does.
#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QSlider>
#include <QVBoxLayout>

#include "adapters/looks/Reading.h"
#include "adapters/looks/Theme.h"
#include "tests/qt/shell/WidgetInput.h"

namespace orvelle {
namespace {

class SaidLamp : public QWidget, public Reading {
public:
    QString Words() const override { return words; }

private:
    QString words = "off";
};

QAccessibleInterface& Reached(QObject& object) { return *QAccessible::queryAccessibleInterface(&object); }

void Do(QObject& object, const QString& action) { Reached(object).actionInterface()->doAction(action); }

TEST(ReachTest, AReadingSaysItsWordsBehindItsName) {
    SaidLamp lamp;
    EXPECT_EQ(Reached(lamp).text(QAccessible::Name), "off");
    lamp.setAccessibleName("COM1 receives");
    EXPECT_EQ(Reached(lamp).text(QAccessible::Name), "COM1 receives: off");
    QAccessibleTextInterface& text = *Reached(lamp).textInterface();
    EXPECT_EQ(text.text(0, text.characterCount()), "off");
}

TEST(ReachTest, ADescriptionHasNoMarkup) {
    QLabel label("x");
    label.setToolTip(Qt::convertFromPlainText("a < b"));
    EXPECT_EQ(Reached(label).text(QAccessible::Description), "a < b");
}

TEST(ReachTest, AToggleIsAClick) {
    QCheckBox box("&Runs");
    int clicks = 0;
    QObject::connect(&box, &QCheckBox::clicked, [&clicks] { ++clicks; });
    EXPECT_EQ(Reached(box).text(QAccessible::Name), "Runs");
    Do(box, QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(WaitFor([&clicks] { return clicks == 1; }));
    EXPECT_TRUE(box.isChecked());
    box.setEnabled(false);
    Do(box, QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(box.isChecked());
}

TEST(ReachTest, AValueIsAMoveOfTheHandle) {
    QSlider slider(Qt::Horizontal);
    slider.setRange(0, 100);
    QList<int> moves;
    QObject::connect(&slider, &QSlider::actionTriggered, [&] { moves.append(slider.sliderPosition()); });
    Reached(slider).valueInterface()->setCurrentValue(42.0);
    EXPECT_EQ(slider.value(), 42);
    slider.setValue(50);
    slider.setEnabled(false);
    Reached(slider).valueInterface()->setCurrentValue(60.0);
    EXPECT_EQ(slider.value(), 50);
    EXPECT_EQ(moves, QList<int>{42});
}

TEST(ReachTest, AChoiceIsNamedByItsLabelAndItsEntriesArePicked) {
    QWidget window;
    QVBoxLayout column(&window);
    QLabel label("&Software");
    QComboBox box;
    box.addItems({"None", "VATSIM"});
    label.setBuddy(&box);
    column.addWidget(&label);
    column.addWidget(&box);
    QList<int> picked;
    QObject::connect(&box, &QComboBox::activated, [&picked](int entry) { picked.append(entry); });
    QAccessibleInterface& reached = Reached(box);
    EXPECT_EQ(reached.text(QAccessible::Name), "Software");
    EXPECT_EQ(reached.textInterface()->text(0, 4), "None");
    QAccessibleInterface* list = reached.child(0);
    ASSERT_EQ(list->childCount(), 2);
    list->child(1)->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(WaitFor([&picked] { return !picked.isEmpty(); }));
    EXPECT_EQ(picked, QList<int>{1});
    EXPECT_EQ(box.currentIndex(), 1);
    box.setCurrentIndex(0);
    EXPECT_EQ(picked.size(), 1);
}

TEST(ReachTest, AWindowIsOne) {
    QWidget window;
    QWidget dialog(nullptr, Qt::Dialog);
    EXPECT_EQ(Reached(window).role(), QAccessible::Window);
    EXPECT_EQ(Reached(dialog).role(), QAccessible::Dialog);
}

}  // namespace
}  // namespace orvelle
