// Mirrors of the things that only show: a label, a lamp, an image, a status bar, and the frame that holds a page.
#pragma once

#include <QLabel>

#include "adapters/qt/mirrors/Mirror.h"
#include "adapters/qt/widgets/Lamp.h"
#include "adapters/qt/widgets/StatusFields.h"
#include "adapters/qt/widgets/StatusPicture.h"
#include "platform/controls/Label.h"
#include "platform/controls/StatusBar.h"

namespace orvelle::qt {

class LabelMirror : public Mirror {
public:
    LabelMirror(Label& mirroredLabel, QLabel& label);

    // The colour of a text follows the palette.
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void ShowOwn(ControlProperty property) override;
    void ShowAllOwn() override;

private:
    Label& control;
    QLabel& widget;
};

// A lamp is lit while its shape is visible; the widget itself stays.
class LampMirror : public Mirror {
public:
    LampMirror(Shape& shape, Lamp& lamp) : Mirror(shape, lamp), control(shape), widget(lamp) {}

protected:
    void ShowVisible() override { widget.SetLit(control.Visible); }
    void ShowOwn(ControlProperty property) override;
    void ShowAllOwn() override { ShowOwn(ControlProperty::FillColor); }

private:
    Shape& control;
    Lamp& widget;
};

class ImageMirror : public Mirror {
public:
    ImageMirror(Image& image, StatusPicture& picture) : Mirror(image, picture), control(image), widget(picture) {}

protected:
    void ShowOwn(ControlProperty property) override;
    void ShowAllOwn() override { ShowOwn(ControlProperty::Picture); }

private:
    Image& control;
    StatusPicture& widget;
};

class StatusBarMirror : public Mirror {
public:
    StatusBarMirror(StatusBar& statusBar, StatusFields& fields)
        : Mirror(statusBar, fields), control(statusBar), widget(fields) {}

protected:
    void ShowOwn(ControlProperty property) override;
    void ShowAllOwn() override { ShowOwn(ControlProperty::Panels); }

private:
    StatusBar& control;
    StatusFields& widget;
};

// Which page is seen is the window's matter, and so is its place.
class FrameMirror : public Mirror {
public:
    FrameMirror(Frame& frame, QWidget& page) : Mirror(frame, page) {}

protected:
    void ShowVisible() override {}
    void ShowOwn(ControlProperty) override {}
    void ShowAllOwn() override {}
};

}  // namespace orvelle::qt
