// The network's side: the framework link, the user's session with its radios, and the interface records.
#pragma once

#include <QWidget>

namespace orvelle {
class EmbeddedTessaly;
}  // namespace orvelle

namespace orvelle::deck {

class NetworkPage : public QWidget {
public:
    explicit NetworkPage(EmbeddedTessaly& tessaly);
};

}  // namespace orvelle::deck
