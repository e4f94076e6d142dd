#include "platform/qt_drawn_icon.h"

#include <utility>

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>

namespace tidemark {

namespace {

constexpr double StrokeWidth = 2;  // in the units of the design

class DrawnIconEngine : public QIconEngine {
  public:
    explicit DrawnIconEngine(IconShapes shapes) : shapes_(std::move(shapes)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const QColor ink = QGuiApplication::palette().color(group, QPalette::ButtonText);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.topLeft());
        painter->scale(rect.width() / double{DrawnIconSize}, rect.height() / double{DrawnIconSize});
        painter->strokePath(shapes_.Strokes,
                            QPen(ink, StrokeWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->fillPath(shapes_.Fills, ink);
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, picture.rect(), mode, state);
        return picture;
    }

    QIconEngine* clone() const override { return new DrawnIconEngine(shapes_); }

  private:
    IconShapes shapes_;
};

}  // namespace

QIcon Drawn_icon(const IconShapes& shapes) {
    return QIcon(new DrawnIconEngine(shapes));
}

}  // namespace tidemark
