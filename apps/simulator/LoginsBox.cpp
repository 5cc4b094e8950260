#include "apps/simulator/LoginsBox.h"

#include <QLineEdit>
#include <QPushButton>

#include "adapters/looks/Text.h"
#include "apps/simulator/LeastHeight.h"
#include "deck/fields/Fields.h"
#include "deck/fields/Readout.h"
#include "deck/fields/Tables.h"
#include "simulators/directory/OwnLogins.h"

namespace orvelle {

namespace {

enum Column { Server, Login, Password };

constexpr int LeastRows = 2;

QLineEdit* NewText(const QString& name, const QString& label, const QString& toolTip) {
    auto* edit = new QLineEdit;
    edit->setObjectName(name);
    edit->setAccessibleName(label);
    edit->setToolTip(toolTip);
    return edit;
}

QTableWidget* NewLogins() {
    QTableWidget* table =
        deck::NewTable("OwnLogins", "Your own logins at voice servers", {"Server", "Login", "Password"}, Server);
    table->setEditTriggers(QTableWidget::NoEditTriggers);
    return table;
}

}  // namespace

LoginsBox::LoginsBox(directory::OwnLogins& ownLogins)
    : Section("OwnLoginsSection", "Own logins at voice servers", 4),
      logins(ownLogins),
      table(NewLogins()),
      server(NewText("LoginServer", "Server", "The voice server as the directory names it: voice.example.org:8767")),
      login(NewText("LoginName", "Login", "Your login name there; left empty, that of the directory stays")),
      password(NewText("LoginPassword", "Password", "Your password there; it is kept on this computer alone")),
      keep(deck::NewButton("KeepLogin", "&Keep", "Keeps this login for that server",
                           [this] {
                               Set({FromQt(login->text()), FromQt(password->text())}, "The login is kept.");
                           })),
      forget(deck::NewButton("ForgetLogin", "&Forget", "Takes the login of that server out",
                             [this] { Set({}, "The login is taken out."); })),
      answer(new deck::Readout("LoginAnswer")) {
    password->setEchoMode(QLineEdit::Password);
    for (const QLineEdit* edit : {server, login, password}) {
        connect(edit, &QLineEdit::textChanged, this, [this] { ShowButtons(); });
        connect(edit, &QLineEdit::returnPressed, keep, &QPushButton::click);
    }
    connect(table, &QTableWidget::itemSelectionChanged, this, [this] { ShowSelected(); });
    AddAtLeast(*this, table, LeastRows + 1, 1);
    AddRow("&Server", {server, nullptr, keep, forget});
    AddRow("Lo&gin", {login, nullptr, deck::Labelled("Pass&word", password)});
    AddRow("", {answer});
    answer->setAccessibleName("Own logins");
    ShowButtons();
}

void LoginsBox::showEvent(QShowEvent* event) {
    Section::showEvent(event);
    ShowKept();
}

void LoginsBox::Set(const directory::OwnLogin& wanted, const QString& success) {
    const std::string failure = logins.Set(FromQt(server->text().trimmed()), wanted);
    if (failure.empty())
        for (QLineEdit* edit : {server, login, password}) edit->clear();
    ShowKept();
    answer->Show(failure.empty() ? success : ToQt(failure));
    if (failure.empty()) Changed();
}

void LoginsBox::ShowKept() {
    const QSignalBlocker quiet(table);
    table->setRowCount(static_cast<int>(logins.All().size()));
    for (int row = 0; const auto& [name, own] : logins.All()) {
        deck::ShowCell(*table, row, Server, ToQt(name));
        deck::ShowCell(*table, row, Login, own.Login.empty() ? QString("-") : ToQt(own.Login));
        // Always as many, as their number is nobody's business.
        deck::ShowCell(*table, row, Password, own.Password.empty() ? QString("-") : QString("••••••"));
        ++row;
    }
    ShowButtons();
}

void LoginsBox::ShowButtons() {
    const std::string name = FromQt(server->text().trimmed());
    keep->setEnabled(!name.empty() && !(login->text().isEmpty() && password->text().isEmpty()));
    forget->setEnabled(!name.empty() && logins.Find(name) != nullptr);
}

void LoginsBox::ShowSelected() {
    const QList<QTableWidgetItem*> selected = table->selectedItems();
    if (selected.isEmpty()) return;
    const QString name = table->item(selected.first()->row(), Server)->text();
    const directory::OwnLogin* const own = logins.Find(FromQt(name));
    if (!own) return;
    server->setText(name);
    login->setText(ToQt(own->Login));
    password->setText(ToQt(own->Password));
}

}  // namespace orvelle
