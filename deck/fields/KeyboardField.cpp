#include "deck/fields/KeyboardField.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "adapters/looks/ElidedLabel.h"
#include "adapters/looks/Text.h"
#include "deck/fields/Section.h"
#include "deck/fields/ToolkitKeys.h"
#include "platform/sides/SimulatorSide.h"

namespace orvelle::deck {

namespace {

constexpr double SequenceSize = 1.6;  // times the size of other texts
constexpr int FocusLine = 2;

constexpr const char* LinkIsDown = "The link is down: keys go nowhere";
constexpr const char* TakesKeys = "Every key but Tab goes over there";
constexpr const char* TakesClick = "Click here, then press keys";
constexpr std::array Hints{LinkIsDown, TakesKeys, TakesClick};

int PlaceOf(const QKeyEvent& event) {
    const auto place = static_cast<int>(event.nativeScanCode());
    return place != 0 ? place : -event.key();
}

bool LeavesField(const QKeyEvent& event) {
    const bool plain = !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier));
    return plain && (event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab);
}

}  // namespace

KeyboardField::KeyboardField(SimulatorSide& simulatorSide)
    : simulator(simulatorSide),
      sequence(new ElidedLabel),
      hint(new QLabel),
      watch(simulatorSide.Observe([this] { ShowState(); })) {
    setObjectName("KeyboardField");
    setAccessibleName("Keyboard of the simulator's computer");
    setToolTip("Each key that goes down or up here goes down or up on the simulator's computer. Tab leaves the field.");
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);

    sequence->setObjectName("KeysHeld");
    hint->setObjectName("KeyboardHint");
    hint->setForegroundRole(QPalette::PlaceholderText);
    for (QLabel* label : {sequence, hint}) {
        label->setAlignment(Qt::AlignCenter);
        label->setTextFormat(Qt::PlainText);
        // No text of theirs widens the page.
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    }
    FollowFont();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Unit, Unit, Unit, Unit);
    column->setSpacing(0);
    column->addWidget(sequence);
    column->addWidget(hint);
    ShowState();
}

void KeyboardField::FollowFont() {
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * SequenceSize);
    sequence->setFont(large);
    int widest = 0;
    for (const char* text : Hints) widest = std::max(widest, fontMetrics().horizontalAdvance(text));
    hint->setMinimumWidth(widest);
}

void KeyboardField::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange) FollowFont();
    QFrame::changeEvent(event);
}

bool KeyboardField::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && !LeavesField(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    return QFrame::event(event);
}

void KeyboardField::keyPressEvent(QKeyEvent* event) {
    const int place = PlaceOf(*event);
    if (const auto key = std::ranges::find(held, place, &Held::Place); key != held.end())
        return simulator.RepeatKey(key->Name);
    const std::string name = KeyNameOf(*event);
    if (event->isAutoRepeat() || name.empty()) return;
    simulator.PressKey(name);
    held.push_back({place, name});
}

void KeyboardField::keyReleaseEvent(QKeyEvent* event) {
    const auto key = std::ranges::find(held, PlaceOf(*event), &Held::Place);
    if (event->isAutoRepeat() || key == held.end()) return;
    simulator.ReleaseKey(key->Name);
    held.erase(key);
}

void KeyboardField::focusInEvent(QFocusEvent* event) {
    QFrame::focusInEvent(event);
    ShowState();
}

void KeyboardField::focusOutEvent(QFocusEvent* event) {
    QFrame::focusOutEvent(event);
    ReleaseAll();
    ShowState();
}

void KeyboardField::mousePressEvent(QMouseEvent*) { setFocus(Qt::MouseFocusReason); }

void KeyboardField::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const int width = hasFocus() ? FocusLine : 1;
    painter.setPen(QPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid), width));
    const qreal inset = width / 2.0;
    painter.drawRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset));
}

void KeyboardField::ReleaseAll() {
    for (const Held& key : held) simulator.ReleaseKey(key.Name);
    held.clear();
}

void KeyboardField::ShowState() {
    const bool up = simulator.TakesInput();
    const std::string keys = simulator.HeldSequence();
    sequence->setText(!keys.empty() ? ToQt(keys) : up && hasFocus() ? "Listening" : "Keys");
    sequence->setForegroundRole(keys.empty() ? QPalette::PlaceholderText : QPalette::Text);
    hint->setText(!up ? LinkIsDown : hasFocus() ? TakesKeys : TakesClick);
    update();
}

}  // namespace orvelle::deck
