#include "map_lettering.h"

#include <algorithm>

#include <QFontMetricsF>
#include <QPainterPath>

#include "land_shape.h"
#include "place_names.h"

namespace tidemark {

namespace {

enum class Symbol { None, Dot, Triangle };

struct NameStyle {
    PlaceKind Kind;
    const char* Family;
    int Size;     // pixels
    int Spacing;  // pixels between the letters
    bool Bold, Italic;
    QRgb Colour;
    bool OnWater;  // decides the halo
    Symbol Mark;
};

constexpr QRgb Ink = qRgb(52, 48, 44);
constexpr QRgb Water = qRgb(42, 92, 138);
constexpr QRgb Green = qRgb(62, 96, 50);
constexpr QRgb Brown = qRgb(104, 78, 44);
constexpr char Sans[] = "DejaVu Sans";
constexpr char Serif[] = "DejaVu Serif";

constexpr NameStyle Styles[] = {
    {PlaceKind::City, Sans, 32, 3, true, false, Ink, false, Symbol::None},
    {PlaceKind::Town, Sans, 20, 0, false, false, Ink, false, Symbol::Dot},
    {PlaceKind::Region, Sans, 20, 3, false, true, Brown, false, Symbol::None},
    {PlaceKind::Park, Sans, 15, 0, false, true, Green, false, Symbol::None},
    {PlaceKind::Landmark, Sans, 17, 0, false, true, Ink, true, Symbol::None},
    {PlaceKind::Peak, Sans, 17, 0, false, false, Brown, false, Symbol::Triangle},
    {PlaceKind::Ocean, Serif, 58, 22, false, true, Water, true, Symbol::None},
    {PlaceKind::Bay, Serif, 27, 3, false, true, Water, true, Symbol::None},
    {PlaceKind::Strait, Serif, 20, 1, false, true, Water, true, Symbol::None},
    {PlaceKind::Cove, Serif, 16, 0, false, true, Water, true, Symbol::None},
    {PlaceKind::Beyond, Serif, 18, 0, false, true, Water, true, Symbol::None},
};

const NameStyle& Style_of(PlaceKind kind) {
    return *std::find_if(std::begin(Styles), std::end(Styles),
                         [kind](const NameStyle& style) { return style.Kind == kind; });
}

QFont Font_of(const NameStyle& style) {
    QFont font{QString::fromLatin1(style.Family)};
    font.setPixelSize(style.Size);
    font.setBold(style.Bold);
    font.setItalic(style.Italic);
    font.setLetterSpacing(QFont::AbsoluteSpacing, style.Spacing);
    return font;
}

QString Text(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

void Paint_symbol(QPainter& painter, QPointF at, Symbol symbol) {
    painter.setPen(QPen(QColor(Ink), 1.8));
    painter.setBrush(Qt::white);
    if (symbol == Symbol::Dot) painter.drawEllipse(at, 4.2, 4.2);
    painter.setBrush(QColor(Brown));
    painter.setPen(QPen(Qt::white, 1));
    const QPolygonF triangle{{QPointF(0, -8), QPointF(7, 5), QPointF(-7, 5)}};
    if (symbol == Symbol::Triangle) painter.drawPolygon(triangle.translated(at));
}

// The top left corner of a text of that size beside a place.
QPointF Beside(QPointF place, QSizeF size, Side side) {
    constexpr double gap = 10;
    const QPointF centred = place - QPointF(size.width() / 2, size.height() / 2);
    switch (side) {
        case Side::Left:
            return {place.x() - gap - size.width(), centred.y()};
        case Side::Right:
            return {place.x() + gap, centred.y()};
        case Side::Above:
            return {centred.x(), place.y() - gap / 2 - size.height()};
        case Side::Below:
            return {centred.x(), place.y() + gap / 2};
        case Side::Centre:
            break;
    }
    return centred;
}

void Paint_name(QPainter& painter, const PlaceName& place) {
    const NameStyle& style = Style_of(place.Kind);
    const QPointF at = On_picture(place.Where);
    Paint_symbol(painter, at, style.Mark);

    const QFont font = Font_of(style);
    const QFontMetricsF metrics(font);
    const QStringList lines = Text(place.Name).split(u'\n');
    double width = 0;
    for (const QString& line : lines) width = std::max(width, metrics.horizontalAdvance(line));
    const double line_height = 1.12 * style.Size;
    const QSizeF size(width, line_height * static_cast<double>(lines.size()));
    const QPointF corner = Beside(at, size, place.Stands);

    const QColor halo = style.OnWater ? QColor(214, 234, 242, 190) : QColor(248, 244, 230, 220);
    double baseline = corner.y() + 0.92 * style.Size;
    for (const QString& line : lines) {
        const double spare = width - metrics.horizontalAdvance(line);
        const double indent = place.Stands == Side::Right  ? 0
                              : place.Stands == Side::Left ? spare
                                                           : spare / 2;
        Paint_text(painter, {corner.x() + indent, baseline}, font, line, style.Colour, halo);
        baseline += line_height;
    }
}

}  // namespace

void Paint_text(QPainter& painter, QPointF start, const QFont& font, const QString& text,
                const QColor& colour, const QColor& halo) {
    QPainterPath letters;
    letters.addText(start, font, text);
    painter.strokePath(letters, QPen(halo, 5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.fillPath(letters, colour);
}

void Paint_place_names(QPainter& painter) {
    for (const PlaceName& place : PlaceNames()) Paint_name(painter, place);
}

void Paint_road_numbers(QPainter& painter) {
    QFont font{QString::fromLatin1(Sans)};
    font.setPixelSize(15);
    font.setBold(true);
    painter.setFont(font);
    for (const RoadNumber& road : RoadNumbers()) {
        const QString number = Text(road.Number);
        QRectF shield(0, 0, QFontMetricsF(font).horizontalAdvance(number) + 12, 22);
        shield.moveCenter(On_picture(road.Where));
        painter.setPen(QPen(QColor(Ink), 1.6));
        painter.setBrush(QColor(255, 253, 246));
        painter.drawRoundedRect(shield, 6, 6);
        painter.drawText(shield, Qt::AlignCenter, number);
    }
}

}  // namespace tidemark
