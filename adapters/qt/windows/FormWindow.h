// A top-level window that shows a form: its caption, visibility, state, place and size (twips, 15 to a logical pixel;
// place and size are those of the window with its frame), and its controls through a binder. What the user does to the
// window, by its frame or through the window manager, is done to the form, with its events; what the form does to the
// window, and what the window manager then makes of that, raises none. The form outlives the window.
#pragma once

#include <QTimer>
#include <QWidget>

#include "adapters/qt/mirrors/Binder.h"

namespace orvelle::qt {

class FormWindow : public QWidget, public ControlObserver {
public:
    explicit FormWindow(Form& shownForm);

    // Null where no widget shows the control (yet). The form's widget is the window.
    virtual QWidget* WidgetOf(const Control& control);
    void ControlChanged(Control& control, ControlProperty property) override;

protected:
    // Before the window comes into view, for contents that are not there yet.
    virtual void Prepare() {}

    void closeEvent(QCloseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

    Form& form;
    Binder binder;

private:
    void FormChanged(ControlProperty property);
    void ShowOrHide();
    void PlaceAndSize();
    void ApplyState();
    Long State() const;
    // The window's changes since the last look, looked at when the loop is free.
    void LookLater();
    void Look();
    void TakePlaceAndSize();
    bool IsExposed() const;
    bool IsSettled() const;
    void Settle();
    void EndSettling();
    // What the form says, in pixels.
    QPoint FormPlace() const;
    QSize FormSize() const;

    QTimer look;
    QTimer patience;  // for window managers that make something else of what the form asked for
    QSize knownSize;  // of the window, and with its frame as the form has it
    QSize frameSize;
    bool isSettling = false;
    bool isMovedInView = false;
    bool isPlaceDue = false;  // the place that the form wants is still to be asked for
    bool isTaking = false;
    Ticket attached;  // to the form
};

}  // namespace orvelle::qt
