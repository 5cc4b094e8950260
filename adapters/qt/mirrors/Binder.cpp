#include "adapters/qt/mirrors/Binder.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QComboBox>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QTreeView>
#include <unordered_set>

#include "adapters/looks/Text.h"
#include "adapters/qt/widgets/Heading.h"
#include "adapters/qt/widgets/Lamp.h"
#include "adapters/qt/widgets/SliderNumber.h"
#include "adapters/qt/widgets/StatusFields.h"
#include "adapters/qt/widgets/StatusPicture.h"

namespace orvelle::qt {

namespace {

// Of a kind that shows a control. Titles and the numbers beside sliders are the form's own, and widgets without a name
// of ours are parts of others.
bool ShowsControl(const QWidget& widget) {
    if (widget.objectName().isEmpty() || widget.objectName().startsWith(QLatin1String("qt_"))) return false;
    if (qobject_cast<const Heading*>(&widget) != nullptr || qobject_cast<const SliderNumber*>(&widget) != nullptr)
        return false;
    const auto isA = [&widget](auto* kind) { return qobject_cast<decltype(kind)>(&widget) != nullptr; };
    using Kinds =
        std::tuple<const QAbstractButton*, const QAbstractSlider*, const QComboBox*, const QLabel*, const QLineEdit*,
                   const QTreeView*, const Lamp*, const StatusFields*, const StatusPicture*>;
    return std::apply([&isA](auto*... kind) { return (... || isA(kind)); }, Kinds{});
}

}  // namespace

QString Binder::WidgetName(const Control& control) {
    return ToQt(control.Name).replace(QLatin1Char('('), QLatin1Char('_')).remove(QLatin1Char(')'));
}

void Binder::Bind(QWidget& root) {
    QHash<QString, QWidget*> widgets{{root.objectName(), &root}};
    for (QWidget* widget : root.findChildren<QWidget*>()) widgets.insert(widget->objectName(), widget);
    for (Control* control : form.Controls()) {
        QWidget* widget = widgets.value(WidgetName(*control));
        if (widget == nullptr || mirrors.contains(control)) continue;
        if (std::unique_ptr<Mirror> mirror = MakeMirror(*control, *widget)) mirrors.emplace(control, std::move(mirror));
    }
}

QWidget* Binder::WidgetOf(const Control& control) const {
    const auto found = mirrors.find(&control);
    return found == mirrors.end() ? nullptr : &found->second->Widget();
}

QStringList Binder::ControlsWithoutWidget() const {
    QStringList names;
    for (const Control* control : form.Controls())
        if (IsShown(*control) && !mirrors.contains(control)) names.append(ToQt(control->Name));
    return names;
}

QStringList Binder::WidgetsWithoutControl(const QWidget& root) const {
    std::unordered_set<const QWidget*> bound;
    for (const auto& [control, mirror] : mirrors) bound.insert(&mirror->Widget());
    QStringList names;
    for (const QWidget* widget : root.findChildren<QWidget*>())
        if (ShowsControl(*widget) && !bound.contains(widget)) names.append(widget->objectName());
    return names;
}

void Binder::ControlChanged(Control& control, ControlProperty property) {
    const auto found = mirrors.find(&control);
    if (found != mirrors.end()) found->second->Show(property);
}

}  // namespace orvelle::qt
