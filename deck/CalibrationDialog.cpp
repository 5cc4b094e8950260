#include "deck/CalibrationDialog.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "deck/Section.h"

namespace orvelle::deck {

namespace {

constexpr double MostSquelch = 100;
constexpr double FirstSquelch = 50;  // where none was set yet

QString DeviceText(Long device) { return device < 0 ? "Default device" : QString("Device %1").arg(device); }

QDoubleSpinBox* NewSquelch(const QString& name, double value) {
    auto* box = new QDoubleSpinBox;
    box->setObjectName(name);
    box->setToolTip("Sounds weaker than this are cut off");
    box->setRange(0, MostSquelch);
    box->setDecimals(1);
    box->setValue(value > 0 ? value : FirstSquelch);
    return box;
}

}  // namespace

std::optional<Squelch> AskCalibration(QWidget* parent, const EmbeddedVoiceEngine& engine, Long inputDevice,
                                      Long outputDevice) {
    QDialog dialog(parent);
    dialog.setObjectName("CalibrationDialog");
    dialog.setWindowTitle("Voice Test and Calibration");
    auto* input = NewSquelch("InputSquelch", engine.InputSquelchValue());
    auto* output = NewSquelch("OutputSquelch", engine.OutputSquelchValue());
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);

    auto* form = new QFormLayout;
    form->setSpacing(DeckUnit);
    form->addRow("Microphone", new QLabel(DeviceText(inputDevice)));
    form->addRow("&Input squelch", input);
    form->addRow("Headset", new QLabel(DeviceText(outputDevice)));
    form->addRow("Out&put squelch", output);
    auto* column = new QVBoxLayout(&dialog);
    column->setContentsMargins(2 * DeckUnit, 2 * DeckUnit, 2 * DeckUnit, 2 * DeckUnit);
    column->setSpacing(2 * DeckUnit);
    column->addLayout(form);
    column->addWidget(buttons);

    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return Squelch{static_cast<float>(input->value()), static_cast<float>(output->value())};
}

}  // namespace orvelle::deck
