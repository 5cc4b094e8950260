#include "adapters/looks/Contrast.h"

namespace orvelle {

namespace {

constexpr int Steps = 20;

double LeastContrast(const QColor& colour, std::initializer_list<QColor> grounds) {
    double least = Contrast(Qt::black, Qt::white);
    for (const QColor& ground : grounds) least = std::min(least, Contrast(colour, ground));
    return least;
}

}  // namespace

QColor Mixed(const QColor& first, const QColor& second, double share) {
    const auto mix = [share](double one, double other) { return static_cast<float>(one + (other - one) * share); };
    return QColor::fromRgbF(mix(first.redF(), second.redF()), mix(first.greenF(), second.greenF()),
                            mix(first.blueF(), second.blueF()));
}

QColor Readable(const QColor& colour, std::initializer_list<QColor> grounds, double least) {
    const bool isDarkBetter = LeastContrast(Qt::black, grounds) > LeastContrast(Qt::white, grounds);
    const QColor end = isDarkBetter ? Qt::black : Qt::white;
    for (int step = 0; step < Steps; ++step) {
        // What is shown has whole numbers for its parts.
        const QColor nearer = QColor::fromRgb(Mixed(colour, end, static_cast<double>(step) / Steps).rgb());
        if (LeastContrast(nearer, grounds) >= least) return nearer;
    }
    return end;
}

}  // namespace orvelle
