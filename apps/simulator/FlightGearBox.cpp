#include "apps/simulator/FlightGearBox.h"

#include <QApplication>
#include <QClipboard>
#include <QPlainTextEdit>
#include <QPushButton>

#include "adapters/looks/Text.h"
#include "deck/fields/Fields.h"
#include "deck/fields/Readout.h"
#include "deck/fields/SignalLight.h"
#include "simulators/flightgear/FlightGearLine.h"
#include "simulators/flightgear/FlightGearOptions.h"

namespace orvelle {

namespace {

constexpr double ShownLines = 2.5;  // with room for all of both

QPlainTextEdit* NewLines() {
    auto* edit = new QPlainTextEdit;
    edit->setObjectName("FlightGearLines");
    edit->setToolTip("The two lines that make FlightGear tell its radios, for its file of options");
    edit->setReadOnly(true);
    edit->setTabChangesFocus(true);
    edit->setLineWrapMode(QPlainTextEdit::WidgetWidth);
    edit->setWordWrapMode(QTextOption::WrapAnywhere);
    return edit;
}

void FitHeight(QPlainTextEdit& edit) {
    const int margins = 2 * (edit.frameWidth() + static_cast<int>(edit.document()->documentMargin()));
    edit.setFixedHeight(static_cast<int>(ShownLines * edit.fontMetrics().lineSpacing()) + margins);
}

}  // namespace

FlightGearBox::FlightGearBox(const simulators::FlightGearLine& flightGear,
                             const simulators::FlightGearOptions& flightGearOptions)
    : Section("FlightGear", "FlightGear", 3),
      line(flightGear),
      options(flightGearOptions),
      comes(new deck::SignalLight("FlightGearComes")),
      lines(NewLines()),
      add(deck::NewButton("AddFlightGear", "&Add to .fgfsrc", "Adds both lines to FlightGear's file of options",
                          [this] {
                              Change(options.Add(), "Both lines are in " + ToQt(options.File().string()) +
                                                        "; FlightGear obeys them from its next start on.");
                          })),
      takeOut(deck::NewButton("TakeOutFlightGear", "&Take out", "Takes both lines out of FlightGear's file of options",
                              [this] {
                                  Change(options.TakeOut(),
                                         "The lines are not in " + ToQt(options.File().string()) + " any more.");
                              })),
      answer(new deck::Readout("FlightGearAnswer")) {
    lines->setAccessibleName("FlightGear's two lines");
    AddRow("Its lines", {comes});
    AddWide(lines);
    AddRow("", {deck::NewButton("CopyFlightGear", "&Copy", "Copies both lines", [this] { Copy(); }), add, takeOut});
    AddWide(answer);
    answer->setAccessibleName("FlightGear's options");
    FitHeight(*lines);
    const auto both = options.Lines();
    lines->setPlainText(ToQt(both[0]) + "\n" + ToQt(both[1]));
}

void FlightGearBox::showEvent(QShowEvent* event) {
    Section::showEvent(event);
    LookAtFile();
}

void FlightGearBox::LookAtFile() {
    areAdded = options.AreAdded();
    add->setEnabled(!areAdded);
    takeOut->setEnabled(areAdded);
    ShowState();
}

void FlightGearBox::Copy() {
    QApplication::clipboard()->setText(lines->toPlainText() + "\n");
    answer->Show(QString("Both lines are copied."));
}

void FlightGearBox::Change(const std::string& failure, const QString& success) {
    LookAtFile();
    answer->Show(failure.empty() ? success : ToQt(failure));
}

void FlightGearBox::ShowState() {
    using simulators::Presence;
    if (!line.Problem().empty()) return comes->Show(Sign::Bad, ToQt(line.Problem()));
    if (line.Stands() == Presence::Live) return comes->Show(Sign::Good, "They come");
    if (line.Stands() == Presence::Busy)
        return comes->Show(Sign::Waiting, "None come now; FlightGear is there, and loads or stands still");
    if (line.IsOtherKind())
        return comes->Show(Sign::Bad, "What comes are no lines of the kind that the two below make");
    comes->Show(Sign::Off, areAdded ? "None come; they will when FlightGear is started"
                                    : "None come; FlightGear needs the two lines below, once");
}

}  // namespace orvelle
