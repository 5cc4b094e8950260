#include "adapters/looks/SignIcon.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>

namespace orvelle {

namespace {

class Engine : public QIconEngine {
public:
    explicit Engine(Sign shownSign) : sign(shownSign) {}

    QIconEngine* clone() const override { return new Engine(*this); }
    void paint(QPainter* painter, const QRect& area, QIcon::Mode mode, QIcon::State) override {
        const Sign shown = mode == QIcon::Disabled ? Sign::Off : sign;
        DrawSign(*painter, area, sign, SignColour(shown, QGuiApplication::palette()));
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap drawn(size);
        drawn.fill(Qt::transparent);
        QPainter painter(&drawn);
        paint(&painter, drawn.rect(), mode, state);
        return drawn;
    }

private:
    const Sign sign;
};

}  // namespace

QIcon SignIcon(Sign sign) { return QIcon(new Engine(sign)); }

}  // namespace orvelle
