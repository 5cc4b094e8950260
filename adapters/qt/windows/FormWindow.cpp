#include "adapters/qt/windows/FormWindow.h"

#include <QCloseEvent>
#include <QWindow>
#include <chrono>

#include "adapters/looks/Text.h"

namespace orvelle::qt {

namespace {

constexpr std::chrono::milliseconds Patience{300};
constexpr std::chrono::seconds PatienceForFrame{5};

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
        if (isPlaceDue) move(FormPlace());
        EndSettling();
        Look();
    });
    setWindowTitle(ToQt(form.Caption));
    attached = form.Attach(*this);
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
        isMovedInView = false;
        isPlaceDue = false;
        patience.stop();
        hide();
        return;
    }
    Prepare();
    PlaceAndSize();
    ApplyState();
    show();
    Settle();
    raise();
    activateWindow();
}

// A form without a size has that of its contents, in a place of the window manager's choice.
void FormWindow::PlaceAndSize() {
    const QSize wanted = FormSize();
    if (wanted.isEmpty()) return;
    // A window that has only just been shown has no frame yet and would come to stand without regard to it.
    isPlaceDue = isVisible() && !isMinimized() && !IsExposed();
    Settle();
    if (isPlaceDue) return;
    // The frame of a window that is out of view is not known; a size that stands is left alone.
    if (wanted != frameSize) {
        resize(wanted - (frameGeometry().size() - size()));
        frameSize = wanted;
        knownSize = size();
    }
    move(FormPlace());
    isMovedInView = isVisible();
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
    if (isVisible()) patience.start(isPlaceDue ? PatienceForFrame : Patience);
}

bool FormWindow::IsExposed() const { return windowHandle() != nullptr && windowHandle()->isExposed(); }

bool FormWindow::IsSettled() const {
    // Qt takes a new place for granted at once; what the window manager makes of it comes later, unannounced.
    if (isPlaceDue || isMovedInView || State() != form.WindowState) return false;
    if (isMinimized()) return true;
    if (!IsExposed()) return false;
    return isMaximized() || FormSize().isEmpty() || (size() == knownSize && frameGeometry().topLeft() == FormPlace());
}

void FormWindow::Look() {
    if (!form.Visible || !isVisible()) return;
    if (isSettling) {
        if (isPlaceDue && IsExposed())
            PlaceAndSize();
        else if (IsSettled())
            EndSettling();
        return;
    }
    const bool isStateChanged = State() != form.WindowState;
    const bool isSized = size() != knownSize && !isMinimized();
    TakePlaceAndSize();
    if (isStateChanged) {
        const Taking taking(isTaking);
        form.UserState(State());
    } else if (isSized) {
        form.UserResize();
    }
}

// What stands now is what the window manager made of it.
void FormWindow::EndSettling() {
    isSettling = false;
    isMovedInView = false;
    isPlaceDue = false;
    patience.stop();
    TakePlaceAndSize();
}

void FormWindow::TakePlaceAndSize() {
    if (isMinimized()) return;
    const Taking taking(isTaking);
    const QPoint place = frameGeometry().topLeft();
    if (place != FormPlace()) form.UserMove(place.x() * TwipsPerPixel, place.y() * TwipsPerPixel);
    knownSize = size();
    frameSize = frameGeometry().size();
    if (frameSize == FormSize()) return;
    form.Width = frameSize.width() * TwipsPerPixel;
    form.Height = frameSize.height() * TwipsPerPixel;
}

QPoint FormWindow::FormPlace() const { return {ToPixels(form.Left), ToPixels(form.Top)}; }

QSize FormWindow::FormSize() const { return {ToPixels(form.Width), ToPixels(form.Height)}; }

}  // namespace orvelle::qt
