// The user's own logins at voice servers, which go before those of a directory: set, shown with dots for the password,
// and taken out. Part of the simulator's page.
#pragma once

#include "deck/fields/Section.h"
#include "platform/Event.h"

class QLineEdit;
class QPushButton;
class QTableWidget;

namespace orvelle {

namespace deck {
class Readout;
}  // namespace deck

namespace directory {
class OwnLogins;
struct OwnLogin;
}  // namespace directory

class LoginsBox : public deck::Section {
public:
    // They outlive the box.
    explicit LoginsBox(directory::OwnLogins& ownLogins);

    Event<> Changed;  // by the user

protected:
    void showEvent(QShowEvent* event) override;

private:
    void ShowKept();
    void ShowButtons();
    void Set(const directory::OwnLogin& login, const QString& success);
    void ShowSelected();

    directory::OwnLogins& logins;
    QTableWidget* table;
    QLineEdit* server;
    QLineEdit* login;
    QLineEdit* password;
    QPushButton* keep;
    QPushButton* forget;
    deck::Readout* answer;
};

}  // namespace orvelle
