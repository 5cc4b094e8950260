// Text boxes, sliders, labels, lamps, images and status bars.
#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>
#include <QStyleOptionSlider>

#include "adapters/qt/widgets/Lamp.h"
#include "adapters/qt/widgets/SliderNumber.h"
#include "adapters/qt/widgets/StatusFields.h"
#include "adapters/qt/widgets/StatusLine.h"
#include "adapters/qt/widgets/StatusPicture.h"
#include "tests/qt/forms/ShownPanel.h"
#include "tests/qt/shell/WidgetInput.h"

namespace orvelle::qt {
namespace {

using Events = std::vector<std::string>;

class ValueMirrorsTest : public ShownPanel {};

TEST_F(ValueMirrorsTest, ATextByTheProgramShowsAndIsOneChange) {
    panel.RWPath.Change = Note("change");
    panel.RWPath.Text = "C:\\M\xfcnchen";
    EXPECT_EQ(Widget<QLineEdit>(panel.RWPath).text(), QString::fromUtf8("C:\\München"));
    EXPECT_EQ(events, Events{"change"});
}

TEST_F(ValueMirrorsTest, EachTypedLetterIsOneChange) {
    GoTo(2);
    panel.RWPath.Change = [this] { events.push_back(panel.RWPath.Text); };
    auto& field = Widget<QLineEdit>(panel.RWPath);
    TypeText(&field, QStringLiteral("ab"));
    QInputMethodEvent composed;
    composed.setCommitString(QString::fromUtf8("ü"));
    QCoreApplication::sendEvent(&field, &composed);
    EXPECT_EQ(events, (Events{"a", "ab", "abü"}));
}

TEST_F(ValueMirrorsTest, ATextThatTheHandlerReplacesShowsSo) {
    GoTo(2);
    panel.RWPath.Change = [this] { panel.RWPath.Text = "fixed"; };
    TypeText(&Widget<QLineEdit>(panel.RWPath), QStringLiteral("x"));
    EXPECT_EQ(Widget<QLineEdit>(panel.RWPath).text(), QStringLiteral("fixed"));
}

TEST_F(ValueMirrorsTest, ALockedTextIsNotTypedInto) {
    GoTo(2);
    panel.RWFSKeyDisplay.Text = "<No Hotkey>";
    auto& field = Widget<QLineEdit>(panel.RWFSKeyDisplay);
    TypeText(&field, QStringLiteral("x"));
    EXPECT_TRUE(field.isReadOnly());
    EXPECT_EQ(field.text(), QStringLiteral("<No Hotkey>"));
    EXPECT_EQ(panel.RWFSKeyDisplay.Text, std::string("<No Hotkey>"));
}

class SliderTest : public ValueMirrorsTest {
protected:
    SliderTest() {
        GoTo(6);
        panel.VVLOut.Change = Note("change");
        panel.VVLOut.Scroll = Note("scroll");
    }
    QSlider& Out() { return Widget<QSlider>(panel.VVLOut); }
};

TEST_F(SliderTest, TheProgramsValueIsAChangeAndNoScroll) {
    panel.VVLOut.Value = 120;
    EXPECT_EQ(Out().value(), 120);
    EXPECT_EQ(events, Events{"change"});
}

TEST_F(SliderTest, RangeAndStepsAreTheControls) {
    EXPECT_EQ(Out().maximum(), 400);
    EXPECT_EQ(Out().pageStep(), 40);
    EXPECT_EQ(Out().singleStep(), 1);
    panel.WaveIn.Min = 10;
    panel.WaveIn.Max = 65535;
    panel.WaveIn.TickFrequency = 3276;
    panel.WaveIn.Value = 70000;
    auto& slider = Widget<QSlider>(panel.WaveIn);
    EXPECT_EQ(slider.minimum(), 10);
    EXPECT_EQ(slider.maximum(), 65535);
    EXPECT_EQ(slider.value(), 65535);
    EXPECT_EQ(slider.tickInterval() % 3276, 0);
}

TEST_F(SliderTest, TheTicksReachTheEnd) {
    EXPECT_EQ(Out().maximum() % Out().tickInterval(), 0);
    const auto& signal = Widget<QSlider>(panel.VVLSignal);
    EXPECT_EQ(signal.maximum() % signal.tickInterval(), 0);
}

TEST_F(SliderTest, TheHandleIsWhole) {
    QStyleOptionSlider option;
    option.initFrom(&Out());
    option.orientation = Qt::Horizontal;
    option.tickPosition = Out().tickPosition();
    option.maximum = Out().maximum();
    const QRect handle = Out().style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, &Out());
    EXPECT_TRUE(Out().rect().contains(handle));
}

TEST_F(SliderTest, ANarrowerRangeTakesTheValueAlongWithoutAScroll) {
    panel.VVLOut.Value = 300;
    events.clear();
    panel.VVLOut.Max = 200;
    EXPECT_EQ(Out().value(), 200);
    EXPECT_EQ(panel.VVLOut.Value, 200);
    EXPECT_EQ(events, Events{"change"});
}

TEST_F(SliderTest, TheKeysScroll) {
    ClickKey(&Out(), Qt::Key_Right);
    EXPECT_EQ(panel.VVLOut.Value, 1);
    ClickKey(&Out(), Qt::Key_PageUp);
    EXPECT_EQ(panel.VVLOut.Value, 41);
    ClickKey(&Out(), Qt::Key_End);
    EXPECT_EQ(panel.VVLOut.Value, 400);
    EXPECT_EQ(events, (Events{"change", "scroll", "change", "scroll", "change", "scroll"}));
}

TEST_F(SliderTest, AtItsEndItDoesNotScroll) {
    ClickKey(&Out(), Qt::Key_Left);
    EXPECT_EQ(events, Events{});
}

TEST_F(SliderTest, DraggingScrolls) {
    const QPoint middle = Out().rect().center();
    PressMouse(&Out(), Qt::LeftButton, {}, QPoint(6, middle.y()));
    MoveMouse(&Out(), middle);
    ReleaseMouse(&Out(), Qt::LeftButton, {}, middle);
    EXPECT_GT(panel.VVLOut.Value, 100);
    EXPECT_EQ(panel.VVLOut.Value, Out().value());
    EXPECT_EQ(events.size() % 2, 0u);
    EXPECT_EQ(events.back(), "scroll");
}

TEST_F(SliderTest, AHandlerThatSetsAnotherValueWins) {
    panel.VVLOut.Scroll = [this] { panel.VVLOut.Value = 7; };
    ClickKey(&Out(), Qt::Key_End);
    EXPECT_EQ(Out().value(), 7);
    EXPECT_EQ(Out().sliderPosition(), 7);
}

TEST_F(SliderTest, TheNumberBesideASliderComesAndGoesWithIt) {
    auto* number = window.findChild<SliderNumber*>(QStringLiteral("numberWaveIn"));
    EXPECT_FALSE(number->isVisible());
    panel.WaveIn.Visible = true;
    panel.WaveIn.Value = 42;
    EXPECT_TRUE(number->isVisible());
    EXPECT_EQ(number->text(), QStringLiteral("42"));
}

TEST_F(ValueMirrorsTest, ALabelShowsItsCaptionAsItStands) {
    EXPECT_EQ(Widget<QLabel>(panel.lblVelmarcServer).textFormat(), Qt::PlainText);
    EXPECT_TRUE(Widget<QLabel>(panel.lblVelmarcServer).text().endsWith(QStringLiteral("press <Enter>.")));
    panel.CommentCOM1.Caption = "<b>a&b</b>";
    EXPECT_EQ(Widget<QLabel>(panel.CommentCOM1).text(), QStringLiteral("<b>a&b</b>"));
}

TEST_F(ValueMirrorsTest, BadAndGoodTextsHaveTheirColours) {
    auto& line = Widget<StatusLine>(panel.StatusVelmarc);
    const QColor good = line.palette().color(QPalette::WindowText);
    panel.StatusVelmarc.Caption = "text";
    EXPECT_EQ(line.ShownSign(), Sign::Off);
    panel.StatusIcon.Picture = panel.IconList.Image("VVVRVY");
    panel.StatusVelmarc.ForeColor = 255;
    EXPECT_EQ(line.palette().color(QPalette::WindowText), SignColour(Sign::Bad, CalmPalette(Scheme::Light)));
    EXPECT_EQ(line.ShownSign(), Sign::Bad);
    panel.StatusVelmarc.ForeColor = ButtonTextColour;
    EXPECT_EQ(line.palette().color(QPalette::WindowText), good);
    EXPECT_EQ(line.ShownSign(), Sign::Good);
}

TEST_F(ValueMirrorsTest, TheSignOfAGoodLineFollowsItsLetterInThePicture) {
    panel.StatusIcon.Picture = panel.IconList.Image("VVVRVY");
    EXPECT_EQ(Widget<StatusPicture>(panel.StatusIcon).Key(), QStringLiteral("VVVRVY"));
    for (Label* label : {&panel.StatusMainUser, &panel.StatusRogerWilco, &panel.StatusTeamSpeak, &panel.StatusVVL})
        label->Caption = "text";
    EXPECT_EQ(Widget<StatusLine>(panel.StatusMainUser).ShownSign(), Sign::Good);
    EXPECT_EQ(Widget<StatusLine>(panel.StatusRogerWilco).ShownSign(), Sign::Off);
    EXPECT_EQ(Widget<StatusLine>(panel.StatusTeamSpeak).ShownSign(), Sign::Good);
    EXPECT_EQ(Widget<StatusLine>(panel.StatusVVL).ShownSign(), Sign::Waiting);
    panel.StatusMainUser.Caption = "";
    EXPECT_EQ(Widget<StatusLine>(panel.StatusMainUser).ShownSign(), Sign::Off);
}

TEST_F(ValueMirrorsTest, ALampIsLitWhileItsShapeIsVisibleAndKeepsItsPlace) {
    GoTo(0);
    auto& lamp = Widget<Lamp>(panel.RecvCOM1);
    EXPECT_FALSE(lamp.IsLit());
    EXPECT_TRUE(lamp.isVisible());
    panel.RecvCOM1.Visible = true;
    EXPECT_TRUE(lamp.IsLit());
}

TEST_F(ValueMirrorsTest, ALampTellsByItsSignWhetherTheDeviceWorks) {
    auto& lamp = Widget<Lamp>(panel.VVLHeadsetStatus);
    EXPECT_EQ(lamp.ShownSign(), Sign::Bad);
    panel.VVLHeadsetStatus.FillColor = LampGreen;
    EXPECT_EQ(lamp.ShownSign(), Sign::Good);
    EXPECT_EQ(lamp.toolTip(), QStringLiteral("Headset Device Status"));
}

TEST_F(ValueMirrorsTest, AStatusBarShowsItsTextsAndHoverTexts) {
    auto& fields = Widget<StatusFields>(panel.VelmarcStatus);
    EXPECT_EQ(fields.Text(0), QStringLiteral("Not Connected"));
    panel.VelmarcStatus.SetPanelText(2, "IP: 1.2.3.4  Computer: X");
    EXPECT_EQ(fields.Text(1), QStringLiteral("IP: 1.2.3.4  Computer: X"));
    EXPECT_EQ(fields.findChildren<QLabel*>().first()->toolTip(), QStringLiteral("Connection Statue"));
}

TEST_F(ValueMirrorsTest, AToolTipOfTheControlsTakesThePlaceOfTheForms) {
    panel.RWJoySet.ToolTipText = "new";
    EXPECT_EQ(window.WidgetOf(panel.RWJoySet)->toolTip(), QStringLiteral("new"));
}

}  // namespace
}  // namespace orvelle::qt
