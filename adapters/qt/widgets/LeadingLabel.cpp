#include "adapters/qt/widgets/LeadingLabel.h"

#include "adapters/looks/Theme.h"

namespace orvelle::qt {

QSize LeadingLabel::WithGap(QSize size) const {
    return {text().isEmpty() ? 0 : size.width() + 2 * Unit, size.height()};
}

}  // namespace orvelle::qt
