#include "platform/qt/FormWindow.h"

#include <QCloseEvent>
#include <QWindow>
#include <chrono>

#include "platform/qt/Text.h"

namespace orvelle {

namespace {

constexpr std::chrono::milliseconds Patience{300};

int ToPixels(double twips) { return qRound(twips / TwipsPerPixel); }

// Writes a property of the form without hearing of it.
class Taking {
public:
    explicit Taking(bool& isTaking) : taking(isTaking), before(isTaking) { taking = true; }
    Taking(const Taking&) = delete;
    Taking& operator=(const Taking&) = delete;
    ~Taking() { taking = before; }

private:
    bool& taking;
    const bool before;
};

}  // namespace

FormWindow::FormWindow(Form& shownForm) : form(shownForm), binder(shownForm) {
    look.setSingleShot(true);
    connect(&look, &QTimer::timeout, this, [this] { Look(); });
    patience.setSingleShot(true);
    connect(&patience, &QTimer::timeout, this, [this] {
        isSettling = false;
        Look();
    });
    setWindowTitle(ToQt(form.Caption));
    form.Attach(*this);
}

QWidget* FormWindow::WidgetOf(const Control& control) { return &control == &form ? this : binder.WidgetOf(control); }

void FormWindow::ControlChanged(Control& control, ControlProperty property) {
    if (&control == &form)
        FormChanged(property);
    else
        binder.ControlChanged(control, property);
}

void FormWindow::FormChanged(ControlProperty property) {
    if (property == ControlProperty::Caption) setWindowTitle(ToQt(form.Caption));
    if (property == ControlProperty::Enabled) setEnabled(form.Enabled);
    if (isTaking) return;
    switch (property) {
        case ControlProperty::Visible:
            ShowOrHide();
            break;
        case ControlProperty::WindowState:
            ApplyState();
            break;
        case ControlProperty::Left:
        case ControlProperty::Top:
        case ControlProperty::Width:
        case ControlProperty::Height:
            PlaceAndSize();
            break;
        default:
            break;
    }
}

void FormWindow::ShowOrHide() {
    if (!form.Visible) {
        isSettling = false;
        hide();
        return;
    }
    Prepare();
    PlaceAndSize();
    ApplyState();
    show();
    raise();
    activateWindow();
}

// A form without a size has that of its contents, in a place of the window manager's choice.
void FormWindow::PlaceAndSize() {
    if (form.Width <= 0 || form.Height <= 0) return;
    Settle();
    const QSize frame = frameGeometry().size() - size();
    resize(QSize(ToPixels(form.Width), ToPixels(form.Height)) - frame);
    move(ToPixels(form.Left), ToPixels(form.Top));
}

void FormWindow::ApplyState() {
    Settle();
    const Qt::WindowStates others = windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized);
    if (form.WindowState == Form::Minimised)
        setWindowState(others | Qt::WindowMinimized);
    else if (form.WindowState == Form::Maximised)
        setWindowState(others | Qt::WindowMaximized);
    else
        setWindowState(others);
}

Long FormWindow::State() const {
    if (isMinimized()) return Form::Minimised;
    return isMaximized() ? Form::Maximised : Form::Normal;
}

void FormWindow::closeEvent(QCloseEvent* event) {
    // Closed by the program, as at the end of the session, the window just goes.
    if (!event->spontaneous()) return;
    event->ignore();
    form.Unload(Form::ControlMenu);
}

void FormWindow::moveEvent(QMoveEvent*) { LookLater(); }

void FormWindow::resizeEvent(QResizeEvent*) { LookLater(); }

void FormWindow::changeEvent(QEvent* event) {
    if (event->type() == QEvent::WindowStateChange) LookLater();
    QWidget::changeEvent(event);
}

void FormWindow::paintEvent(QPaintEvent*) {
    if (isSettling) LookLater();
}

void FormWindow::LookLater() {
    if (form.Visible && !look.isActive()) look.start();
}

// From an act of the form on, what changes is the window manager's answer, until the window stands as the form wants
// it.
void FormWindow::Settle() {
    isSettling = true;
    if (isVisible()) patience.start(Patience);
}

bool FormWindow::IsSettled() const {
    if (State() != form.WindowState) return false;
    return form.WindowState == Form::Minimised || (windowHandle() != nullptr && windowHandle()->isExposed());
}

void FormWindow::Look() {
    if (!form.Visible || !isVisible()) return;
    if (isSettling) {
        if (!patience.isActive()) patience.start(Patience);
        TakePlace();
        TakeSize();
        if (!IsSettled()) return;
        isSettling = false;
        patience.stop();
        return;
    }
    const QSize before(ToPixels(form.Width), ToPixels(form.Height));
    const bool isSized = !before.isEmpty() && before != frameGeometry().size();
    const bool isStateChanged = State() != form.WindowState;
    TakePlace();
    TakeSize();
    if (isStateChanged) {
        const Taking taking(isTaking);
        form.UserState(State());
    } else if (isSized) {
        form.UserResize();
    }
}

void FormWindow::TakePlace() {
    const QPoint place = frameGeometry().topLeft();
    if (isMinimized() || place == QPoint(ToPixels(form.Left), ToPixels(form.Top))) return;
    const Taking taking(isTaking);
    form.UserMove(place.x() * TwipsPerPixel, place.y() * TwipsPerPixel);
}

void FormWindow::TakeSize() {
    const QSize size = frameGeometry().size();
    if (isMinimized() || size == QSize(ToPixels(form.Width), ToPixels(form.Height))) return;
    const Taking taking(isTaking);
    form.Width = size.width() * TwipsPerPixel;
    form.Height = size.height() * TwipsPerPixel;
}

}  // namespace orvelle
