#include "map_painter.h"

#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

#include "golden_gate.h"
#include "graticule.h"
#include "land_shape.h"
#include "map_lettering.h"

namespace tidemark {

namespace {

// Bands along the coast, laid over one another from the widest to the narrowest.
struct ShoreTint {
    QColor Colour;
    int Widest, Step;  // pixels, to both sides together
};

const ShoreTint SeaTint{QColor(236, 247, 250, 11), 216, 6};
const ShoreTint LandTint{QColor(150, 128, 84, 12), 36, 6};

// Soft patches of colour on the land: hills and woods, towns. Radii in degrees.
struct Patch {
    QRgb Colour;
    GeoPoint Centre;
    double East, North;
};

constexpr QRgb Woods = qRgb(186, 207, 154);
constexpr QRgb Hills = qRgb(206, 203, 152);
constexpr QRgb Built = qRgb(226, 208, 196);

constexpr Patch Patches[] = {
    {Woods, {-122.6000, 37.9260}, 0.090, 0.050}, {Woods, {-122.7350, 37.9600}, 0.075, 0.040},
    {Woods, {-122.6600, 37.9550}, 0.090, 0.040}, {Woods, {-122.5650, 37.8900}, 0.055, 0.035},
    {Hills, {-122.5250, 37.8400}, 0.055, 0.024}, {Hills, {-122.4355, 37.6870}, 0.034, 0.016},
    {Hills, {-122.4700, 37.6350}, 0.030, 0.034}, {Hills, {-122.4510, 37.7520}, 0.016, 0.013},
    {Hills, {-122.4720, 37.9150}, 0.035, 0.025}, {Woods, {-122.4320, 37.8630}, 0.016, 0.011},
    {Hills, {-122.3950, 37.9250}, 0.030, 0.025}, {Built, {-122.4200, 37.7750}, 0.055, 0.045},
    {Built, {-122.4600, 37.7350}, 0.065, 0.050}, {Built, {-122.4050, 37.7300}, 0.045, 0.040},
    {Built, {-122.4650, 37.6850}, 0.035, 0.020}, {Built, {-122.4150, 37.6400}, 0.035, 0.030},
    {Built, {-122.3550, 37.9400}, 0.050, 0.035}, {Built, {-122.5300, 37.9650}, 0.035, 0.025},
    {Built, {-122.5350, 37.9050}, 0.025, 0.018},
};

struct LineStyle {
    int Mode;
    double Casing, Core;  // pixels; no casing: 0
    QRgb CasingColour, Colour;
    bool Dashed;
};

constexpr LineStyle LineStyles[] = {
    {Stream, 0, 2.4, 0, qRgb(96, 150, 190), false},
    {DirtRoad, 0, 2.2, 0, qRgb(150, 110, 70), true},
    {OneLane, 5.6, 3.4, qRgb(150, 112, 58), qRgb(255, 226, 138), false},
    {TwoLanes, 8.4, 5.6, qRgb(146, 74, 42), qRgb(243, 160, 98), false},
};

QPen Round_pen(const QColor& colour, double width) {
    return QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

void Paint_shore(QPainter& painter, const QPainterPath& shape, const ShoreTint& tint) {
    painter.setBrush(Qt::NoBrush);
    for (int width = tint.Widest; width > 0; width -= tint.Step) {
        painter.setPen(Round_pen(tint.Colour, width));
        painter.drawPath(shape);
    }
}

void Paint_sea(QPainter& painter, const QPainterPath& land) {
    QLinearGradient depth(0, PictureSize, PictureSize, 0);
    depth.setColorAt(0, QColor(138, 182, 210));
    depth.setColorAt(0.6, QColor(160, 200, 221));
    depth.setColorAt(1, QColor(178, 213, 228));
    painter.fillRect(0, 0, PictureSize, PictureSize, depth);
    Paint_shore(painter, land, SeaTint);
}

void Paint_patch(QPainter& painter, const Patch& patch) {
    const GeoPoint corner{patch.Centre.Longitude + patch.East, patch.Centre.Latitude - patch.North};
    const QPointF centre = On_picture(patch.Centre);
    const QPointF radii = On_picture(corner) - centre;

    QRadialGradient fade(QPointF(), 1);
    QColor colour(patch.Colour);
    colour.setAlpha(215);
    fade.setColorAt(0, colour);
    fade.setColorAt(0.55, colour);
    colour.setAlpha(0);
    fade.setColorAt(1, colour);

    painter.save();
    painter.translate(centre);
    painter.scale(radii.x(), radii.y());
    painter.setPen(Qt::NoPen);
    painter.setBrush(fade);
    painter.drawEllipse(QPointF(), 1, 1);
    painter.restore();
}

void Paint_land(QPainter& painter, const QPainterPath& land) {
    painter.save();
    painter.setClipPath(land);
    painter.fillRect(0, 0, PictureSize, PictureSize, QColor(240, 234, 212));
    for (const Patch& patch : Patches) Paint_patch(painter, patch);
    const GeoLine park{{-122.5105, 37.7715},
                       {-122.4560, 37.7735},
                       {-122.4555, 37.7690},
                       {-122.5095, 37.7645},
                       {-122.5105, 37.7715}};
    painter.setBrush(QColor(186, 207, 154));
    painter.setPen(Qt::NoPen);
    painter.drawPolygon(On_picture(park));
    Paint_shore(painter, land, LandTint);
    painter.restore();

    painter.setBrush(Qt::NoBrush);
    painter.setPen(Round_pen(QColor(48, 92, 128), 2.6));
    painter.drawPath(land);
}

// All casings of a kind before its cores, so that lines of one kind join.
void Paint_lines(QPainter& painter, const LineStyle& style) {
    QPainterPath lines;
    for (const DrawnLine& line : Roads_and_streams())
        if (line.Mode == style.Mode) lines.addPolygon(On_picture(line.Line));
    painter.setBrush(Qt::NoBrush);
    if (style.Casing > 0) painter.strokePath(lines, Round_pen(style.CasingColour, style.Casing));
    QPen core = Round_pen(style.Colour, style.Core);
    if (style.Dashed) core.setDashPattern({4, 3});
    painter.strokePath(lines, core);
}

}  // namespace

QImage Painted_map(const std::vector<GeoLine>& coast) {
    // 16 bits a colour: the many thin shore tints would add up to bands in 8.
    QImage map(PictureSize, PictureSize, QImage::Format_RGBX64);
    QPainter painter(&map);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);

    const QPainterPath land = Land_shape(coast, Islands());
    Paint_sea(painter, land);
    Paint_land(painter, land);
    Paint_graticule(painter);
    for (const LineStyle& style : LineStyles) Paint_lines(painter, style);
    Paint_road_numbers(painter);
    Paint_place_names(painter);
    Paint_frame(painter);
    Paint_title(painter);
    return map.convertToFormat(QImage::Format_RGB32);
}

}  // namespace tidemark
