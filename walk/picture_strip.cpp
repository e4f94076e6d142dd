#include "walk/picture_strip.h"

#include <stdexcept>

#include <QImage>
#include <QPainter>

namespace tidemark {

namespace {

constexpr QSize card(420, 280);
constexpr int gap = 8;

QRect Card_place(qsizetype number, int in_a_row) {
    const QPoint place(static_cast<int>(number % in_a_row), static_cast<int>(number / in_a_row));
    return {QPoint(gap + place.x() * (card.width() + gap), gap + place.y() * (card.height() + gap)),
            card};
}

QImage Card(const QString& picture) {
    const QImage image(picture);
    if (image.isNull()) throw std::runtime_error((picture + " cannot be read").toStdString());
    const bool fits = image.width() <= card.width() && image.height() <= card.height();
    return fits ? image : image.scaled(card, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

}  // namespace

void Save_picture_strip(const QStringList& pictures, const QString& strip, int in_a_row) {
    const QRect last = Card_place(pictures.size() - 1, in_a_row);
    const int width = Card_place(in_a_row - 1, in_a_row).right() + 1 + gap;
    QImage image(width, last.bottom() + 1 + gap, QImage::Format_RGB32);
    image.fill(Qt::darkGray);
    QPainter painter(&image);
    for (qsizetype i = 0; i < pictures.size(); ++i) {
        const QImage content = Card(pictures[i]);
        QRect place = content.rect();
        place.moveCenter(Card_place(i, in_a_row).center());
        painter.drawImage(place, content);
    }
    painter.end();
    if (!image.save(strip)) throw std::runtime_error((strip + " cannot be saved").toStdString());
}

}  // namespace tidemark
