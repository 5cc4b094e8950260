#include "apps/talk/HeardSpeech.h"

#include <QDataStream>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "adapters/looks/Theme.h"

namespace orvelle {

namespace {

constexpr int Rate = 48000;
constexpr std::size_t StepSamples = Rate / 1000 * LevelMilliseconds;
constexpr std::size_t MostStepsLater = 50;
constexpr std::size_t PieceSteps = 1000 / LevelMilliseconds;

// Of a piece of what was spoken with what was heard that much later.
struct Piece {
    double Correlation = 0;
    double Weight = 0;  // how much there is to be heard in it
};

Piece CorrelationAt(std::span<const double> spoken, std::span<const double> heard) {
    double meanSpoken = 0;
    double meanHeard = 0;
    const auto count = static_cast<double>(spoken.size());
    for (std::size_t step = 0; step < spoken.size(); ++step) {
        meanSpoken += spoken[step] / count;
        meanHeard += heard[step] / count;
    }
    double both = 0;
    double ofSpoken = 0;
    double ofHeard = 0;
    for (std::size_t step = 0; step < spoken.size(); ++step) {
        const double one = spoken[step] - meanSpoken;
        const double other = heard[step] - meanHeard;
        both += one * other;
        ofSpoken += one * one;
        ofHeard += other * other;
    }
    return {ofSpoken > 0 && ofHeard > 0 ? both / std::sqrt(ofSpoken * ofHeard) : 0, ofSpoken};
}

constexpr int PictureWidth = 1200;
constexpr int RowHeight = 220;
constexpr int Edge = 4 * Unit;

int PlaceOf(const QRect& row, std::size_t step, std::size_t steps) {
    return row.left() + static_cast<int>(step * static_cast<std::size_t>(row.width()) / steps);
}

// One row: the levels as bars from the middle, each as wide as its step, full scale of this row's loudest.
void DrawRow(QPainter& painter, const QRect& row, const QString& caption, const std::vector<double>& levels,
             std::size_t steps) {
    painter.drawText(row.adjusted(0, -3 * Unit, 0, 0), Qt::AlignLeft | Qt::AlignTop, caption);
    painter.drawLine(row.left(), row.center().y(), row.right(), row.center().y());
    const double loudest = levels.empty() ? 0 : *std::ranges::max_element(levels);
    if (loudest <= 0) return;
    for (std::size_t step = 0; step < levels.size(); ++step) {
        const int height = static_cast<int>(levels[step] / loudest * row.height() / 2);
        const QPoint top(PlaceOf(row, step, steps), row.center().y() - height);
        const QPoint bottom(PlaceOf(row, step + 1, steps) - 1, row.center().y() + height);
        painter.fillRect(QRect(top, bottom), painter.pen().color());
    }
}

}  // namespace

std::vector<double> LevelsOf(std::span<const short> samples) {
    std::vector<double> levels;
    for (std::size_t first = 0; first + StepSamples <= samples.size(); first += StepSamples) {
        double sum = 0;
        for (const short sample : samples.subspan(first, StepSamples)) sum += static_cast<double>(sample) * sample;
        levels.push_back(std::sqrt(sum / StepSamples) / 32768);
    }
    return levels;
}

Likeness Compare(const std::vector<double>& spoken, std::vector<double> heard) {
    heard.resize(std::max(heard.size(), spoken.size()) + MostStepsLater);
    double likeness = 0;
    double later = 0;
    double weights = 0;
    for (std::size_t first = 0; first < spoken.size(); first += PieceSteps) {
        const auto piece = std::span(spoken).subspan(first, std::min(PieceSteps, spoken.size() - first));
        Piece best;
        std::size_t bestSteps = 0;
        for (std::size_t steps = 0; steps <= MostStepsLater; ++steps) {
            const Piece now = CorrelationAt(piece, std::span(heard).subspan(first + steps, piece.size()));
            if (now.Correlation <= best.Correlation && best.Weight > 0) continue;
            best = now;
            bestSteps = steps;
        }
        likeness += best.Correlation * best.Weight;
        later += static_cast<double>(bestSteps) * best.Weight;
        weights += best.Weight;
    }
    if (weights == 0) return {};
    return {likeness / weights, static_cast<Long>(std::lround(later / weights * LevelMilliseconds))};
}

bool WriteWaveFile(const QString& name, std::span<const short> samples) {
    QFile file(name);
    if (!file.open(QFile::WriteOnly)) return false;
    const auto size = static_cast<quint32>(samples.size_bytes());
    QDataStream out(&file);
    out.setByteOrder(QDataStream::LittleEndian);
    out.writeRawData("RIFF", 4);
    out << quint32(36 + size);
    out.writeRawData("WAVEfmt ", 8);
    out << quint32(16) << quint16(1) << quint16(1) << quint32(Rate) << quint32(2 * Rate) << quint16(2) << quint16(16);
    out.writeRawData("data", 4);
    out << size;
    for (const short sample : samples) out << qint16(sample);
    return out.status() == QDataStream::Ok;
}

bool DrawLevels(const QString& file, const std::vector<double>& spoken, const std::vector<double>& heard) {
    const std::size_t steps = std::max<std::size_t>(1, std::max(spoken.size(), heard.size()));
    QImage picture(PictureWidth, 2 * RowHeight + 6 * Edge, QImage::Format_RGB32);
    const QPalette palette = CalmPalette(Scheme::Light);
    picture.fill(palette.color(QPalette::Window));
    QPainter painter(&picture);
    painter.setPen(palette.color(QPalette::WindowText));
    QFont font;
    font.setPixelSize(20);
    painter.setFont(font);
    const QRect first(Edge, 2 * Edge, PictureWidth - 2 * Edge, RowHeight);
    DrawRow(painter, first, "Spoken into the first pilot's microphone", spoken, steps);
    const QRect second = first.translated(0, RowHeight + 2 * Edge);
    DrawRow(painter, second, "Heard in the second pilot's headset", heard, steps);
    const int bottom = second.bottom() + Unit;
    for (std::size_t step = 0; step < steps; step += 1000 / LevelMilliseconds) {
        const int x = PlaceOf(second, step, steps);
        painter.drawLine(x, second.bottom(), x, bottom);
        painter.drawText(QRect(x - 4 * Unit, bottom, 8 * Unit, 3 * Unit), Qt::AlignHCenter | Qt::AlignTop,
                         QString::number(step * LevelMilliseconds / 1000) + " s");
    }
    painter.end();
    return picture.save(file);
}

}  // namespace orvelle
