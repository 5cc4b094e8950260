#include "adapters/qt/windows/PasswordDialog.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWindow>

#include "adapters/looks/ElidedLabel.h"
#include "adapters/looks/Text.h"
#include "adapters/looks/Theme.h"
#include "adapters/qt/widgets/SignedSentence.h"

namespace orvelle::qt {

namespace {

constexpr int LineLength = 66;  // characters
constexpr int MostCharacters = 1000;

}  // namespace

PasswordDialog::PasswordDialog(const std::string& server, PasswordQuestion why)
    : QDialog(nullptr, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint),
      field(new QLineEdit) {
    setObjectName("PasswordDialog");
    setWindowTitle("Password of a voice server");
    auto* name = new ElidedLabel;
    name->setObjectName("PasswordServer");
    name->setTextFormat(Qt::PlainText);
    name->setText(ToQt(server));
    QFont strong = name->font();
    strong.setBold(true);
    name->setFont(strong);
    field->setObjectName("Password");
    field->setEchoMode(QLineEdit::Password);
    field->setMaxLength(MostCharacters);
    field->setToolTip("As the operator of the voice server gave it");
    auto* caption = new QLabel("&Password");
    caption->setBuddy(field);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    for (QAbstractButton* button : buttons->buttons()) button->setIcon({});
    QPushButton* accept = buttons->button(QDialogButtonBox::Ok);
    accept->setEnabled(false);
    connect(field, &QLineEdit::textChanged, accept,
            [accept](const QString& text) { accept->setEnabled(!text.isEmpty()); });
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* kept = new QLabel("It is kept on this computer, in a file that only you may read.");
    kept->setWordWrap(true);
    auto* row = new QHBoxLayout;
    row->setSpacing(2 * Unit);
    row->addWidget(caption);
    row->addWidget(field, 1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(2 * Unit, 2 * Unit, 2 * Unit, 2 * Unit);
    column->setSpacing(Unit);
    if (why == PasswordQuestion::AfterWrong) {
        auto* wrong = new SignedSentence;
        wrong->setObjectName("PasswordWrong");
        wrong->Say(Sign::Bad, "That password was not right.");
        column->addWidget(wrong);
    }
    column->addWidget(new QLabel("This voice server asks for a password:"));
    column->addWidget(name);
    column->addLayout(row);
    column->addWidget(kept);
    column->addSpacing(Unit);
    column->addWidget(buttons);
    setFixedWidth(LineLength * fontMetrics().averageCharWidth() + 4 * Unit);
    field->setFocus();
}

std::string PasswordDialog::TakePassword() {
    QString text = field->text();
    field->setText({});
    std::string password = FromQt(text);
    text.fill(QChar(QChar::Null));
    return password;
}

// A window manager puts a window that nobody asked for under the one that the user works in, unless it belongs to that.
void PasswordDialog::showEvent(QShowEvent* event) {
    const QWidget* window = QApplication::activeWindow();
    windowHandle()->setTransientParent(window != nullptr && window != this ? window->windowHandle() : nullptr);
    QDialog::showEvent(event);
    QApplication::alert(this);
}

void Wipe(std::string& text) {
    for (volatile char& letter : text) letter = 0;
    text.clear();
}

}  // namespace orvelle::qt
