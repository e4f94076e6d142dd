#include "graticule.h"

#include <cmath>
#include <numbers>
#include <vector>

#include <QFontMetricsF>

#include "land_shape.h"
#include "map_lettering.h"

namespace tidemark {

namespace {

constexpr double FrameWidth = 12;  // pixels
const QColor FrameInk(60, 66, 72);

// The whole minutes of longitude (west positive) or latitude between two edges.
std::vector<int> Minutes_between(double low, double high) {
    std::vector<int> minutes;
    for (int minute = static_cast<int>(std::ceil(low * 60)); minute < high * 60; ++minute)
        minutes.push_back(minute);
    return minutes;
}

constexpr double EastLongitude = WestLongitude + LOD8DegreesEast;
constexpr double SouthLatitude = NorthLatitude - LOD8DegreesSouth;

double Picture_x(int minutes_west) {
    return On_picture({-minutes_west / 60.0, NorthLatitude}).x();
}

double Picture_y(int minutes_north) {
    return On_picture({WestLongitude, minutes_north / 60.0}).y();
}

std::vector<int> Minutes_west() {
    return Minutes_between(-EastLongitude, -WestLongitude);
}

std::vector<int> Minutes_north() {
    return Minutes_between(SouthLatitude, NorthLatitude);
}

bool Has_line(int minute) {
    return minute % 5 == 0;
}

QFont Font(const char* family, int pixels) {
    QFont font{QString::fromLatin1(family)};
    font.setPixelSize(pixels);
    return font;
}

QString Degrees(int minutes, QChar side) {
    return QStringLiteral("%1°%2′%3")
        .arg(minutes / 60)
        .arg(minutes % 60, 2, 10, QChar(u'0'))
        .arg(side);
}

// Bars of one minute, every second one dark, from one division to the next along an edge at x = 0
// or y = 0 and along the one across from it.
void Paint_bars(QPainter& painter, std::vector<double> divisions, bool along_x) {
    divisions.insert(divisions.begin(), 0);
    divisions.push_back(PictureSize);
    for (std::size_t i = 1; i < divisions.size(); ++i)
        for (double edge : {0.0, PictureSize - FrameWidth}) {
            QRectF bar(divisions[i - 1], edge, divisions[i] - divisions[i - 1], FrameWidth);
            if (!along_x) bar = QRectF(bar.y(), bar.x(), bar.height(), bar.width());
            painter.setBrush(i % 2 == 0 ? FrameInk : QColor(Qt::white));
            painter.drawRect(bar);
        }
}

void Paint_centred(QPainter& painter, QPointF middle, const QFont& font, const QString& text) {
    const double width = QFontMetricsF(font).horizontalAdvance(text);
    Paint_text(painter, middle - QPointF(width / 2, -0.35 * font.pixelSize()), font, text, FrameInk,
               QColor(255, 255, 255, 200));
}

// Pixels that a kilometre takes from west to east, in the middle of the map.
double Kilometre() {
    constexpr double equator_km = 40075.017;
    const double middle = (NorthLatitude + SouthLatitude) / 2 * std::numbers::pi / 180;
    return PictureSize / (equator_km * std::cos(middle) * LOD8DegreesEast / 360);
}

void Paint_scale_bar(QPainter& painter, QPointF start) {
    constexpr int step = 2, last = 10;  // kilometres
    const QFont font = Font("DejaVu Sans", 16);
    painter.setPen(QPen(FrameInk, 1.4));
    for (int km = 0; km <= last; km += step) {
        const QPointF at = start + QPointF(km * Kilometre(), 0);
        painter.setBrush(km / step % 2 == 0 ? FrameInk : QColor(Qt::white));
        if (km < last) painter.drawRect(QRectF(at, QSizeF(step * Kilometre(), 9)));
        Paint_centred(painter, at - QPointF(0, 16), font,
                      km < last ? QString::number(km) : QStringLiteral("%1 km").arg(km));
    }
}

}  // namespace

void Paint_graticule(QPainter& painter) {
    painter.setPen(QPen(QColor(60, 80, 100, 90), 1.2));
    for (int minute : Minutes_west())
        if (Has_line(minute))
            painter.drawLine(QLineF(Picture_x(minute), 0, Picture_x(minute), PictureSize));
    for (int minute : Minutes_north())
        if (Has_line(minute))
            painter.drawLine(QLineF(0, Picture_y(minute), PictureSize, Picture_y(minute)));
}

void Paint_frame(QPainter& painter) {
    std::vector<double> columns, rows;
    for (int minute : Minutes_west()) columns.insert(columns.begin(), Picture_x(minute));
    for (int minute : Minutes_north()) rows.insert(rows.begin(), Picture_y(minute));
    painter.setPen(QPen(FrameInk, 1.4));
    Paint_bars(painter, columns, true);
    Paint_bars(painter, rows, false);

    constexpr double inset = FrameWidth + 16;
    const QFont font = Font("DejaVu Sans", 17);
    for (int minute : Minutes_west())
        for (double y : {inset, PictureSize - inset})
            if (Has_line(minute))
                Paint_centred(painter, {Picture_x(minute), y}, font, Degrees(minute, u'W'));
    for (int minute : Minutes_north())
        for (double x : {inset + 36, PictureSize - inset - 36})
            if (Has_line(minute))
                Paint_centred(painter, {x, Picture_y(minute)}, font, Degrees(minute, u'N'));
}

void Paint_title(QPainter& painter) {
    const QRectF panel(96, 1610, 700, 310);
    painter.setPen(QPen(FrameInk, 1.4));
    painter.setBrush(QColor(250, 250, 244, 205));
    painter.drawRect(panel);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(panel.adjusted(6, 6, -6, -6));

    QFont title = Font("DejaVu Serif", 50);
    title.setLetterSpacing(QFont::AbsoluteSpacing, 5);
    const double middle = panel.center().x();
    Paint_centred(painter, {middle, 1672}, title, QStringLiteral("THE GOLDEN GATE"));
    Paint_centred(painter, {middle, 1722}, Font("DejaVu Serif", 23),
                  QStringLiteral("San Francisco and Marin County, California"));
    Paint_scale_bar(painter, {middle - 5 * Kilometre(), 1800});
    Paint_centred(painter, {middle, 1850}, Font("DejaVu Sans", 16),
                  QStringLiteral("LOD8 cell 122, 148  ·  32 × 32 LOD13 cells"));
    Paint_centred(painter, {middle, 1880}, Font("DejaVu Sans", 16),
                  QStringLiteral("Coastline: Natural Earth 1:10m  ·  not for navigation"));
}

}  // namespace tidemark
