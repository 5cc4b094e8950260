#include "deck/pages/CalibrationDialog.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "deck/fields/DeviceNames.h"
#include "deck/fields/Section.h"

namespace orvelle::deck {

namespace {

constexpr const char* Title = "Voice Test and Calibration";
constexpr double MostSquelch = 100;
constexpr int TitleButtons = 100;  // logical pixels beside a window's title, with its icon

QDoubleSpinBox* NewSquelch(const QString& name, double value) {
    auto* box = new QDoubleSpinBox;
    box->setObjectName(name);
    box->setToolTip("Sounds weaker than this are cut off");
    box->setRange(0, MostSquelch);
    box->setDecimals(1);
    box->setValue(value);
    return box;
}

QLabel* NewReading(const QString& name, const QString& text) {
    auto* label = new QLabel(text);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    return label;
}

void AddRow(QGridLayout& grid, const QString& label, QWidget* field) {
    auto* caption = new QLabel(label);
    caption->setBuddy(field);
    const int row = grid.rowCount();
    grid.addWidget(caption, row, 0);
    grid.addWidget(field, row, 1);
}

}  // namespace

std::optional<Squelch> AskCalibration(QWidget* parent, const VoiceEngineSide& engine, const AudioDevices& devices,
                                      Long inputDevice, Long outputDevice) {
    QDialog dialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    dialog.setObjectName("CalibrationDialog");
    dialog.setWindowTitle(Title);
    auto* input = NewSquelch("InputSquelch", engine.InputSquelchValue());
    auto* output = NewSquelch("OutputSquelch", engine.OutputSquelchValue());
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    for (QAbstractButton* button : buttons->buttons()) button->setIcon({});
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);

    auto* grid = new QGridLayout;
    grid->setSpacing(Unit);
    grid->setColumnStretch(1, 1);
    AddRow(*grid, "Microphone", NewReading("CalibratedMicrophone", DeviceName(devices.InputNames(), inputDevice)));
    AddRow(*grid, "&Input squelch", input);
    AddRow(*grid, "Headset", NewReading("CalibratedHeadset", DeviceName(devices.OutputNames(), outputDevice)));
    AddRow(*grid, "Out&put squelch", output);
    auto* column = new QVBoxLayout(&dialog);
    column->setContentsMargins(2 * Unit, 2 * Unit, 2 * Unit, 2 * Unit);
    column->setSpacing(2 * Unit);
    column->addLayout(grid);
    column->addWidget(buttons);
    // All of the title is to be read, and nothing grows with the window.
    column->addStrut(dialog.fontMetrics().horizontalAdvance(Title) + TitleButtons);
    column->setSizeConstraint(QLayout::SetFixedSize);

    input->selectAll();
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return Squelch{static_cast<float>(input->value()), static_cast<float>(output->value())};
}

}  // namespace orvelle::deck
